// Wide strings with a length in front, as they cross host interfaces. Stands in for OLE automation's BSTR.
//
// A BSTR points at UTF-16 text that ends in a zero; its length in bytes stands in the 4 bytes before the
// text. Null equals the empty string everywhere. Whoever receives one from an operation frees it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace platform {

using BSTR = char16_t*;

// A copy of `text`; null when there is no memory.
[[nodiscard]] BSTR SysAllocString(std::u16string_view text);
void SysFreeString(BSTR text);
// Length in 16-bit units; 0 for null.
std::size_t SysStringLen(const char16_t* text);

// Owns one BSTR. Text in the ANSI code page goes in and comes out through platform/base/text.h.
class ScopedBstr {
 public:
  ScopedBstr() = default;
  explicit ScopedBstr(std::u16string_view text) : text_(SysAllocString(text)) {}
  // From text in the ANSI code page.
  explicit ScopedBstr(std::string_view text);
  explicit ScopedBstr(const char* text) : ScopedBstr(std::string_view(text)) {}
  ScopedBstr(const ScopedBstr&) = delete;
  ScopedBstr& operator=(const ScopedBstr&) = delete;
  ~ScopedBstr() { SysFreeString(text_); }

  BSTR Get() const { return text_; }
  // Frees what is held and gives the place for an operation to put its result into.
  BSTR* Receive() {
    SysFreeString(std::exchange(text_, nullptr));
    return &text_;
  }
  BSTR Release() { return std::exchange(text_, nullptr); }
  // The text in the ANSI code page.
  std::string Text() const;

 private:
  BSTR text_ = nullptr;
};

// A BSTR argument as text in the ANSI code page; null gives the empty text.
std::string BstrText(const char16_t* text);
// A new BSTR, for an output, from text in the ANSI code page.
[[nodiscard]] BSTR NewBstr(std::string_view text);

}  // namespace platform
