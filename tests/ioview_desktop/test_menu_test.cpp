// The Test menu: registers are chosen, captured into a file, and held against the target.

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qlabel.h>
#include <QtWidgets/qmessagebox.h>
#include <QtWidgets/qplaintextedit.h>
#include <QtWidgets/qpushbutton.h>
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/base/bstr.h"
#include "tests/ioview_desktop/desktop_stage.h"

namespace ioview::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class TestMenu : public DesktopStage {
 protected:
  TestMenu() { Start(); }
  std::string Read(const char* name) {
    std::ifstream file(workspace.Native(name), std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }
  // In the dialog's list, which is sorted by name.
  void Choose(std::initializer_list<const char*> registers) {
    InNextDialog([&](QWidget&) {
      const auto& list =
          dynamic_cast<platform::SECTreeCtrl&>(*platform::CWnd::FromHandle(platform::GetFocus()));
      for (const std::string name : registers) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
        for (std::size_t row = 1; row < list.GetRowCount(); ++row) {
          if (list.GetItemText(list.GetSelectedItem(), 0) == name) break;
          QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
      }
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    ASSERT_TRUE(Menu("Test|Choose Registers..."));
    EXPECT_TRUE(Answered());
  }
  void Capture(const char* name) {
    InNextDialog([this, name](QWidget& dialog) { NameFile(dialog, name); });
    ASSERT_TRUE(Menu("Test|Capture..."));
    EXPECT_TRUE(Answered());
  }
  // What the result dialog says: its sentence, then its lines.
  std::vector<std::string> Compare(const char* name) {
    std::vector<std::string> said;
    InNextDialog([this, name, &said](QWidget& dialog) {
      InNextDialog([&said](QWidget& result) {
        const auto* const box = dynamic_cast<QMessageBox*>(&result);
        said.push_back(box != nullptr ? box->text().toStdString()
                                      : Bare(result.findChild<QLabel*>()->text()).toStdString());
        if (const auto* lines = result.findChild<QPlainTextEdit*>()) {
          for (const QString& line : lines->toPlainText().split('\n')) said.push_back(line.toStdString());
        }
        QTest::keyClick(&result, Qt::Key_Return);
      });
      NameFile(dialog, name);
    });
    EXPECT_TRUE(Menu("Test|Compare..."));
    EXPECT_TRUE(Until([this] { return Answered(); }));
    return said;
  }
};

TEST_F(TestMenu, WhatWasCapturedIsHeldAgainstTheTarget) {
  Choose({"PDATA", "TCTL"});
  Capture("before.txt");
  platform::ScopedBstr text;
  Component().Test()->GetTestData(text.Receive());
  EXPECT_EQ(Read("before.txt"), text.Text() + '\n');
  EXPECT_EQ(Read("before.txt"), "1.0&lumen3&0&2&PDATA H'00FF0041 1 cd&TCTL H'00FF0060 1 17\n");
  EXPECT_THAT(Compare("before.txt"), ElementsAre("No differences."));

  Poke(0xFF0041, 0x11);
  EXPECT_THAT(Compare("before.txt"), ElementsAre("One difference:", HasSubstr("PDATA")));
  Poke(0xFF0060, 0x22);
  EXPECT_THAT(Compare("before.txt"), ElementsAre("2 differences:", HasSubstr("PDATA"), HasSubstr("TCTL")));
}

TEST_F(TestMenu, WhatCantBeDoneIsToldOfAndChangesNothing) {
  std::string box;
  TakeBox(box);
  ASSERT_TRUE(Menu("Test|Capture..."));
  EXPECT_THAT(box, HasSubstr("no registers of this device are chosen"));

  workspace.Write("notes.txt", "no snapshot\n");
  EXPECT_THAT(Compare("notes.txt"), ElementsAre(HasSubstr("notes.txt: This is no snapshot")));
  EXPECT_THAT(Compare("none.txt"), ElementsAre(HasSubstr("none.txt")));

  Choose({"PDATA"});
  namespace fs = std::filesystem;
  const fs::path kept = workspace.Native("notes.txt");
  fs::permissions(kept, fs::perms::owner_read);
  InNextDialog([this, &box](QWidget& dialog) {
    InNextDialog([this, &box](QWidget& overwrite) {
      TakeBox(box);
      QTest::mouseClick(dynamic_cast<QMessageBox&>(overwrite).button(QMessageBox::Yes), Qt::LeftButton);
    });
    NameFile(dialog, "notes.txt");
  });
  ASSERT_TRUE(Menu("Test|Capture..."));
  ASSERT_TRUE(Until([this] { return Answered(); }));
  Settle();
  EXPECT_THAT(box, HasSubstr("notes.txt can't be written"));
  EXPECT_EQ(Read("notes.txt"), "no snapshot\n");
}

TEST_F(TestMenu, RegistersAreReadFromATargetThatStandsStill) {
  for (const char* const away : {"Run", "Disconnect"}) {
    ASSERT_TRUE(Menu(QStringLiteral("Debug|") + away));
    EXPECT_FALSE(Menu("Test|Capture...")) << away;
    EXPECT_FALSE(Menu("Test|Compare...")) << away;
    if (Menu("Debug|Stop")) continue;
  }
  Choose({"PDATA"});
}

}  // namespace
}  // namespace ioview::test
