#include "ioview/script/script_reader.h"

#include <utility>

#include "ioview/script/script_error.h"
#include "platform/base/text.h"

namespace ioview {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kAnswer = "answer";

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

// What stands behind a backslash in quotes; 0 for a backslash that stands for itself.
char Escaped(std::string_view rest) {
  if (rest.empty()) return 0;
  switch (rest.front()) {
    case '"':
    case '\\':
      return rest.front();
    case 'n':
      return '\n';
    default:
      return 0;
  }
}

}  // namespace

std::vector<ScriptWord> SplitWords(std::string_view line, bool steps) {
  std::vector<ScriptWord> words;
  std::string word;
  bool in_word = false;
  bool in_quotes = false;
  const auto end_word = [&] {
    if (in_word) words.push_back({std::exchange(word, {}), false});
    in_word = false;
  };
  for (std::size_t at = 0; at < line.size();) {
    const std::size_t bytes = platform::CharBytes(line, at);
    const std::string_view character = line.substr(at, bytes);
    const char c = bytes == 1 ? character.front() : 0;
    at += bytes;
    if (!in_quotes && IsBlank(c)) {
      end_word();
    } else if (!in_quotes && c == '#' && !in_word && words.empty()) {
      return {};
    } else if (!in_quotes && c == ';' && steps) {
      end_word();
      words.push_back({";", true});
    } else if (c == '"') {
      in_quotes = !in_quotes;
      in_word = true;
    } else if (const char escaped = in_quotes && c == '\\' ? Escaped(line.substr(at)) : 0; escaped != 0) {
      word += escaped;
      ++at;
    } else {
      word += character;
      in_word = true;
    }
  }
  if (in_quotes) throw ScriptError("a quote isn't closed");
  end_word();
  return words;
}

bool ScriptReader::ReadLine(std::string& line) {
  line.clear();
  bool any = false;
  for (char c = 0; in_.get(c);) {
    if (!any) ++number_;
    any = true;
    if (c == '\n') return true;
    if (line.size() == kLongestLine) throw ScriptError("the line is longer than 16 MiB");
    line += c;
  }
  if (in_.bad()) throw ScriptError(kLostInput);
  return any;
}

std::optional<ScriptLine> ScriptReader::Next() {
  std::string text;
  while (ReadLine(text)) {
    std::string_view line = text;
    if (number_ == 1 && line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
    if (line.ends_with('\r')) line.remove_suffix(1);
    std::vector<ScriptWord> words = SplitWords(line, false);
    if (words.empty()) continue;
    if (words.front().text == kAnswer) words = SplitWords(line, true);
    return ScriptLine{number_, std::move(words)};
  }
  return std::nullopt;
}

}  // namespace ioview
