// What a component's windows need where there is no screen: the display, and the main window that they
// belong to.
#pragma once

#include <functional>
#include <string>

#include "platform/gui/window.h"
#include "platform/headless/headless_display.h"

namespace ioview {

// One at a time. Outlives every instance of the component.
class HeadlessStage {
 public:
  // Nobody answers what opens: it is cancelled. `line` and `failure` as HeadlessDisplay has them.
  explicit HeadlessStage(std::function<void(const std::string& line)> line,
                         std::function<void(const std::string& text)> failure = {});
  HeadlessStage(const HeadlessStage&) = delete;
  HeadlessStage& operator=(const HeadlessStage&) = delete;
  ~HeadlessStage();

  platform::HeadlessDisplay display;

 private:
  platform::CWnd main_;
};

}  // namespace ioview
