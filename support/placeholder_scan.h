// The one forward walk over a text with placeholders.
#pragma once

#include <cstddef>
#include <string_view>

namespace pvw {

// Finds `$(NAME)` after `$(NAME)`, each time as if what the caller put in the place of those before stood in
// the text. A `$(` right behind another `$` is none, and `$()` at the very end is none. The name ends at the
// first `)`, may be empty and may hold a further `$(`. A `$(` that nothing closes ends the walk.
class CPlaceholderScan {
 public:
  // `text` must outlive the scan.
  explicit CPlaceholderScan(std::string_view text) : text_(text) {}

  // Moves to the next placeholder; false when there is none.
  bool Next();
  // After Next: the plain text in front of the placeholder, back to the one before, and its name.
  std::string_view Plain() const { return text_.substr(plain_, hit_ - plain_); }
  std::string_view Name() const { return text_.substr(hit_ + 2, end_ - hit_ - 3); }
  // What now stands in its place; empty when it was taken out. Call it between two calls of Next.
  void Replace(std::string_view value);
  // What stands behind the last placeholder found.
  std::string_view Rest() const { return text_.substr(end_); }

 private:
  std::string_view text_;
  std::size_t plain_ = 0;       // where the plain text before the hit begins
  std::size_t hit_ = 0;         // the `$` of the placeholder
  std::size_t end_ = 0;         // behind its `)`, where the walk goes on
  bool dollar_before_ = false;  // whether a `$` stands right before end_
};

}  // namespace pvw
