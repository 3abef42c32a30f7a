// The display on a screen, by Qt. The program has made its QApplication before, and keeps it until after.
#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/gui/display.h"

class QDrag;
class QEventLoop;
class QTimer;
class QWidget;

namespace platform {

class QtDisplay : public Display {
 public:
  QtDisplay();
  ~QtDisplay() override;

  // Asked for each top-level window that isn't a dialog: the host's widget that the window goes into, into
  // its layout if it has one. The host lays it out from then on. Null: a window of its own.
  void SetContainer(std::function<QWidget*(const CWnd&)> container) { m_container = std::move(container); }
  // The system's own file dialogs, as it is at first, or Qt's.
  void SetNativeDialogs(bool native) { m_native_dialogs = native; }
  // The widget of the window's client area; null without one.
  static QWidget* WidgetOf(const CWnd& window);

  Peer* CreatePeer(CWnd& window) override;
  void RunLoop(CWnd& modal, const std::function<void()>& opened, const bool& done) override;
  void LoopEnded() override;
  void Wake() override;
  void RunMessageBox(const MessageBoxRequest& request, const std::function<void()>& opened) override;
  std::optional<std::string> RunFileDialog(const FileDialogRequest& request,
                                           const std::function<void()>& opened) override;
  std::unique_ptr<Printer> RunPrintDialog(const std::function<void()>& opened) override;
  UINT RunPopupMenu(CWnd& owner, const std::vector<PopupMenuItem>& items, POINT at,
                    const std::function<void()>& opened) override;
  DragEffect RunDrag(CWnd& source, const std::string& text, DragSource& drag) override;
  void ShowHelp(CWnd& window) override;
  void SetDragCursor(const PictureResource& cursor) override;
  void StartTimer(HWND window, UINT id, UINT milliseconds) override;
  void StopTimer(HWND window, UINT id) override;
  UINT DoubleClickTime() override;
  SIZE TextExtent(const LOGFONT& font, std::string_view text) override;
  COLORREF GetColour(SystemColour colour) override;
  void SetWaitCursor(bool on) override;
  void Beep() override;

 private:
  struct Loop {
    QEventLoop* loop;
    const bool* done;
  };
  struct Timer {
    QPointer<QTimer> timer;
    std::uint64_t number = 0;  // tells it from one of the same id that was stopped
    bool waits = false;        // its message is on the way
  };
  using TimerKey = std::pair<HWND, UINT>;

  void RunUntil(const std::function<void()>& opened, const bool& done);
  void OnTimer(TimerKey key, std::uint64_t number);
  void LookAtFocusLater();
  void LookAtFocus() const;

  QObject m_here;  // what comes later comes to it, and not after this has gone
  std::function<QWidget*(const CWnd&)> m_container;
  bool m_native_dialogs = true;
  std::vector<Loop> m_loops;
  std::atomic<bool> m_wakes = false;
  bool m_looks_at_focus = false;
  std::map<TimerKey, Timer> m_timers;
  std::uint64_t m_next_timer = 1;
  QDrag* m_drag = nullptr;
};

}  // namespace platform
