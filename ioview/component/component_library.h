// The component's file, loaded as any host would: by its five exported functions and nothing else.
#pragma once

#include <cstdint>
#include <string>

#include "host/component_host.h"
#include "platform/base/module.h"

namespace ioview {

class ComponentLibrary {
 public:
  // PvwIO.dll beside the program's own file, as a native path.
  static std::string DefaultPath();

  // Throws ProgramError when the file can't be loaded or lacks one of the functions. The file is loaded as
  // long as the object lives.
  explicit ComponentLibrary(const std::string& native_path = DefaultPath());
  ComponentLibrary(const ComponentLibrary&) = delete;
  ComponentLibrary& operator=(const ComponentLibrary&) = delete;
  ~ComponentLibrary();

  platform::Status (*QueryInterface2)(void* instance, const platform::GUID* iid, void** out) = nullptr;
  platform::Status (*CreateInstance)(void* instance) = nullptr;
  platform::Status (*DestroyInstance)(void* instance) = nullptr;
  platform::Status (*LibraryRegister2)(pvw::IQLibraryRegistrar* registrar) = nullptr;
  platform::Status (*GetComponentVersion)(std::uint32_t* major, std::uint32_t* minor) = nullptr;

  // As LibraryRegister2 gave it; empty when it registered none.
  const std::string& Name() const { return name_; }

 private:
  platform::HMODULE module_ = nullptr;
  std::string name_;
};

}  // namespace ioview
