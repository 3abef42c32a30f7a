// A script as lines of words.
//
// Blanks and tabs separate words. "..." keeps them together, wherever in a word it stands; in it \", \\ and
// \n are a quote, a backslash and a line feed, and a backslash before anything else stands for itself, as it
// does outside of quotes. A line whose first non-blank character is # is a comment. Lines end in LF or CR LF;
// a UTF-8 byte order mark at the start is skipped.
#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ioview {

struct ScriptWord {
  std::string text;
  bool ends_step = false;  // the ";" between two steps of an answer
};

// The words of one line, in the ANSI code page as it is now; none for a comment. With `steps` a ";" outside
// of quotes is a word of its own. Throws ScriptError for a quote that isn't closed.
std::vector<ScriptWord> SplitWords(std::string_view line, bool steps);

struct ScriptLine {
  std::size_t number = 0;  // from 1
  std::vector<ScriptWord> words;
};

// Reads no further than asked for, so that a script may come from a program that waits for the answers.
class ScriptReader {
 public:
  static constexpr std::size_t kLongestLine = std::size_t{16} << 20;  // bytes

  explicit ScriptReader(std::istream& in) : in_(in) {}
  // The next line with words; those of an `answer` are cut into steps. Nothing at the end. Throws ScriptError
  // as SplitWords, for a line longer than kLongestLine, and when reading fails; the line counts as read then.
  std::optional<ScriptLine> Next();
  // Of the line that was read last.
  std::size_t LineNumber() const { return number_; }

 private:
  // False at the end.
  bool ReadLine(std::string& line);

  std::istream& in_;
  std::size_t number_ = 0;
};

}  // namespace ioview
