#include "platform/gui/button.h"

#include "platform/gui/display.h"

namespace platform {

void CButton::SetImage(const CImageList* image) {
  m_image = image;
  UpdatePeer(Part::Text);
}

void CButton::Clicked() {
  if (IsEnabled()) NotifyParentCommand(BN_CLICKED);
}

LRESULT CButton::DefWindowProc(const MSG& msg) {
  switch (msg.message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      const HWND self = msg.hwnd;
      SetFocus(self);
      if (IsWindow(self)) PeerDefault(msg);
      return 0;
    }
    case WM_LBUTTONUP:
      // No release comes here without its press.
      if (!PeerDefault(msg) && GetClientRect().Contains(ParamPoint(msg.lParam))) Clicked();
      return 0;
    case WM_KEYUP:
      if (!PeerDefault(msg) && msg.wParam == VK_SPACE) Clicked();
      return 0;
    default:
      return CWnd::DefWindowProc(msg);
  }
}

void CButton::TakeStateFrom(CWnd& from) {
  m_image = static_cast<CButton&>(from).m_image;
}

void CCheckBox::SetCheck(bool on) {
  m_checked = on;
  UpdatePeer(Part::Selection);
}

void CCheckBox::Clicked() {
  if (!IsEnabled()) return;
  SetCheck(!m_checked);
  NotifyParentCommand(BN_CLICKED);
}

void CCheckBox::TakeStateFrom(CWnd& from) {
  CButton::TakeStateFrom(from);
  m_checked = static_cast<CCheckBox&>(from).m_checked;
}

}  // namespace platform
