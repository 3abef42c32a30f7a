#include "support/command_util.h"

#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/text.h"
#include "support/path_service.h"
#include "support/path_text.h"
#include "support/placeholder_expander.h"

namespace pvw {

namespace {

// Views into the path: `c:`, `\dir\` with both backslashes where it has them, and the name with its
// extension.
struct SplitPath {
  std::string_view drive;
  std::string_view directory;
  std::string_view file;

  bool FromRoot() const { return directory.starts_with('\\'); }
};

SplitPath Split(std::string_view path) {
  SplitPath split;
  const std::size_t letter = platform::CharBytes(path, 0);
  if (letter > 0 && path.substr(letter).starts_with(':')) {
    split.drive = path.substr(0, letter + 1);
    path.remove_prefix(letter + 1);
  }
  const std::size_t last = platform::FindLastChar(path, '\\');
  const std::size_t directory = last == std::string_view::npos ? 0 : last + 1;
  split.directory = path.substr(0, directory);
  split.file = path.substr(directory);
  return split;
}

std::string Together(std::string_view drive, std::string_view directory, std::string_view file) {
  std::string path(drive);
  path += directory;
  path += file;
  return path;
}

// With a backslash at the end, unless it is empty.
std::string AsBase(const std::string& directory) {
  return directory.empty() ? directory : JoinPath(directory, "\\");
}

}  // namespace

std::string CCommandUtil::GetBrowseDirectory(std::string_view path) const {
  const CPlaceholderExpander expander(m_pHost);
  const std::string expanded = expander.Expand(path);
  const SplitPath split = Split(expanded);
  if (!split.FromRoot()) return expander.Expand("$(CONFIGDIR)");
  return Together(split.drive, split.directory, {});
}

std::string CCommandUtil::ResolvePath(std::string_view path) const {
  if (path.empty()) return {};
  std::string expanded = CPlaceholderExpander(m_pHost).Expand(path);
  const SplitPath split = Split(expanded);
  // A drive in front of a relative directory gives way to the base directory's.
  if (!split.FromRoot()) return Together(BaseDirectory(), split.directory, split.file);
  if (!split.drive.empty()) return expanded;
  const std::string current = GetCurrentDir();
  return Together(Split(current).drive, split.directory, split.file);
}

std::string CCommandUtil::BaseDirectory() const {
  auto* service = GetService<IQPathService>(m_pHost, IID_IQPathService);
  std::string base;
  if (IsWorkspaceOpen(service)) {
    base = AskOfConfiguration(service, &IQPathService::GetConfigurationDirectory).text;
  }
  if (base.empty()) base = PathServiceText(service, &IQPathService::GetInstallDirectory);
  if (base.empty()) base = GetCurrentDir();
  return AsBase(base);
}

}  // namespace pvw
