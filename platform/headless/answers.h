// What the user of a display without a screen does at each modal thing.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace platform {

class CDialog;

// One thing done in a dialog. With a condition it waits: threads and then time go on until that holds.
struct DialogStep {
  template <typename Act>
  DialogStep(Act step) : act(std::move(step)) {}  // NOLINT: a list of steps is a list of lambdas
  DialogStep(std::function<bool(CDialog&)> condition, std::function<void(CDialog&)> step)
      : ready(std::move(condition)), act(std::move(step)) {}

  std::function<bool(CDialog&)> ready;  // empty: at once
  std::function<void(CDialog&)> act;
};

// Steps of an ordinary dialog, or of one that runs by itself, which takes no other answer.
struct DialogAnswer {
  std::vector<DialogStep> steps;
  bool runs_by_itself = false;
};
// Anything but a dialog that runs by itself, and without being told about.
struct CancelAnswer {};
struct FileAnswer {
  std::string path;  // drive path
};
// The pages go to a file as text; see TextPrinter.
struct PrintAnswer {
  std::string native_path;
};
// Counts every line of the menu from 0: separators, submenus and their entries too.
struct MenuAnswer {
  std::size_t line = 0;
};
// Dropped where text is taken, ended by Escape or by the right button, dropped where it isn't taken.
enum class DragAnswer { Drop, Escape, RightButton, Nowhere };

using Answer = std::variant<DialogAnswer, CancelAnswer, FileAnswer, PrintAnswer, MenuAnswer, DragAnswer>;

}  // namespace platform
