// Windows: objects with parent, owner, id, text, rectangle, style and messages, whether or not a display
// shows them. Stands in for the class library's window class.
//
// The window's state is the truth; a display's peer, if there is one, reads it from here. A handle is slot
// and generation and finds nothing once its window is gone. The object outlives its window: a handler may
// destroy any window, its own too, so after a call that can do so it asks Exists() or works by handle.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/gui/message_table.h"
#include "platform/gui/types.h"

namespace platform {

class CDC;
class CFont;
class Peer;
enum class Part;

// What a display makes of a window.
enum class WindowKind { Plain, Grid, Dialog, Edit, Button, CheckBox, ComboBox, Static, Progress };

struct CreateParams {
  UINT style = WS_CHILD | WS_VISIBLE;
  UINT ex_style = 0;
  RECT rect = {};  // in the parent's client coordinates
  HWND parent = 0;
  UINT id = 0;
  std::string text = {};
  HWND owner = 0;
};

class CWnd {
 public:
  CWnd();
  CWnd(const CWnd&) = delete;
  CWnd& operator=(const CWnd&) = delete;
  // Destroys the window if it is still there. By then the derived class's WM_DESTROY handler can't run any
  // more, so whoever owns the object destroys the window first; debug builds assert it.
  virtual ~CWnd();

  static const MessageTable kMessages;

  // Lifetime ---------------------------------------------------------------------------------------------
  // Makes the window and sends it WM_CREATE. False when it exists already, the parent is gone, or WM_CREATE
  // gave -1; nothing is left then.
  bool Create(const CreateParams& params);
  // Sends WM_DESTROY to this window, then destroys the children in order. Does nothing for one that is gone.
  void DestroyWindow();
  bool Exists() const { return m_handle != 0; }
  HWND GetHandle() const { return m_handle; }
  static CWnd* FromHandle(HWND handle);
  // Takes over the window of a child control: state, handle and peer move to this object, which has none of
  // its own; the object that had it is left without a window. False when there is no such child, or it is of
  // another kind.
  bool SubclassDlgItem(UINT id, CWnd& parent);

  // State ------------------------------------------------------------------------------------------------
  virtual WindowKind GetKind() const { return WindowKind::Plain; }
  CWnd* GetParent() const { return m_parent; }
  HWND GetOwner() const { return m_owner; }
  void SetOwner(HWND owner) { m_owner = owner; }
  UINT GetId() const { return m_id; }
  UINT GetStyle() const { return m_style; }
  UINT GetExStyle() const { return m_ex_style; }
  const std::string& GetText() const { return m_text; }
  virtual void SetText(std::string_view text);
  // Within the parent; the client area is (0, 0) to the size.
  const RECT& GetRect() const { return m_rect; }
  RECT GetClientRect() const { return {0, 0, m_rect.Width(), m_rect.Height()}; }
  // Sends WM_SIZE when the size changes.
  void MoveWindow(const RECT& rect);
  bool IsVisible() const { return (m_style & WS_VISIBLE) != 0; }  // by its own style alone
  // Hidden or disabled, it passes the focus to the nearest parent that can have it.
  void ShowWindow(bool show);
  bool IsEnabled() const { return (m_style & WS_DISABLED) == 0; }
  void EnableWindow(bool enable);
  // All of the window needs painting.
  void Invalidate();
  // In order of creation.
  const std::vector<CWnd*>& GetChildren() const { return m_children; }
  CWnd* GetDlgItem(UINT id) const;
  CWnd* GetTopLevelParent();

  // Messages ---------------------------------------------------------------------------------------------
  // 0 for a window that is gone.
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  // What the window does with a message: its table, else DefWindowProc.
  virtual LRESULT WindowProc(const MSG& msg);
  // A look at an input message before its window gets it, asked from that window up to its top level. True:
  // handled.
  virtual bool PreTranslateMessage(const MSG& msg);
  // Runs the command's handler; false when this window has none.
  virtual bool RouteCommand(UINT id);
  // Asks the update handler, if there is one; false when the window has no handler for the command.
  bool UpdateCommand(CCmdUI& ui);
  // Whether the table has a handler for the command.
  bool HandlesCommand(UINT id) const;
  // Sends the parent WM_NOTIFY, or WM_COMMAND with the code. The result is the parent's. A code that the
  // table has a reflected row for goes there instead.
  LRESULT NotifyParent(NMHDR& header);
  void NotifyParentCommand(UINT code);

  // Display ----------------------------------------------------------------------------------------------
  Peer* GetPeer() const { return m_peer; }
  void UpdatePeer(Part part);
  // The host laid the widget out, or deleted the widget that holds it.
  void PeerMoved(const RECT& rect);
  void PeerGone();
  // Draws the window; the default sends WM_ERASEBKGND and WM_PAINT, and fills nothing by itself.
  virtual void Paint(CDC& dc, const RECT& clip);

 protected:
  virtual const MessageTable& GetMessageTable() const { return kMessages; }
  // The layer's own handling of a message.
  virtual LRESULT DefWindowProc(const MSG& msg);
  // The widget's handling of the input message; false when it has none, and for a message that no user made.
  bool PeerDefault(const MSG& msg);
  // A subclass takes what the class of `from` adds to a window; the base's state has moved already.
  virtual void TakeStateFrom(CWnd& from);
  // The text alone, without a word to anybody.
  void StoreText(std::string text) { m_text = std::move(text); }
  // From a handler: the handling by the tables of the bases of the class whose table is given, else
  // DefWindowProc.
  LRESULT Default(const MSG& msg, const MessageTable& own);
  // The window is gone, the object isn't. The last call on it, so an object may delete itself here.
  virtual void PostNcDestroy() {}

 private:
  LRESULT HandleByTable(const MSG& msg, const MessageTable* table);
  LRESULT OnCommandMessage(const MSG& msg);

  HWND m_handle = 0;
  bool m_destroying = false;
  CWnd* m_parent = nullptr;
  HWND m_owner = 0;
  UINT m_id = 0;
  UINT m_style = 0;
  UINT m_ex_style = 0;
  RECT m_rect;
  std::string m_text;
  std::vector<CWnd*> m_children;
  Peer* m_peer = nullptr;
};

bool IsWindow(HWND handle);
// From any thread; from another than the user interface's it runs there while the caller waits.
LRESULT SendMessage(HWND handle, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
// Comes back to the window from the message loop; dropped when the window is gone by then.
void PostMessage(HWND handle, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// Moves the focus: tells the peer, then WM_KILLFOCUS, then WM_SETFOCUS unless a handler moved it on. To a
// window behind a modal one it is remembered, and done when that one is gone. 0 takes it away.
void SetFocus(HWND handle);
HWND GetFocus();

void SetTimer(HWND handle, UINT id, UINT milliseconds);
void KillTimer(HWND handle, UINT id);

// Whether the key is down in the input message that is being handled: Shift, Control, Alt, or the message's
// own.
bool IsKeyDown(UINT key);
// Where the mouse message that is being handled happened, in the client coordinates of `window`; (0, 0) when
// it isn't one.
POINT GetMessagePos(const CWnd& window);

}  // namespace platform
