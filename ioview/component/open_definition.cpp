#include "ioview/component/open_definition.h"

#include <string_view>
#include <utility>

#include "platform/base/text.h"

namespace ioview {

namespace {

constexpr std::string_view kExtension = ".io";
// The component's key, with the identity that it stores under.
constexpr std::u16string_view kKey = u"{F866DB60-6186-11D5-8BBE-0004E2013C71}IOCtrlIOFile";
// Stands for a file whose own name would be taken for one that has placeholders in it.
constexpr const char* kFilePlaceholder = "IOVIEWFILE";

}  // namespace

SessionValues::Names NamesOf(const Workspace& workspace) {
  return {platform::ToWide(workspace.name), platform::ToWide(workspace.project),
          platform::ToWide(workspace.configuration)};
}

std::string StoredDefinition(const HostServices& host) {
  const std::u16string* const stored = host.session_values.Find(NamesOf(host.workspace), kKey);
  return stored != nullptr ? platform::FromWide(*stored) : std::string();
}

bool OfferDefinition(HostServices& host, std::string path) {
  if (path.ends_with(kExtension)) {
    path.resize(path.size() - kExtension.size());
    host.device.SetDefaultIOPath(std::move(path));
    return true;
  }
  host.device.SetDefaultIOPath(path);
  if (path.find("$(") != std::string::npos) {
    host.placeholders.SetGlobal({kFilePlaceholder, path, "The file of the command line"});
    path = std::string("$(") + kFilePlaceholder + ")";
  }
  host.session_values.Set(NamesOf(host.workspace), kKey, platform::ToWide(path));
  return false;
}

void ForgetDefinition(HostServices& host) {
  if (!StoredDefinition(host).empty()) host.session_values.Set(NamesOf(host.workspace), kKey, {});
}

}  // namespace ioview
