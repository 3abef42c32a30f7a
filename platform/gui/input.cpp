#include "platform/gui/input.h"

#include <unordered_map>
#include <utility>

#include "platform/gui/display.h"
#include "platform/gui/focus.h"
#include "platform/gui/modal.h"
#include "platform/gui/window.h"

namespace platform {

namespace input {

namespace {

struct Press {
  HWND window = 0;
  unsigned modal_openings = 0;
};

struct State {
  std::unordered_map<WPARAM, HWND> keys;  // key to the window that got its WM_KEYDOWN
  bool typing = false;                    // a key is down, its characters belong to `typing_into`
  HWND typing_into = 0;
  Press left;
  Press right;
};
State g_state;

const MSG* g_current = nullptr;  // the input message that is being handled
POINT g_current_origin;

class CurrentScope {
 public:
  CurrentScope(const MSG& msg, POINT origin)
      : m_before(std::exchange(g_current, &msg)), m_origin_before(std::exchange(g_current_origin, origin)) {}
  CurrentScope(const CurrentScope&) = delete;
  CurrentScope& operator=(const CurrentScope&) = delete;
  ~CurrentScope() {
    g_current = m_before;
    g_current_origin = m_origin_before;
  }

 private:
  const MSG* m_before;
  POINT m_origin_before;
};

POINT OriginOf(const CWnd* window) {
  POINT origin;
  for (; window != nullptr; window = window->GetParent()) {
    origin.x += window->GetRect().left;
    origin.y += window->GetRect().top;
  }
  return origin;
}

bool IsKey(UINT message) {
  return message == WM_KEYDOWN || message == WM_KEYUP || message == WM_CHAR;
}

bool IsPress(UINT message) {
  return message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDOWN;
}

bool IsRelease(UINT message) {
  return message == WM_LBUTTONUP || message == WM_RBUTTONUP;
}

Press& PressOf(UINT message) {
  const bool right = message == WM_RBUTTONDOWN || message == WM_RBUTTONUP;
  return right ? g_state.right : g_state.left;
}

bool TakesInput(HWND handle) {
  if (modal::Blocks(handle)) return false;
  const CWnd* window = CWnd::FromHandle(handle);
  if (window == nullptr) return false;
  for (; window != nullptr; window = window->GetParent()) {
    if (!window->IsEnabled()) return false;
  }
  return true;
}

// Forgets what a message ends, and says whether its window may act on it.
bool BelongsToItsWindow(const MSG& msg) {
  switch (msg.message) {
    case WM_KEYDOWN:
      g_state.keys.erase(msg.wParam);
      g_state.typing = true;
      g_state.typing_into = 0;
      return true;
    case WM_KEYUP: {
      g_state.typing = false;
      const auto key = g_state.keys.find(msg.wParam);
      if (key == g_state.keys.end()) return false;
      const HWND pressed_in = key->second;
      g_state.keys.erase(key);
      return pressed_in == msg.hwnd;
    }
    case WM_CHAR:
      return !g_state.typing || g_state.typing_into == msg.hwnd;
    default:
      break;
  }
  if (IsPress(msg.message)) PressOf(msg.message) = {};
  if (IsRelease(msg.message)) {
    const Press press = std::exchange(PressOf(msg.message), {});
    // A display whose own loop ran meanwhile may have lost the release; none of them acts on it.
    return press.window == msg.hwnd && press.modal_openings == modal::Openings();
  }
  return true;
}

void Deliver(const MSG& msg) {
  if (msg.message == WM_KEYDOWN) {
    g_state.keys[msg.wParam] = msg.hwnd;
    g_state.typing_into = msg.hwnd;
  } else if (IsPress(msg.message)) {
    PressOf(msg.message) = {msg.hwnd, modal::Openings()};
  }
  if (CWnd* window = CWnd::FromHandle(msg.hwnd)) window->WindowProc(msg);
}

// Asks the window and its parents, nearest first, each of which may destroy any of them.
bool TakenAhead(const MSG& msg) {
  for (const HWND handle : focus::ChainOf(msg.hwnd)) {
    CWnd* window = CWnd::FromHandle(handle);
    if (window != nullptr && window->PreTranslateMessage(msg)) return true;
  }
  return !IsWindow(msg.hwnd);
}

}  // namespace

void Reset() {
  g_state = State();
}

}  // namespace input

bool gui::Input(MSG msg) {
  if (input::IsKey(msg.message)) msg.hwnd = GetFocus();
  const bool belongs = input::BelongsToItsWindow(msg);
  // With the focus at none of ours a key is the host's, but not behind a modal thing.
  if (msg.hwnd == 0) return modal::Blocks(0);
  if (!belongs || !input::TakesInput(msg.hwnd)) return true;
  const input::CurrentScope scope(msg, input::OriginOf(CWnd::FromHandle(msg.hwnd)));
  if (input::TakenAhead(msg)) return true;
  input::Deliver(msg);
  return false;
}

bool IsKeyDown(UINT key) {
  const MSG* msg = input::g_current;
  if (msg == nullptr) return false;
  switch (key) {
    case VK_SHIFT:
      return (msg->modifiers & MK_SHIFT) != 0;
    case VK_CONTROL:
      return (msg->modifiers & MK_CONTROL) != 0;
    case VK_MENU:
      return (msg->modifiers & MK_ALT) != 0;
    default:
      return msg->message == WM_KEYDOWN && msg->wParam == key;
  }
}

POINT GetMessagePos(const CWnd& window) {
  const MSG* msg = input::g_current;
  if (msg == nullptr || input::IsKey(msg->message)) return {};
  const POINT at = ParamPoint(msg->lParam);
  const POINT origin = input::OriginOf(&window);
  return {at.x + input::g_current_origin.x - origin.x, at.y + input::g_current_origin.y - origin.y};
}

}  // namespace platform
