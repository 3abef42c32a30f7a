#include "platform/base/message_box.h"

#include <utility>

namespace platform {

namespace {

MessagePresenter* g_presenter = nullptr;

}  // namespace

MessagePresenter* SetMessagePresenter(MessagePresenter* presenter) {
  return std::exchange(g_presenter, presenter);
}

void MessageBox(std::string text, std::uint32_t type, std::string caption) {
  if (g_presenter != nullptr) g_presenter->Show({std::move(text), std::move(caption), type});
}

void MessageBeep() {
  if (g_presenter != nullptr) g_presenter->Beep();
}

}  // namespace platform
