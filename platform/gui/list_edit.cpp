#include "platform/gui/list_edit.h"

#include "platform/gui/tree_ctrl.h"

namespace platform {

const MessageTable SECListEdit::kMessages{&CWnd::kMessages,
                                          {
                                              OnMessage<&SECListEdit::OnKillFocus>(WM_KILLFOCUS),
                                              OnMessage<&SECListEdit::OnKeyDown>(WM_KEYDOWN),
                                          }};

// The grid is the only one that opens this edit, as its child.
SECTreeCtrl* SECListEdit::Owner() const {
  return static_cast<SECTreeCtrl*>(GetParent());
}

LRESULT SECListEdit::OnKillFocus(const MSG& msg) {
  SECTreeCtrl* owner = Owner();
  if (owner != nullptr && EndsWithFocus()) {
    owner->EndEdit();
    if (!IsWindow(msg.hwnd)) return 0;
  }
  return Default(msg, kMessages);
}

LRESULT SECListEdit::OnKeyDown(const MSG& msg) {
  SECTreeCtrl* owner = Owner();
  if (owner == nullptr || (msg.wParam != VK_RETURN && msg.wParam != VK_ESCAPE))
    return Default(msg, kMessages);
  owner->EndEdit(msg.wParam == VK_RETURN);
  return 0;
}

}  // namespace platform
