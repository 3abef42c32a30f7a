// The scenarios on the display without a screen.

#include <utility>

#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"
#include "tests/platform/gui/conformance/stage.h"

namespace platform::conformance {

namespace {

class BoxDisplay final : public HeadlessDisplay {
 public:
  using HeadlessDisplay::HeadlessDisplay;
  void RunMessageBox(const MessageBoxRequest& request, const std::function<void()>& opened) override {
    HeadlessDisplay::RunMessageBox(request, [&] {
      opened();
      if (in_box) std::exchange(in_box, nullptr)();
    });
  }
  std::function<void()> in_box;
};

class HeadlessStage final : public Stage {
 public:
  HeadlessStage() { SetDisplay(&m_display); }
  ~HeadlessStage() override { SetDisplay(nullptr); }

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
  void InNextBox(std::function<void()> then) override { m_display.in_box = std::move(then); }

 private:
  void Do(const MSG& input) {
    gui::Input(input);
    m_display.Settle();
  }

  BoxDisplay m_display{HeadlessDisplay::Unanswered::Fail, &Note,
                       [](const std::string& text) { ADD_FAILURE() << text; }};
};

}  // namespace

std::unique_ptr<Stage> MakeStage() {
  return std::make_unique<HeadlessStage>();
}

}  // namespace platform::conformance
