// The host's root object, from which every other service comes, and the registrar of libraries.
#pragma once

#include "host/events.h"
#include "host/unknown.h"
#include "platform/base/bstr.h"

namespace pvw {

// Given to IQComponent::Connect. It has no id of its own.
class IQComponentHost : public IQUnknown {
 public:
  virtual platform::Status FireEvent(const QEventRecord* event) = 0;
  // Gives a service. On failure `*out` stays as it was: set it first. A success may leave null.
  virtual platform::Status GetService(const platform::GUID* id, void** out) = 0;
  // The host calls `client`, the face with that id, from now on.
  virtual platform::Status AddClient(const platform::GUID* id, void* client) = 0;
  // Offers `server` to other components.
  virtual platform::Status AddServer(const platform::GUID* id, void* server) = 0;
  virtual platform::Status RemoveClient(const platform::GUID* id, void* client) = 0;
  virtual platform::Status RemoveServer(const platform::GUID* id, void* server) = 0;

 protected:
  ~IQComponentHost() = default;
};

// Given to LibraryRegister2.
class IQLibraryRegistrar : public IQUnknown {
 public:
  virtual platform::Status RegisterLibrary(platform::BSTR name, std::uint32_t kind, std::uint32_t major,
                                           std::uint32_t minor, const platform::GUID* class_id) = 0;

 protected:
  ~IQLibraryRegistrar() = default;
};

}  // namespace pvw
