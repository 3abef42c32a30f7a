// The one seam between windows and what shows them. A display owns event loops, widgets, timers and native
// dialogs, and decides nothing: windows, focus, modal state, input routing and rows belong to the layer.
//
// Rules of the seam
// - A peer pulls: the window says which part changed, the peer reads it from the window. It reports a user's
//   change before anything else sees it; the layer may change it back.
// - Input reaches the window as a message first (gui::Input); default handling hands the very event to the
//   widget (Peer::Default).
// - No widget takes the focus by mouse or Tab; the layer gives it.
// - Each modal thing opens, is logged (`opened`), then takes the focus, then runs.
// - A dialog's end is a flag of the dialog; a loop returns once its flag is set.
// - Widgets are freed later, never inside their own signal.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "platform/gui/graphics.h"
#include "platform/gui/types.h"

namespace platform {

class CWnd;

// Text: a window's own, or a button's picture. Focus: that GetFocus is the window, or no longer. Selection:
// of a text, the entry that is picked, the check mark. Items: a combo box's entries. Position: of a progress
// bar.
enum class Part { Text, Rect, Shown, Enabled, Focus, Selection, Items, Position, Scroll, Paint };

class Peer {
 public:
  explicit Peer(CWnd& owner) : window(&owner) {}
  virtual ~Peer() = default;
  // This part of the window may have changed: read it and show it, without reporting that back.
  virtual void Update(Part part) = 0;
  // The widget's own handling of the input message that is being handled; false: it has none.
  virtual bool Default(const MSG& msg) = 0;
  // The window is gone: hide now, free later.
  virtual void Close() = 0;

  CWnd* window;  // moves when another object takes the window over
};

struct FileDialogRequest {
  bool save = false;
  std::string default_extension = {};  // without a dot; added to a name without one
  std::string filter = {};             // "Text File (*.txt)|*.txt|All Files (*.*)|*.*||"
  std::string directory = {};          // drive path
  std::string name = {};
  bool overwrite_prompt = false;
  bool path_must_exist = false;
};

struct PopupMenuItem {
  std::string text = {};  // empty: a separator
  UINT id = 0;
  bool checked = false;
  bool enabled = true;
  std::vector<PopupMenuItem> items = {};  // of a submenu
};

enum class DragEffect { None, Copy };
// What the source of a drag decides while it runs.
class DragSource {
 public:
  virtual ~DragSource() = default;
  // The drag runs from now on, and the pointer can be changed.
  virtual void Begin() {}
  // The pointer is over something that would take it, or not.
  virtual void Feedback(DragEffect effect) = 0;
  enum class Next { Go, Drop, Cancel };
  virtual Next QueryContinue(bool escape, bool left_down, bool right_down) = 0;
};

class Display {
 public:
  virtual ~Display() = default;

  // Null: no picture. The display owns it, until it frees it after Close.
  virtual Peer* CreatePeer(CWnd& window) = 0;

  // Runs `opened`, then messages until `done`; `modal` is the dialog that runs.
  virtual void RunLoop(CWnd& modal, const std::function<void()>& opened, const bool& done) = 0;
  // Some loop's flag was set: the innermost loop that is done returns.
  virtual void LoopEnded() = 0;
  // From any thread: have gui::RunPending() called soon on the user interface's.
  virtual void Wake() = 0;

  virtual void RunMessageBox(const MessageBoxRequest& request, const std::function<void()>& opened) = 0;
  // A drive path, or nothing when it was cancelled.
  virtual std::optional<std::string> RunFileDialog(const FileDialogRequest& request,
                                                   const std::function<void()>& opened) = 0;
  virtual std::unique_ptr<Printer> RunPrintDialog(const std::function<void()>& opened) = 0;
  // The id that was picked, 0 for none. `at` is in the client coordinates of `owner`.
  virtual UINT RunPopupMenu(CWnd& owner, const std::vector<PopupMenuItem>& items, POINT at,
                            const std::function<void()>& opened) = 0;
  virtual DragEffect RunDrag(CWnd& source, const std::string& text, DragSource& drag) = 0;
  // Lets the user point at something of the window to ask for help on: the question mark.
  virtual void ShowHelp(CWnd& window) = 0;
  // What the pointer looks like from now on until the drag is over.
  virtual void SetDragCursor(const PictureResource& cursor) = 0;

  virtual void StartTimer(HWND window, UINT id, UINT milliseconds) = 0;
  virtual void StopTimer(HWND window, UINT id) = 0;
  virtual UINT DoubleClickTime() = 0;
  virtual SIZE TextExtent(const LOGFONT& font, std::string_view text) = 0;
  virtual COLORREF GetColour(SystemColour colour) = 0;
  virtual void SetWaitCursor(bool on) = 0;
  virtual void Beep() = 0;
};

// The display of the process, not owned; the headless one or Qt's. Set before the first window, taken back
// (null) after the last. Setting one also makes it present message boxes.
void SetDisplay(Display* display);
Display* GetDisplay();

namespace gui {

// What a display calls, all on the user interface's thread.

// Mouse or key; keys go to whoever has the focus. True: somebody ahead of the window took it, it is blocked
// by a modal window, or nobody may act on it. After a WM_KEYDOWN that gave true the display sends no WM_CHAR.
bool Input(MSG msg);
// The user left to, or came back from, something that isn't ours.
void Activate(bool active);
// Posted messages and calls of other threads. True when there were any.
bool RunPending();

// Runs `work` on the user interface's thread and returns when it is done; at once when called there.
void CallUi(const std::function<void()>& work);

// Blocks what is behind a modal thing, from its opening until its end, and gives the focus back. `window` is
// the modal dialog, or 0 for one of the display's own.
class ModalScope {
 public:
  explicit ModalScope(HWND window);
  ModalScope(const ModalScope&) = delete;
  ModalScope& operator=(const ModalScope&) = delete;
  ~ModalScope();

 private:
  HWND m_window;
  std::vector<HWND> m_focus_chain;  // the window that had the focus and its parents
};

// A thread beside the user interface's, at idle priority. Join serves its CallUi while it waits, and so can't
// be called from inside one.
class Worker {
 public:
  Worker();
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;
  ~Worker();  // joins
  void Start(std::function<void()> work);
  void Join();

 private:
  struct State;
  std::unique_ptr<State> m_state;
};

}  // namespace gui

}  // namespace platform
