// What the services of FakeHost have in common. Tests speak to FakeHost; fakes of further interfaces build on
// these.
#pragma once

#include <concepts>
#include <cstdio>
#include <type_traits>

#include "platform/base/bstr.h"
#include "tests/support/fake_host.h"

namespace pvw::test::fakes {

using platform::BSTR;
using platform::BstrText;
using platform::E_FAIL;
using platform::GUID;
using platform::HMODULE;
using platform::HWND;
using platform::S_OK;
using platform::Status;
using platform::VARIANT;
using u32 = std::uint32_t;

inline std::string Hex(std::uint64_t value, int digits) {
  char text[17];
  std::snprintf(text, sizeof text, "%0*llX", digits, static_cast<unsigned long long>(value));
  return text;
}

inline std::string Word(const std::string& text) {
  return text;
}
inline std::string Word(const char16_t* text) {
  return BstrText(text);
}
inline std::string Word(std::integral auto number) {
  return std::to_string(number);
}

// The parts as text, with one blank between them.
template <typename... Parts>
std::string Words(const Parts&... parts) {
  std::string text;
  ((text += (text.empty() ? "" : " ") + Word(parts)), ...);
  return text;
}

// What the host gives for an id: the face of an object that the offer keeps.
struct Offered {
  GUID id;
  const char* name;
  std::shared_ptr<void> service;
};

template <typename Interface>
Offered Offer(const std::shared_ptr<Interface>& face, const GUID& id, const char* name) {
  return {id, name, face};
}

// Each service that a component asks for; those of the user interface are FakeUi's.
std::vector<Offered> OfferServices(FakeHost& host);
std::vector<Offered> OfferUiServices(FakeHost& host);

// One object behind several interfaces, whose operations work on its host.
template <typename... Interfaces>
class Services : public Interfaces... {
 public:
  explicit Services(FakeHost& host) : host_(host) {}
  Status QueryInterface(const GUID*, void** out) override {
    *out = nullptr;
    return platform::E_NOINTERFACE;
  }
  u32 AddRef() override { return 1; }
  u32 Release() override { return 0; }

 protected:
  // Acts unless the host is to fail the operation. An act that gives false is a failure.
  template <typename Act>
  Status Do(std::string_view operation, const std::string& arguments, Act act) {
    const Status status = host_.Begin(operation, arguments);
    if (status != S_OK) return status;
    if constexpr (std::is_void_v<decltype(act())>) {
      act();
      return S_OK;
    } else {
      return act() ? S_OK : E_FAIL;
    }
  }

  FakeHost& host_;
};

}  // namespace pvw::test::fakes
