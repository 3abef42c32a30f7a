#include "platform/base/module.h"

#include <dlfcn.h>
#include <link.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "platform/base/files.h"
#include "platform/base/paths.h"

namespace platform {

namespace {

// The loader trusts a file's headers: a library that was copied in part would end the process.
bool IsWhole(const std::string& native) {
  // Nor may it open a pipe, where it would wait for a writer.
  const std::optional<FileStamp> stamp = StampNativeFile(native);
  if (!stamp) return false;
  std::ifstream file(native, std::ios::binary);
  ElfW(Ehdr) header;
  if (!file.read(reinterpret_cast<char*>(&header), sizeof header) ||
      std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_phentsize != sizeof(ElfW(Phdr)) ||
      !file.seekg(static_cast<std::streamoff>(header.e_phoff))) {
    return false;
  }
  for (unsigned i = 0; i < header.e_phnum; ++i) {
    ElfW(Phdr) part;
    if (!file.read(reinterpret_cast<char*>(&part), sizeof part)) return false;
    if (part.p_offset > stamp->size || part.p_filesz > stamp->size - part.p_offset) return false;
  }
  // Linkers put the table of sections at the end: a copy that got its full size first has nothing there yet.
  if (header.e_shnum == 0) return true;
  const std::uint64_t last = header.e_shoff + std::uint64_t{header.e_shnum - 1u} * sizeof(ElfW(Shdr));
  ElfW(Shdr) section;
  return header.e_shentsize == sizeof section && file.seekg(static_cast<std::streamoff>(last)) &&
         file.read(reinterpret_cast<char*>(&section), sizeof section) && section.sh_type != SHT_NULL;
}

}  // namespace

HMODULE LoadLibrary(std::string_view path) {
  const std::optional<std::string> native = ToNativePath(path);
  if (!native || !IsWhole(*native)) return nullptr;
  return reinterpret_cast<HMODULE>(dlopen(native->c_str(), RTLD_NOW | RTLD_LOCAL));
}

void FreeLibrary(HMODULE module) {
  if (module != nullptr) dlclose(module);
}

void* GetProcAddress(HMODULE module, const char* name) {
  const void* image = ModuleImage(module);
  if (image == nullptr || name == nullptr) return nullptr;
  // The loader also searches the libraries that the module needs; what they export isn't the module's.
  void* address = dlsym(module, name);
  return address != nullptr && ImageOf(address) == image ? address : nullptr;
}

std::optional<std::string> GetModuleFileName(const void* address) {
  Dl_info info{};
  link_map* map = nullptr;
  if (dladdr1(address, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) == 0 || map == nullptr) {
    return std::nullopt;
  }
  std::filesystem::path file = map->l_name;
  std::error_code error;
  if (file.empty()) {
    // The program itself has no name there, and the one that it was called by may be relative.
    file = std::filesystem::read_symlink("/proc/self/exe", error);
  } else if (!file.has_parent_path()) {
    return std::nullopt;  // the system's own image, which has no file
  } else {
    file = std::filesystem::absolute(file, error);
  }
  if (error) return std::nullopt;
  return FromNativePath(file.native());
}

HMODULE ModuleOf(const void* address) {
  Dl_info info{};
  link_map* map = nullptr;
  if (dladdr1(address, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) == 0 || map == nullptr) {
    return nullptr;
  }
  // The program itself has no name there.
  void* module = dlopen(*map->l_name != '\0' ? map->l_name : nullptr, RTLD_NOW | RTLD_NOLOAD);
  if (module != nullptr) dlclose(module);
  return reinterpret_cast<HMODULE>(module);
}

const void* ModuleImage(HMODULE module) {
  // A handle is the loader's own entry for a module; one that has been freed isn't touched.
  for (const link_map* map = _r_debug.r_map; module != nullptr && map != nullptr; map = map->l_next) {
    if (map == reinterpret_cast<const link_map*>(module)) return ImageOf(map->l_ld);
  }
  return nullptr;
}

const void* ImageOf(const void* address) {
  Dl_info info{};
  return dladdr(address, &info) != 0 ? info.dli_fbase : nullptr;
}

}  // namespace platform
