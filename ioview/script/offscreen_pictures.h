// Pictures of windows in a program that shows none.
#pragma once

#include <memory>
#include <string>

#include "platform/gui/window.h"

namespace ioview {

class OffscreenPictures {
 public:
  OffscreenPictures();
  OffscreenPictures(const OffscreenPictures&) = delete;
  OffscreenPictures& operator=(const OffscreenPictures&) = delete;
  ~OffscreenPictures();

  // Draws the window into a PNG file; false when it is empty or the file can't be written. The first picture
  // starts what draws them, which needs no screen.
  bool Save(platform::CWnd& window, const std::string& native_path);

 private:
  struct Drawing;
  std::unique_ptr<Drawing> drawing_;
};

}  // namespace ioview
