// What every service of this host has in common.
#pragma once

#include <string_view>

#include "host/ids.h"
#include "host/unknown.h"
#include "ioview/host/call_log.h"
#include "ioview/host/call_text.h"
#include "ioview/host/service_table.h"
#include "platform/base/bstr.h"

namespace ioview {

// Implements the three operations that every interface begins with: the object answers as IUnknown and as
// `Interface`, and isn't counted. It must live until the component has disconnected.
template <typename Interface, const platform::GUID& id>
class Service : public Interface {
 public:
  using Face = Interface;
  static constexpr const platform::GUID& kId = id;

  Service() = default;
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

  // Writes each operation to `calls`, which must outlive the service, while it is on.
  void LogTo(CallLog& calls) { calls_ = &calls; }
  // From now on every operation gives E_FAIL and does nothing.
  void FailAll() { fails_ = true; }

  platform::Status QueryInterface(const platform::GUID* iid, void** out) override {
    *out = nullptr;
    if (!Enter("QueryInterface", iid)) return platform::E_FAIL;
    if (*iid == id || *iid == pvw::IID_IUnknown) *out = static_cast<Interface*>(this);
    return *out != nullptr ? platform::S_OK : platform::E_NOINTERFACE;
  }
  std::uint32_t AddRef() final { return 1; }
  std::uint32_t Release() final { return 0; }

 protected:
  ~Service() = default;

  // Begins every operation with what the component gave it, outputs left out. False when the operation has
  // to fail; it returns E_FAIL then and touches nothing.
  template <typename... Arguments>
  bool Enter(std::string_view operation, const Arguments&... arguments) const {
    if (calls_ != nullptr && calls_->IsOn()) calls_->Add(kName, CallText(operation, arguments...));
    return !fails_;
  }

 private:
  static constexpr std::string_view kName = NameOfInterface(id);

  CallLog* calls_ = nullptr;
  bool fails_ = false;
};

// A service that can also be given as one whose every operation fails. The two are objects of one class over
// the same state, so that whoever holds the first isn't touched when the second is given.
template <typename Real>
class WithFailing final : public Real {
 public:
  template <typename... State>
  explicit WithFailing(State&... state) : Real(state...), failing(state...) {
    failing.FailAll();
  }

  Real failing;
};

// A text argument as it came; null gives the empty text.
inline std::u16string_view WideText(const char16_t* text) {
  return {text, platform::SysStringLen(text)};
}

// Answers with a text in the ANSI code page, which the caller frees.
inline platform::Status GiveText(std::string_view text, platform::BSTR* out) {
  *out = platform::NewBstr(text);
  return platform::S_OK;
}

}  // namespace ioview
