// What every service of this host has in common.
#pragma once

#include <string_view>

#include "host/ids.h"
#include "host/unknown.h"
#include "platform/base/bstr.h"

namespace ioview {

// Implements the three operations that every interface begins with: the object answers as IUnknown and as
// `Interface`, and isn't counted. It must live until the component has disconnected.
template <typename Interface, const platform::GUID& id>
class Service : public Interface {
 public:
  Service() = default;
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

  platform::Status QueryInterface(const platform::GUID* iid, void** out) override {
    *out = nullptr;
    if (*iid == id || *iid == pvw::IID_IUnknown) *out = static_cast<Interface*>(this);
    return *out != nullptr ? platform::S_OK : platform::E_NOINTERFACE;
  }
  std::uint32_t AddRef() final { return 1; }
  std::uint32_t Release() final { return 0; }

 protected:
  ~Service() = default;
};

// Answers with a text in the ANSI code page, which the caller frees.
inline platform::Status GiveText(std::string_view text, platform::BSTR* out) {
  *out = platform::NewBstr(text);
  return platform::S_OK;
}

}  // namespace ioview
