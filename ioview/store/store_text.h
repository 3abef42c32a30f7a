// The texts of the store files: UTF-16 as hosts and components pass it, in JSON's UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace ioview {

// Every text comes back as it was. UTF-8 has no lone surrogates, which stand for bytes that the code page
// doesn't know: such a unit, and a zero, is written as a zero and its four hexadecimal digits.
std::string StoredText(std::u16string_view text);
// Reads UTF-8 and takes those marks back; a zero without four digits behind it stands for itself, and a byte
// that isn't UTF-8 becomes U+FFFD.
std::u16string TextFromStore(std::string_view stored);

}  // namespace ioview
