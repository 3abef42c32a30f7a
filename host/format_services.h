// Services that turn numbers, addresses and statuses into text, and the command recorder.
//
// A text that an operation gives back belongs to the caller, also when the operation fails.
#pragma once

#include "host/unknown.h"
#include "platform/base/bstr.h"

namespace pvw {

class IQErrorService : public IQUnknown {
 public:
  virtual platform::Status GetErrorText(platform::Status status, platform::BSTR* text) = 0;

 protected:
  ~IQErrorService() = default;
};

// The same one operation, offered by objects that can explain their own statuses.
class IQErrorReporter : public IQUnknown {
 public:
  virtual platform::Status GetErrorText(platform::Status status, platform::BSTR* text) = 0;

 protected:
  ~IQErrorReporter() = default;
};

// Each text begins with a two-character prefix for its radix, which is 16 in every call of the component.
class IQNumberFormat : public IQUnknown {
 public:
  virtual platform::Status ParseValue(platform::BSTR text, std::uint64_t* value) = 0;
  virtual platform::Status FormatByte(std::uint8_t value, std::uint32_t radix, platform::BSTR* text) = 0;
  virtual platform::Status FormatWord(std::uint16_t value, std::uint32_t radix, platform::BSTR* text) = 0;
  virtual platform::Status FormatLong(std::uint32_t value, std::uint32_t radix, platform::BSTR* text) = 0;
  virtual platform::Status FormatQuad(std::uint32_t low, std::uint32_t high, std::uint32_t radix,
                                      platform::BSTR* text) = 0;

 protected:
  ~IQNumberFormat() = default;
};

class IQAddressFormat : public IQUnknown {
 public:
  // The component always gives 0, 0xFFFFFFFF and 0 between the address and the result.
  virtual platform::Status FormatAddress(std::uint32_t address, std::uint32_t space, std::uint32_t mask,
                                         std::uint32_t flags, platform::BSTR* text) = 0;
  // Two readers of an expression, the second tried when the first fails. `radix` is 16, 10, 8, 2, or 0 for
  // any other.
  virtual platform::Status EvaluateExpression(platform::BSTR text, std::uint32_t radix,
                                              std::int64_t* value) = 0;
  virtual platform::Status EvaluateExpression2(platform::BSTR text, std::uint32_t radix,
                                               std::int64_t* value) = 0;

 protected:
  ~IQAddressFormat() = default;
};

class IQCommandRecorder : public IQUnknown {
 public:
  // Exactly the status 0 means yes.
  virtual platform::Status IsActive() = 0;
  virtual platform::Status AddCommand(platform::BSTR text) = 0;

 protected:
  ~IQCommandRecorder() = default;
};

}  // namespace pvw
