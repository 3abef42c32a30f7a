#include "ioview/script/help_listener.h"

#include <filesystem>
#include <utility>

#include "ioview/component/component_library.h"
#include "ioview/help_engine/help_engine.h"
#include "ioview/native_file.h"
#include "ioview/program_error.h"
#include "platform/base/system.h"

namespace ioview {

namespace {

using Heard = std::function<void(const std::string&, std::uint32_t)>;

Heard& Listener() {
  static Heard heard;
  return heard;
}

void Tell(void*, const char* path, std::uint32_t number) {
  if (Listener()) Listener()(path != nullptr ? path : "", number);
}

}  // namespace

void ListenToHelpEngine(const std::string& path, Heard heard) {
  Listener() = std::move(heard);
  platform::System().help_engine = path;
  // Both stay loaded: the component keeps what it has of them to the end of the process.
  const platform::HMODULE engine = platform::LoadLibrary(path);
  if (engine == nullptr) return;
  const std::string own = DrivePathOf(
      (std::filesystem::path(ComponentLibrary::DefaultPath()).parent_path() / kHelpEngineFile).string());
  const platform::HMODULE module = platform::LoadLibrary(own);
  const auto set_up = platform::GetProc<void(const HelpSetup*)>(module, kHelpEngineSetup);
  if (set_up == nullptr) throw ProgramError("The program's file " + own + " can't be loaded");
  // What hands calls on can't hand them to itself.
  const HelpSetup setup{Tell, nullptr, engine == module ? nullptr : engine};
  set_up(&setup);
  platform::System().help_engine = own;
}

}  // namespace ioview
