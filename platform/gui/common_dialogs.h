// The system's own dialogs, and dragging out. Stands in for the common dialogs and the drag and drop of OLE.
//
// Each runs as a modal thing: what is behind it gets no input, and the focus comes back at its end.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/gui/display.h"

namespace platform {

// The drive path that was chosen, or nothing when it was cancelled.
std::optional<std::string> RunFileDialog(const FileDialogRequest& request);
// Null when it was cancelled, or the printer can't be had.
std::unique_ptr<Printer> RunPrintDialog();
// Offers `text` to whatever the user drops it on; what became of it. The focus stays where it is.
DragEffect RunDrag(CWnd& source, const std::string& text, DragSource& drag);

// Shows that something takes its time, until the scope's end.
class WaitCursor {
 public:
  WaitCursor();
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor();
};

}  // namespace platform
