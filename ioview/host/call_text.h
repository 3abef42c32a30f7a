// How the call log writes an operation: OPERATION(ARGUMENT, ARGUMENT).
#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "platform/base/bstr.h"
#include "platform/base/guid.h"
#include "platform/base/types.h"

namespace ioview {

// Numbers are decimal.
template <std::integral Number>
std::string ArgumentText(Number number) {
  return std::to_string(number);
}
// A text stands in quotes as it is, but for a line feed, which is \n: a call is one line.
std::string ArgumentText(const char16_t* text);
// An id stands in braces.
std::string ArgumentText(const platform::GUID* id);
// Windows and whatever else a pointer leads to are `*`: their values differ from run to run. No operation
// takes a number as wide as a window.
inline std::string ArgumentText(platform::HWND) {
  return "*";
}
inline std::string ArgumentText(const void*) {
  return "*";
}

template <typename... Arguments>
std::string CallText(std::string_view operation, const Arguments&... arguments) {
  std::string text(operation);
  text += '(';
  std::string_view separator;
  [[maybe_unused]] const auto add = [&](const std::string& argument) {
    text += separator;
    text += argument;
    separator = ", ";
  };
  (add(ArgumentText(arguments)), ...);
  return text += ')';
}

}  // namespace ioview
