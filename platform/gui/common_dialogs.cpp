#include "platform/gui/common_dialogs.h"

#include "platform/gui/modal.h"

namespace platform {

namespace {

int g_waits = 0;

void TakeFocusAway() {
  modal::TakeFocus(0);
}

}  // namespace

std::optional<std::string> RunFileDialog(const FileDialogRequest& request) {
  Display* display = GetDisplay();
  if (display == nullptr) return std::nullopt;
  const gui::ModalScope scope(0);
  return display->RunFileDialog(request, TakeFocusAway);
}

std::unique_ptr<Printer> RunPrintDialog() {
  Display* display = GetDisplay();
  if (display == nullptr) return nullptr;
  const gui::ModalScope scope(0);
  return display->RunPrintDialog(TakeFocusAway);
}

DragEffect RunDrag(CWnd& source, const std::string& text, DragSource& drag) {
  Display* display = GetDisplay();
  if (display == nullptr) return DragEffect::None;
  const gui::ModalScope scope(0);
  return display->RunDrag(source, text, drag);
}

WaitCursor::WaitCursor() {
  Display* display = GetDisplay();
  if (g_waits++ == 0 && display != nullptr) display->SetWaitCursor(true);
}

WaitCursor::~WaitCursor() {
  Display* display = GetDisplay();
  if (--g_waits == 0 && display != nullptr) display->SetWaitCursor(false);
}

}  // namespace platform
