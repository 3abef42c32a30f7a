#include "ioview/script/arguments.h"

#include <limits>

#include "ioview/number_text.h"
#include "ioview/program_error.h"

namespace ioview {

namespace {

[[noreturn]] void Wrong(const std::string& word, const char* what) {
  throw WrongArgument(Quoted(word) + " is not " + what);
}

}  // namespace

std::optional<std::uint32_t> ParseNumber(std::string_view word) {
  const std::optional<std::uint64_t> value = ParseDigits(word, 10);
  if (!value || *value > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  return static_cast<std::uint32_t>(*value);
}

std::optional<std::int32_t> ParseSignedNumber(std::string_view word) {
  const bool negative = word.starts_with('-');
  if (negative) word.remove_prefix(1);
  const std::optional<std::uint32_t> size = ParseNumber(word);
  if (!size) return std::nullopt;
  const std::int64_t value = negative ? -std::int64_t{*size} : std::int64_t{*size};
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::int32_t>(value);
}

void Arguments::End() const {
  if (HasMore()) throw WrongArgument(Quoted(words_.front().text) + " is one argument too many");
}

const std::string& Arguments::Text() {
  return Word().text;
}

const ScriptWord& Arguments::Word() {
  if (!HasMore()) throw WrongArgument("an argument is missing");
  const ScriptWord& word = words_.front();
  words_ = words_.subspan(1);
  return word;
}

std::uint32_t Arguments::Number() {
  const std::string& word = Text();
  const std::optional<std::uint32_t> value = ParseNumber(word);
  if (!value) Wrong(word, "a decimal number");
  return *value;
}

std::int32_t Arguments::SignedNumber() {
  const std::string& word = Text();
  const std::optional<std::int32_t> value = ParseSignedNumber(word);
  if (!value) Wrong(word, "a decimal number");
  return *value;
}

std::uint32_t Arguments::Address() {
  const std::string& word = Text();
  const std::optional<std::uint32_t> value = ParseHexWord(word, 8);
  if (!value) Wrong(word, "an address of up to eight hexadecimal digits");
  return *value;
}

std::uint8_t Arguments::Byte() {
  const std::string& word = Text();
  const std::optional<std::uint32_t> value = ParseHexWord(word, 2);
  if (!value) Wrong(word, "a byte of one or two hexadecimal digits");
  return static_cast<std::uint8_t>(*value);
}

platform::Status Arguments::Status() {
  const std::string& word = Text();
  const std::optional<std::uint32_t> value = ParseHexWord(word, 8);
  if (!value) Wrong(word, "a status of up to eight hexadecimal digits");
  return static_cast<platform::Status>(*value);
}

void Arguments::NotOneOf(const std::string& word, const std::string& names) {
  throw WrongArgument(Quoted(word) + " is not one of " + names);
}

}  // namespace ioview
