// Pictures of windows, for documents and tests.
#pragma once

#include <string>

namespace platform {

class CWnd;

// Draws the window, and those inside of it that show, into a PNG file: as its widgets show it, or, on a
// display without pictures, as the windows draw themselves. Needs a QApplication. False when the window is
// empty or the file can't be written.
bool SavePicture(CWnd& window, const std::string& native_path);

}  // namespace platform
