#include "platform/gui/display.h"

#include <atomic>
#include <utility>

#include "platform/gui/focus.h"
#include "platform/gui/input.h"
#include "platform/gui/modal.h"
#include "platform/gui/post_queue.h"

namespace platform {

namespace {

std::atomic<Display*> g_display = nullptr;
MessagePresenter* g_presenter_before = nullptr;

// Shows message boxes on the display, as the modal things that they are.
class BoxPresenter final : public MessagePresenter {
 public:
  void Show(const MessageBoxRequest& request) override {
    Display* display = GetDisplay();
    if (display == nullptr) return;
    const gui::ModalScope scope(0);
    display->RunMessageBox(request, [] { modal::TakeFocus(0); });
  }
  void Beep() override {
    if (Display* display = GetDisplay()) display->Beep();
  }
};
BoxPresenter g_presenter;

}  // namespace

void SetDisplay(Display* display) {
  Display* before = g_display.exchange(display);
  if (display != nullptr && before == nullptr) {
    g_presenter_before = SetMessagePresenter(&g_presenter);
  } else if (display == nullptr && before != nullptr) {
    SetMessagePresenter(std::exchange(g_presenter_before, nullptr));
  }
  post_queue::ClaimUiThread();
  focus::Reset();
  input::Reset();
}

Display* GetDisplay() {
  return g_display;
}

COLORREF GetSysColour(SystemColour colour) {
  if (Display* display = GetDisplay()) return display->GetColour(colour);
  return colour == SystemColour::WindowText || colour == SystemColour::Highlight ? 0x000000 : 0xFFFFFF;
}

}  // namespace platform
