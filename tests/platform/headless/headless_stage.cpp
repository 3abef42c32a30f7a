// The scenarios on the display without a screen.

#include <utility>

#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"
#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {

namespace {

// Does something once its message comes.
class Later final : public CWnd {
 public:
  ~Later() override { DestroyWindow(); }
  void Post(std::function<void()> then) {
    if (!Exists()) Create({WS_POPUP, 0, {}, 0, 0, {}});
    m_then = std::move(then);
    PostMessage(GetHandle(), WM_USER);
  }
  LRESULT WindowProc(const MSG& msg) override {
    if (msg.message == WM_USER) std::exchange(m_then, nullptr)();
    return CWnd::WindowProc(msg);
  }

 private:
  std::function<void()> m_then;
};

class HeadlessStage final : public Stage {
 public:
  HeadlessStage() { SetDisplay(&m_display); }
  ~HeadlessStage() override {
    m_later.DestroyWindow();
    SetDisplay(nullptr);
  }

  void Press(CWnd& window, POINT at) override { Do({window.GetHandle(), WM_LBUTTONDOWN, 0, PointParam(at)}); }
  void Release(CWnd& window, POINT at) override { Do({window.GetHandle(), WM_LBUTTONUP, 0, PointParam(at)}); }
  void KeyDown(UINT key, UINT modifiers) override { Do({0, WM_KEYDOWN, key, 0, nullptr, modifiers}); }
  void KeyUp(UINT key, UINT modifiers) override { Do({0, WM_KEYUP, key, 0, nullptr, modifiers}); }
  void Type(std::string_view text) override {
    user::TypeText(text);
    m_display.Settle();
  }
  void Leave() override { gui::Activate(false); }
  void ComeBack() override { gui::Activate(true); }
  void Wait(UINT milliseconds) override { m_display.Advance(milliseconds); }
  void Settle() override { m_display.Settle(); }
  void InNextDialog(Steps steps) override {
    DialogAnswer answer;
    for (std::function<void(CDialog&)>& step : steps) answer.steps.emplace_back(std::move(step));
    m_display.Give(std::move(answer));
  }
  void InNextBox(std::function<void()> then) override { m_in_box = std::move(then); }

 private:
  void Do(const MSG& input) {
    gui::Input(input);
    m_display.Settle();
  }

  void OnLine(const std::string& line) {
    Note(line);
    if (!line.starts_with("message") || !m_in_box) return;
    // The box hasn't taken the focus yet; posted messages come when it has.
    m_later.Post(std::exchange(m_in_box, nullptr));
  }

  Later m_later;
  std::function<void()> m_in_box;
  HeadlessDisplay m_display{HeadlessDisplay::Unanswered::Fail,
                            [this](const std::string& line) { OnLine(line); },
                            [](const std::string& text) { ADD_FAILURE() << text; }};
};

}  // namespace

std::unique_ptr<Stage> MakeStage() {
  return std::make_unique<HeadlessStage>();
}

}  // namespace platform::conformance
