// A row is dragged out of the view into another program, with a pointer that moves on a screen.

#include <QtCore/qcoreapplication.h>
#include <QtCore/qprocess.h>
#include <QtGui/qwindow.h>

#include <cstdio>

#include "tests/ioview_desktop/desktop_stage.h"

namespace ioview::test {
namespace {

// Beside the main window.
constexpr QRect kField(1100, 100, 200, 40);

// The other program, which the test starts from its own file: it says when its field shows, and what was
// dropped on it.
TEST(Receiver, DISABLED_HasATextField) {
  QLineEdit field;
  field.setGeometry(kField);
  field.show();
  ASSERT_TRUE(Until([&] { return field.windowHandle()->isExposed(); }));
  const auto say = [](const std::string& text) {
    std::printf("%s\n", text.c_str());
    std::fflush(stdout);
  };
  say("ready");
  ASSERT_TRUE(Until([&] { return !field.text().isEmpty(); }));
  say("dropped: " + field.text().toStdString());
}

class Drag : public DesktopStage {
 protected:
  static QStringList MoveTo(QPoint at) {
    return {"mousemove", QString::number(at.x()), QString::number(at.y()), "sleep", "0.2"};
  }
  static bool Says(QProcess& program, std::string& said, const std::string& text) {
    return Until([&] {
      said += program.readAllStandardOutput().toStdString();
      return said.find(text) != std::string::npos;
    });
  }
};

TEST_F(Drag, ATextFieldOfAnotherProgramGetsTheAddressOfTheRowThatIsDroppedOnIt) {
  Start();
  Window().move(0, 0);
  OpenRow("PORT");
  ASSERT_TRUE(Until([&] { return Window().windowHandle()->isExposed(); }));
  QProcess receiver;
  std::string said;
  receiver.start(QCoreApplication::applicationFilePath(),
                 {"--gtest_also_run_disabled_tests", "--gtest_filter=Receiver.*"});
  ASSERT_TRUE(Says(receiver, said, "ready"));

  QWidget& grid = *platform::QtDisplay::WidgetOf(Grid());
  const platform::POINT label = Grid().GetPartPoint(Row("PORT/PDATA"), platform::TVHT_ONITEMLABEL);
  const QPoint from = grid.mapToGlobal(QPoint(label.x, label.y));
  const QPoint to = kField.center();
  QProcess pointer;
  pointer.start("xdotool", MoveTo(from) + QStringList{"mousedown", "1", "sleep", "0.2"} +
                               MoveTo(from + QPoint(30, 10)) + MoveTo(to - QPoint(20, 0)) + MoveTo(to) +
                               QStringList{"mouseup", "1"});
  EXPECT_TRUE(Says(receiver, said, "dropped: " + Grid().GetItemText(Row("PORT/PDATA"), 1) + '\n')) << said;
  EXPECT_TRUE(Until([&] { return receiver.state() == QProcess::NotRunning; }));
  EXPECT_TRUE(Until([&] { return pointer.state() == QProcess::NotRunning; }));
  EXPECT_EQ(Grid().GetSelectedItem(), Row("PORT/PDATA"));
}

}  // namespace
}  // namespace ioview::test
