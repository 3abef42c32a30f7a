// The arguments of one command, taken one after the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "ioview/script/script_error.h"
#include "ioview/script/script_reader.h"
#include "platform/base/types.h"

namespace ioview {

// Everything here throws WrongArgument: the command's form is added to the text where that is known.
class WrongArgument : public ScriptError {
 public:
  using ScriptError::ScriptError;
};

class Arguments {
 public:
  // Must not outlive the words.
  explicit Arguments(std::span<const ScriptWord> words) : words_(words) {}

  std::size_t Left() const { return words_.size(); }
  bool HasMore() const { return !words_.empty(); }
  // The next one, without taking it; empty at the end.
  std::string_view Peek() const { return HasMore() ? std::string_view(words_.front().text) : ""; }
  // Nothing may be left.
  void End() const;

  const std::string& Text();
  const ScriptWord& Word();
  // Decimal, of 32 bits.
  std::uint32_t Number();
  std::int32_t SignedNumber();
  // Hexadecimal, with or without `0x`.
  std::uint32_t Address();
  std::uint8_t Byte();
  platform::Status Status();

  // One of some words, by what it stands for.
  template <typename Value>
  Value Choice(std::initializer_list<std::pair<std::string_view, Value>> choices) {
    const std::string& word = Text();
    std::string names;
    for (const auto& [name, value] : choices) {
      if (name == word) return value;
      names += (names.empty() ? "" : ", ") + std::string(name);
    }
    NotOneOf(word, names);
  }

 private:
  [[noreturn]] static void NotOneOf(const std::string& word, const std::string& names);

  std::span<const ScriptWord> words_;
};

// A decimal number of up to 32 bits, with a sign where it is negative; nothing for another text.
std::optional<std::uint32_t> ParseNumber(std::string_view word);
std::optional<std::int32_t> ParseSignedNumber(std::string_view word);

}  // namespace ioview
