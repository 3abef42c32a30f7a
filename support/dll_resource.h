// The resource library beside the component: loaded at connect, and refused unless it says by its exports
// that it is of the right kind and version.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/base/module.h"
#include "platform/base/types.h"

namespace pvw {

// One resource library. The object owns its module handle.
class CDllResource {
 public:
  // `path` is the library's file, as a drive path; nothing is loaded yet.
  explicit CDllResource(std::string file_path);
  CDllResource(const CDllResource&) = delete;
  CDllResource& operator=(const CDllResource&) = delete;
  // Frees the module. Where lookups of resources went to it, they go to the library of the latest instance
  // that is still connected, else to the component alone.
  virtual ~CDllResource();

  // Takes over all that `source` knows. Where it has a module, this object loads the same file for itself.
  virtual void Assign(const CDllResource& source);

  // Each asks the library by the export that its name says and gives 0. A missing export leaves a number 0;
  // it leaves a text as it was, as does an export that refuses. `error` isn't used.
  virtual platform::Status ReadInterfaceVersion(std::string& error);
  virtual platform::Status ReadOrdinalVersion(std::string& error);
  virtual platform::Status ReadProductVersion(std::string& error);
  virtual platform::Status ReadType(std::string& error);

  platform::HMODULE Module() const { return module; }
  const std::string& Path() const { return path; }
  const std::string& ProductVersion() const { return productVersion; }
  const std::string& Type() const { return type; }
  std::uint32_t InterfaceMajor() const { return interfaceMajor; }
  std::uint32_t InterfaceMinor() const { return interfaceMinor; }
  std::uint32_t OrdinalVersion() const { return ordinalVersion; }

  // False when the file isn't there or can't be loaded.
  [[nodiscard]] bool Load();
  // Sends the component's lookups of resources here first, for as long as the object lives and no later one
  // is made current.
  void MakeCurrent();

 private:
  // Takes the object out of the row of current libraries; false when it isn't in it.
  bool LeaveRow();

  platform::HMODULE module = nullptr;
  std::string path;
  std::string productVersion;
  std::string type;
  std::uint32_t interfaceMajor = 0;
  std::uint32_t interfaceMinor = 0;
  std::uint32_t ordinalVersion = 0;
  CDllResource* earlier = nullptr;  // in the row of current libraries, the one made current before
};

// The library at `path`, checked and made current; or null with a message in `error`, the library freed.
std::unique_ptr<CDllResource> LoadResourceLibrary(const std::string& path, std::string& error);

}  // namespace pvw
