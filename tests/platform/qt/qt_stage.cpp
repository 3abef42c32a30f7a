// The scenarios on Qt, with the mouse and keys that a user's would become, at the widget that has Qt's focus.

#include <QtCore/qcoreapplication.h>
#include <QtCore/qtimer.h>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qmessagebox.h>

#include <deque>
#include <utility>

#include "platform/base/app.h"
#include "platform/headless/headless_display.h"
#include "tests/platform/gui/conformance/stage.h"
#include "tests/platform/qt/qt_user.h"

namespace platform::conformance {

namespace {

class ToldDisplay final : public QtDisplay {
 public:
  void RunLoop(CWnd& modal, const std::function<void()>& opened, const bool& done) override {
    Note("dialog: " + modal.GetText());
    EXPECT_FALSE(m_answers.empty()) << "no answer is left for a dialog";
    if (m_answers.empty()) m_answers.emplace_back();
    const auto steps = std::make_shared<Steps>(std::move(m_answers.front()));
    m_answers.pop_front();
    const HWND handle = modal.GetHandle();
    QtDisplay::RunLoop(
        modal,
        [&] {
          opened();
          Later([this, handle, steps] { Step(handle, steps, 0); });
        },
        done);
  }
  void RunMessageBox(const MessageBoxRequest& request, const std::function<void()>& opened) override {
    Note(MessageLine(request));
    QtDisplay::RunMessageBox(request, [&] {
      opened();
      Later([then = std::exchange(in_box, nullptr)] {
        if (then) then();
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        QTest::keyClick(box, Qt::Key_Return);
      });
    });
  }
  void Beep() override { Note("beep"); }

  void Give(Steps steps) { m_answers.push_back(std::move(steps)); }
  std::function<void()> in_box;

 private:
  static void Later(std::function<void()> then) { QTimer::singleShot(0, qApp, std::move(then)); }

  // A user acts once the dialog is the active window, and not while another runs in it.
  void Step(HWND handle, const std::shared_ptr<Steps>& steps, std::size_t next) {
    CWnd* window = CWnd::FromHandle(handle);
    if (window == nullptr) {
      EXPECT_EQ(next, steps->size()) << "steps are left over behind a dialog's end";
      return;
    }
    // Ended, or somebody else is about to end it.
    if (next == steps->size()) return;
    user::Settle();
    (*steps)[next](static_cast<CDialog&>(*window));
    Later([this, handle, steps, next] { Step(handle, steps, next + 1); });
  }

  std::deque<Steps> m_answers;
};

class QtStage final : public Stage {
 public:
  QtStage() { SetDisplay(&m_display); }
  ~QtStage() override {
    m_foreign.hide();
    SetDisplay(nullptr);
  }

  void Press(CWnd& window, POINT at) override { user::Press(window, at); }
  void Release(CWnd& window, POINT at) override { user::Release(window, at); }
  void KeyDown(UINT key, UINT modifiers) override { user::KeyDown(key, modifiers); }
  void KeyUp(UINT key, UINT modifiers) override { user::KeyUp(key, modifiers); }
  void Type(std::string_view text) override { user::Type(text); }
  void Leave() override {
    m_foreign.show();
    m_foreign.activateWindow();
    m_foreign.setFocus();
    user::Settle();
  }
  void ComeBack() override {
    if (const CWnd* main = CWnd::FromHandle(GetMainWindow())) QtDisplay::WidgetOf(*main)->activateWindow();
    user::Settle();
  }
  void Wait(UINT milliseconds) override { user::Wait(milliseconds); }
  void Settle() override { user::Settle(); }
  void InNextDialog(Steps steps) override { m_display.Give(std::move(steps)); }
  void InNextBox(std::function<void()> then) override { m_display.in_box = std::move(then); }

 private:
  ToldDisplay m_display;
  QLineEdit m_foreign;
};

}  // namespace

std::unique_ptr<Stage> MakeStage() {
  return std::make_unique<QtStage>();
}

}  // namespace platform::conformance
