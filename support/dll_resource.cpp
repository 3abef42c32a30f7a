#include "support/dll_resource.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/base/resources.h"
#include "support/message_text.h"

namespace pvw {

namespace {

using NumberPairExport = std::int32_t(std::uint32_t* first, std::uint32_t* second);
using NumberExport = std::int32_t(std::uint32_t* number);
using TextExport = std::int32_t(char* buffer, std::uint32_t* size);

constexpr std::uint32_t kFirstTextSize = 1024;
// No type and no version is longer; a library that asks for more gets no second call.
constexpr std::uint32_t kMaxTextSize = 1024 * 1024;

// The row of the libraries of connected instances, from the latest on. A bare pointer, because an instance
// may outlive every static object that a file of the component has.
CDllResource* g_latest = nullptr;

void LookUpInLatest() {
  platform::SetResourceModule(g_latest == nullptr ? nullptr : g_latest->Module());
}

template <typename Export>
Export* FindExport(platform::HMODULE module, const char* name) {
  return module == nullptr ? nullptr : platform::GetProc<Export>(module, name);
}

void ReadText(platform::HMODULE module, const char* name, std::string& field) {
  auto* read = FindExport<TextExport>(module, name);
  if (read == nullptr) return;
  std::uint32_t size = kFirstTextSize;
  std::vector<char> buffer(size);
  std::int32_t result = read(buffer.data(), &size);
  if (result > 0) {
    if (size > kMaxTextSize) return;
    buffer.assign(std::max(size, 1u), '\0');
    result = read(buffer.data(), &size);
  }
  if (result != 0) return;
  // The library may have filled the buffer to its last byte.
  field.assign(buffer.begin(), std::find(buffer.begin(), buffer.end(), '\0'));
}

}  // namespace

CDllResource::CDllResource(std::string file_path) : path(std::move(file_path)) {}

CDllResource::~CDllResource() {
  if (LeaveRow()) LookUpInLatest();
  if (module != nullptr) platform::FreeLibrary(module);
}

void CDllResource::Assign(const CDllResource& source) {
  if (this == &source) return;
  const platform::HMODULE before = module;
  path = source.path;
  productVersion = source.productVersion;
  type = source.type;
  interfaceMajor = source.interfaceMajor;
  interfaceMinor = source.interfaceMinor;
  ordinalVersion = source.ordinalVersion;
  module = source.module == nullptr ? nullptr : platform::LoadLibrary(path);
  if (g_latest == this) LookUpInLatest();
  if (before != nullptr) platform::FreeLibrary(before);
}

bool CDllResource::Load() {
  if (module == nullptr) module = platform::LoadLibrary(path);
  return module != nullptr;
}

void CDllResource::MakeCurrent() {
  LeaveRow();
  earlier = std::exchange(g_latest, this);
  LookUpInLatest();
}

bool CDllResource::LeaveRow() {
  CDllResource** place = &g_latest;
  while (*place != nullptr && *place != this) place = &(*place)->earlier;
  if (*place == nullptr) return false;
  *place = std::exchange(earlier, nullptr);
  return true;
}

platform::Status CDllResource::ReadInterfaceVersion(std::string& /*error*/) {
  interfaceMajor = 0;
  interfaceMinor = 0;
  if (auto* read = FindExport<NumberPairExport>(module, "GetDLLInterfaceVersion")) {
    read(&interfaceMajor, &interfaceMinor);
  }
  return platform::S_OK;
}

platform::Status CDllResource::ReadOrdinalVersion(std::string& /*error*/) {
  ordinalVersion = 0;
  if (auto* read = FindExport<NumberExport>(module, "GetDLLOrdinalVersion")) read(&ordinalVersion);
  return platform::S_OK;
}

platform::Status CDllResource::ReadProductVersion(std::string& /*error*/) {
  ReadText(module, "GetDLLProductVersion", productVersion);
  return platform::S_OK;
}

platform::Status CDllResource::ReadType(std::string& /*error*/) {
  ReadText(module, "GetDLLType", type);
  return platform::S_OK;
}

std::unique_ptr<CDllResource> LoadResourceLibrary(const std::string& path, std::string& error) {
  auto library = std::make_unique<CDllResource>(path);
  if (!library->Load()) {
    error = FormatMessageText("Error loading resource DLL %1", path);
    return nullptr;
  }
  library->ReadInterfaceVersion(error);
  library->ReadProductVersion(error);
  library->ReadOrdinalVersion(error);
  library->ReadType(error);
  if (library->Type() != "Resource") {
    error = FormatMessageText("Dll %s is not a resources Dll", path);
    return nullptr;
  }
  if (library->InterfaceMajor() != 1 || library->InterfaceMinor() != 0 || library->OrdinalVersion() != 1 ||
      library->ProductVersion() != "1.0") {
    error = "Incorrect version of Resources - exiting";
    return nullptr;
  }
  library->MakeCurrent();
  return library;
}

}  // namespace pvw
