#include "ioview/component/component_library.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "ioview/native_file.h"
#include "ioview/program_error.h"
#include "platform/base/bstr.h"
#include "platform/base/guid.h"
#include "platform/base/paths.h"

namespace ioview {

namespace {

class Registrar final : public pvw::IQLibraryRegistrar {
 public:
  platform::Status QueryInterface(const platform::GUID*, void** out) override {
    *out = nullptr;
    return platform::E_NOINTERFACE;
  }
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }
  platform::Status RegisterLibrary(platform::BSTR text, std::uint32_t, std::uint32_t, std::uint32_t,
                                   const platform::GUID*) override {
    name = platform::BstrText(text);
    return platform::S_OK;
  }

  std::string name;
};

}  // namespace

std::string ComponentLibrary::DefaultPath() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return (program.parent_path() / "PvwIO.dll").string();
}

ComponentLibrary::ComponentLibrary(const std::string& native_path) {
  const std::string path = DrivePathOf(native_path);
  module_ = platform::LoadLibrary(path);
  if (module_ == nullptr) throw ProgramError("The component " + Quoted(native_path) + " can't be loaded");
  const auto find = [&](auto& function, const char* name) {
    function =
        platform::GetProc<std::remove_pointer_t<std::remove_reference_t<decltype(function)>>>(module_, name);
    if (function != nullptr) return;
    platform::FreeLibrary(module_);
    throw ProgramError("The component " + Quoted(native_path) + " has no function " + name);
  };
  find(LibraryRegister2, "LibraryRegister2");
  find(QueryInterface2, "QueryInterface2");
  find(CreateInstance, "CreateInstance");
  find(DestroyInstance, "DestroyInstance");
  find(GetComponentVersion, "GetComponentVersion");

  Registrar registrar;
  if (!platform::Failed(LibraryRegister2(&registrar))) name_ = registrar.name;
}

ComponentLibrary::~ComponentLibrary() {
  platform::FreeLibrary(module_);
}

}  // namespace ioview
