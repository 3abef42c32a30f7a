#include "ioview/desktop/key_filter.h"

#include <QtGui/qevent.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qlineedit.h>

#include <optional>
#include <utility>

#include "platform/gui/window.h"
#include "platform/qt/convert.h"
#include "platform/qt/guard.h"

namespace ioview {

namespace {

// Menus and dialogs keep their keys, and so does whatever takes text.
bool KeepsItsKeys() {
  if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr) {
    return true;
  }
  if (dynamic_cast<const QLineEdit*>(QApplication::focusWidget()) != nullptr) return true;
  const platform::CWnd* const focus = platform::CWnd::FromHandle(platform::GetFocus());
  return focus != nullptr && (focus->GetKind() == platform::WindowKind::Edit ||
                              focus->GetKind() == platform::WindowKind::ComboBox);
}

}  // namespace

KeyFilter::KeyFilter(const HostUi& ui, Run run) : ui_(ui), run_(std::move(run)) {
  qApp->installEventFilter(this);
}

bool KeyFilter::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !object->isWidgetType() || KeepsItsKeys()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  bool taken = false;
  platform::qt::Guarded([&] {
    const platform::HWND focus = platform::GetFocus();
    platform::MSG msg{focus, platform::WM_KEYDOWN, platform::qt::KeyOf(key)};
    msg.modifiers = platform::qt::ModifiersOf(key.modifiers());
    if (const std::optional<HostUi::KeyCommand> command = ui_.CommandOfKey(focus, msg)) {
      taken = true;
      run_(*command);
    }
  });
  return taken;
}

}  // namespace ioview
