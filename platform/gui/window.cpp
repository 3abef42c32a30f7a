#include "platform/gui/window.h"

#include <algorithm>
#include <cassert>

#include "platform/gui/display.h"
#include "platform/gui/focus.h"
#include "platform/gui/post_queue.h"
#include "platform/gui/timers.h"
#include "platform/gui/window_table.h"

namespace platform {

const MessageTable CWnd::kMessages{nullptr, {}};

CWnd::CWnd() = default;

CWnd::~CWnd() {
  assert(m_handle == 0 && "a window outlives its object, so its class doesn't hear of the end");
  DestroyWindow();
}

bool CWnd::Create(const CreateParams& params) {
  if (m_handle != 0) return false;
  CWnd* parent = FromHandle(params.parent);
  if (params.parent != 0 && (parent == nullptr || parent->m_destroying)) return false;
  m_parent = parent;
  m_owner = params.owner;
  m_id = params.id;
  m_style = params.style;
  m_ex_style = params.ex_style;
  m_rect = params.rect;
  m_text = params.text;
  const HWND handle = window_table::Add(*this);
  m_handle = handle;
  if (parent != nullptr) parent->m_children.push_back(this);
  if (Display* display = GetDisplay()) m_peer = display->CreatePeer(*this);
  const bool refused = Send(WM_CREATE) == -1;
  // The handler may have destroyed the window, and the object with it.
  if (FromHandle(handle) != this) return false;
  if (refused) DestroyWindow();
  return !refused;
}

void CWnd::DestroyWindow() {
  if (m_handle == 0 || m_destroying) return;
  m_destroying = true;
  Send(WM_DESTROY);
  focus::PassToParents(*this);
  std::vector<HWND> children;
  for (const CWnd* child : m_children) children.push_back(child->m_handle);
  for (const HWND handle : children) {
    if (CWnd* child = FromHandle(handle)) child->DestroyWindow();
  }
  // A child whose own WM_DESTROY handler brought us here is still on its way out.
  for (CWnd* child : m_children) child->m_parent = nullptr;
  m_children.clear();
  timers::DropAll(m_handle);
  if (Peer* peer = std::exchange(m_peer, nullptr)) peer->Close();
  if (m_parent != nullptr) std::erase(m_parent->m_children, this);
  m_parent = nullptr;
  window_table::Remove(std::exchange(m_handle, 0));
  m_destroying = false;
  PostNcDestroy();
}

CWnd* CWnd::FromHandle(HWND handle) {
  return window_table::Find(handle);
}

bool CWnd::SubclassDlgItem(UINT id, CWnd& parent) {
  CWnd* from = parent.GetDlgItem(id);
  if (m_handle != 0 || from == nullptr || from->m_destroying || from->GetKind() != GetKind()) return false;
  m_handle = std::exchange(from->m_handle, 0);
  m_parent = std::exchange(from->m_parent, nullptr);
  m_owner = from->m_owner;
  m_id = from->m_id;
  m_style = from->m_style;
  m_ex_style = from->m_ex_style;
  m_rect = from->m_rect;
  m_text = from->m_text;
  m_children = std::exchange(from->m_children, {});
  m_peer = std::exchange(from->m_peer, nullptr);
  TakeStateFrom(*from);
  for (CWnd* child : m_children) child->m_parent = this;
  std::replace(parent.m_children.begin(), parent.m_children.end(), from, static_cast<CWnd*>(this));
  window_table::Replace(m_handle, *this);
  if (m_peer != nullptr) m_peer->window = this;
  return true;
}

void CWnd::TakeStateFrom(CWnd&) {}

void CWnd::SetText(std::string_view text) {
  m_text = text;
  UpdatePeer(Part::Text);
}

void CWnd::MoveWindow(const RECT& rect) {
  const RECT before = m_rect;
  m_rect = rect;
  UpdatePeer(Part::Rect);
  if (rect.Width() != before.Width() || rect.Height() != before.Height()) {
    Send(WM_SIZE, 0, PointParam({rect.Width(), rect.Height()}));
  }
}

void CWnd::ShowWindow(bool show) {
  if (show == IsVisible()) return;
  m_style ^= WS_VISIBLE;
  UpdatePeer(Part::Shown);
  if (!show) focus::PassToParents(*this);
}

void CWnd::EnableWindow(bool enable) {
  if (enable == IsEnabled()) return;
  m_style ^= WS_DISABLED;
  UpdatePeer(Part::Enabled);
  const HWND handle = m_handle;
  if (!enable) focus::PassToParents(*this);
  SendMessage(handle, WM_ENABLE, enable ? 1 : 0);
}

void CWnd::Invalidate() {
  UpdatePeer(Part::Paint);
}

CWnd* CWnd::GetDlgItem(UINT id) const {
  for (CWnd* child : m_children) {
    if (child->m_id == id) return child;
  }
  return nullptr;
}

CWnd* CWnd::GetTopLevelParent() {
  CWnd* window = this;
  while (window->m_parent != nullptr) window = window->m_parent;
  return window;
}

LRESULT CWnd::Send(UINT message, WPARAM wParam, LPARAM lParam) {
  return m_handle != 0 ? WindowProc({m_handle, message, wParam, lParam}) : 0;
}

// Behind a handler's call nothing of the object is touched: it may be gone.
LRESULT CWnd::HandleByTable(const MSG& msg, const MessageTable* table) {
  const MessageRow* row = table != nullptr ? table->Find(MessageRow::Kind::Message, msg.message, 0) : nullptr;
  return row != nullptr ? row->call(*this, const_cast<MSG*>(&msg)) : DefWindowProc(msg);
}

LRESULT CWnd::WindowProc(const MSG& msg) {
  return HandleByTable(msg, &GetMessageTable());
}

LRESULT CWnd::Default(const MSG& msg, const MessageTable& own) {
  return HandleByTable(msg, own.Base());
}

bool CWnd::PreTranslateMessage(const MSG&) {
  return false;
}

bool CWnd::RouteCommand(UINT id) {
  const MessageRow* row = GetMessageTable().Find(MessageRow::Kind::Command, 0, id);
  if (row == nullptr) return false;
  row->call(*this, nullptr);
  return true;
}

bool CWnd::UpdateCommand(CCmdUI& ui) {
  const bool handled = HandlesCommand(ui.GetId());
  if (const MessageRow* row = GetMessageTable().Find(MessageRow::Kind::Update, 0, ui.GetId())) {
    row->call(*this, &ui);
  }
  return handled;
}

bool CWnd::HandlesCommand(UINT id) const {
  return GetMessageTable().Find(MessageRow::Kind::Command, 0, id) != nullptr;
}

LRESULT CWnd::NotifyParent(NMHDR& header) {
  header.hwndFrom = m_handle;
  header.idFrom = m_id;
  return m_parent != nullptr ? m_parent->Send(WM_NOTIFY, m_id, reinterpret_cast<LPARAM>(&header)) : 0;
}

void CWnd::NotifyParentCommand(UINT code) {
  if (const MessageRow* row = GetMessageTable().Find(MessageRow::Kind::Reflect, code, 0)) {
    row->call(*this, nullptr);
  } else if (m_parent != nullptr) {
    m_parent->Send(WM_COMMAND, m_id | static_cast<WPARAM>(code) << 16, static_cast<LPARAM>(m_handle));
  }
}

LRESULT CWnd::OnCommandMessage(const MSG& msg) {
  const UINT id = msg.wParam & 0xFFFF;
  const UINT code = msg.wParam >> 16 & 0xFFFF;
  // Of what a control tells, a click on a button is the command of its id.
  if (msg.lParam != 0 && code != BN_CLICKED) return 0;
  return RouteCommand(id) ? 1 : 0;
}

LRESULT CWnd::DefWindowProc(const MSG& msg) {
  switch (msg.message) {
    case WM_COMMAND:
      return OnCommandMessage(msg);
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(msg.lParam);  // NOLINT(performance-no-int-to-ptr)
      const MessageRow* row = GetMessageTable().Find(MessageRow::Kind::Notify, header.code, header.idFrom);
      return row != nullptr ? row->call(*this, &header) : 0;
    }
    case WM_CLOSE:
      DestroyWindow();
      return 0;
    case WM_KEYDOWN:
      if (msg.wParam == VK_F1) {
        const HELPINFO info{HELPINFO_WINDOW, m_id, m_handle};
        return Send(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
      }
      break;
    case WM_HELP:
      return m_parent != nullptr ? m_parent->Send(msg.message, msg.wParam, msg.lParam) : 0;
    case WM_CONTEXTMENU: {
      if (m_parent == nullptr) return 0;
      const POINT at = ParamPoint(msg.lParam);
      return m_parent->Send(msg.message, msg.wParam, PointParam({at.x + m_rect.left, at.y + m_rect.top}));
    }
    case WM_SYSCOMMAND:
      if (Display* display = GetDisplay(); display != nullptr && msg.wParam == SC_CONTEXTHELP) {
        display->ShowHelp(*this);
      }
      return 0;
    default:
      break;
  }
  PeerDefault(msg);
  return 0;
}

bool CWnd::PeerDefault(const MSG& msg) {
  return m_peer != nullptr && msg.native != nullptr && m_peer->Default(msg);
}

void CWnd::UpdatePeer(Part part) {
  if (m_peer != nullptr) m_peer->Update(part);
}

void CWnd::PeerMoved(const RECT& rect) {
  const RECT before = m_rect;
  m_rect = rect;
  if (rect.Width() != before.Width() || rect.Height() != before.Height()) {
    Send(WM_SIZE, 0, PointParam({rect.Width(), rect.Height()}));
  }
}

void CWnd::PeerGone() {
  m_peer = nullptr;
}

void CWnd::Paint(CDC& dc, const RECT&) {
  Send(WM_ERASEBKGND, 0, reinterpret_cast<LPARAM>(&dc));
  Send(WM_PAINT, 0, reinterpret_cast<LPARAM>(&dc));
}

bool IsWindow(HWND handle) {
  return window_table::Find(handle) != nullptr;
}

LRESULT SendMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  const auto send = [&] {
    if (CWnd* window = CWnd::FromHandle(handle)) result = window->Send(message, wParam, lParam);
  };
  if (post_queue::IsUiThread()) {
    send();
  } else {
    post_queue::Call(send);
  }
  return result;
}

}  // namespace platform
