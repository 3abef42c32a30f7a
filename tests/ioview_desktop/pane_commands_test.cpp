// Every command of the pane, by every way that the user has to it, with what it does at host or target.

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qdialogbuttonbox.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qlistwidget.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qpushbutton.h>
#include <QtWidgets/qtoolbar.h>
#include <gmock/gmock.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "tests/ioview_desktop/desktop_stage.h"

namespace ioview::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

class PaneCommands;
struct PaneCommand {
  const char* name;   // of the test
  const char* entry;  // of the menus
  std::uint32_t button;
  QKeyCombination key;
  // Gives the command once, and looks at what came of it.
  void (PaneCommands::*check)();
};

class PaneCommands : public DesktopStage, public testing::WithParamInterface<PaneCommand> {
 public:
  void Refresh() {
    Poke(0xFF0041, ++byte_);
    Give();
    EXPECT_EQ(Value("PORT/PDATA"), Hex(byte_));
  }

  void LockRefresh() {
    const bool before = State(32826).checked;
    Give();
    EXPECT_NE(State(32826).checked, before);
  }

  void LoadIOFile() {
    second_file_ = !second_file_;
    InNextDialog([this](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Set I/O File");
      Type(QString::fromStdString(workspace.Path(second_file_ ? "lumen2.io" : "lumen3.io")));
      Key(Qt::Key_Return);
    });
    Give();
    OpenRow("CLOCK");
    EXPECT_EQ(Row("CLOCK/DEVICEID") != 0, second_file_) << "only one of the two files has it";
  }

  void SelectRegister() {
    const bool some = Grid(PaneIndex::kSelected).GetRowCount() > 0;
    InNextDialog([some](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Select IO Register");
      QTest::keyClick(QApplication::focusWidget(), some ? Qt::Key_U : Qt::Key_A, Qt::AltModifier);
      QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
    });
    Give();
    EXPECT_TRUE(Until([&] { return QApplication::activeModalWidget() == nullptr; })) << "all rows are opened";
    EXPECT_EQ(Grid(PaneIndex::kSelected).GetRowCount() > 0, !some);
  }

  void Print() {
    const std::filesystem::path pdf = workspace.Native("rows" + std::to_string(++byte_) + ".pdf");
    InNextDialog([&pdf](QWidget& dialog) {
      auto* name = dialog.findChild<QLineEdit*>("filename");
      if (name == nullptr) return dialog.close(), void();
      name->setText(QString::fromStdString(pdf.string()));
      auto* box = dialog.findChild<QDialogButtonBox*>();
      for (QAbstractButton* button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
          return QTest::mouseClick(button, Qt::LeftButton);
      }
    });
    Give();
    EXPECT_THAT(ReadAll(pdf), StartsWith("%PDF-"));
    EXPECT_THAT(ReadAll(pdf), HasSubstr("/Count 1"));
  }

  void SaveToFile() {
    const std::string name = "rows" + std::to_string(++byte_) + ".txt";
    InNextDialog([&](QWidget& dialog) { NameFile(dialog, name); });
    Give();
    EXPECT_THAT(ReadAll(workspace.Native(name)), HasSubstr("PDATA"));
  }

  void Find() {
    const bool other = Grid().GetSelectedItem() == Row("PORT/PDATA");
    InNextDialog([other](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Find");
      Type(other ? "FF0062" : "FF0041");
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    Give();
    EXPECT_EQ(Grid().GetSelectedItem(), Row(other ? "TIMER/TCOUNT" : "PORT/PDATA"));
  }

  // One register after the other, until there is none.
  void FindNext() {
    InNextDialog([](QWidget&) {
      Type("FF006");
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Until([this] { return PaneBar().actions().last()->isEnabled(); }));
    EXPECT_EQ(Grid().GetSelectedItem(), Row("TIMER/TCTL"));
    Give();
    EXPECT_EQ(Grid().GetSelectedItem(), Row("TIMER/TCOUNT"));
  }

  void ShowToolbar() {
    const bool shown = PaneBar().isVisible();
    Give();
    EXPECT_EQ(PaneBar().isVisible(), !shown);
    EXPECT_EQ(Component().View()->is_toolbar_shown, !shown);
  }

  void CustomizeToolbar() {
    const std::size_t count = Component().View()->toolbar_commands.size();
    const std::size_t whole = 8;
    InNextDialog([](QWidget& dialog) {
      auto* list = dialog.findChild<QListWidget*>();
      list->setCurrentRow(3);
      QTest::keyClick(list, Qt::Key_Space);
      QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    Give();
    EXPECT_TRUE(Until([&] { return Component().View()->toolbar_commands.size() != count; }));
    EXPECT_EQ(Component().View()->toolbar_commands.size(), count == whole ? whole - 1 : whole);
  }

  void AllowDocking() {
    const bool floated = Window().ViewFrame()->isFloating();
    Give();
    EXPECT_EQ(Window().ViewFrame()->isFloating(), !floated);
    EXPECT_EQ(Component().View()->dock_state, floated ? DockWindow::kDocked : DockWindow::kFloating);
  }

  void Hide() {
    Give();
    EXPECT_FALSE(Component().View()->is_shown);
    EXPECT_FALSE(Window().ViewFrame()->isVisible());
    Key(Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(Window().ViewFrame()->isVisible());
  }

 protected:
  static std::string Hex(int byte) {
    char text[3];
    std::snprintf(text, sizeof text, "%02X", static_cast<unsigned>(byte) & 0xFF);
    return text;
  }
  Instance::CommandState State(std::uint32_t command) {
    return Instance::StateOf(command, Component().Pane(PaneIndex::kAll)->GetHandle());
  }
  void Give() {
    way_();
    EXPECT_TRUE(Until([this] { return Answered(); })) << "no dialog came";
    Settle();
  }
  // Whose effect the check looks at.
  void By(const char* name, std::function<void()> way) {
    SCOPED_TRACE(name);
    way_ = std::move(way);
    (this->*GetParam().check)();
  }

 private:
  std::function<void()> way_;
  std::uint8_t byte_ = 0x20;
  bool second_file_ = false;
};

TEST_P(PaneCommands, RunsByMenuToolbarContextMenuAndKey) {
  Start();
  OpenRow("PORT");
  OpenRow("TIMER");
  ClickRow("PORT");
  const PaneCommand& command = GetParam();
  const QString entry = QLatin1String(command.entry);
  By("menu", [&] { EXPECT_TRUE(Menu("Register|" + entry)); });
  if (command.button != 0) By("toolbar", [&] { EXPECT_TRUE(Click(PaneBar(), command.button)); });
  By("context menu", [&] {
    InNextPopup([&entry](QMenu& menu) { EXPECT_TRUE(Pick(menu, entry)); });
    ClickRow("CLOCK", Qt::RightButton);
  });
  if (command.key.key() != Qt::Key_unknown) {
    By("key", [&] { Key(command.key.key(), command.key.keyboardModifiers()); });
  }
}

constexpr QKeyCombination kNoKey = Qt::Key_unknown;
INSTANTIATE_TEST_SUITE_P(
    Menu, PaneCommands,
    testing::Values(
        PaneCommand{"Refresh", "Refresh", 32817, kNoKey, &PaneCommands::Refresh},
        PaneCommand{"LockRefresh", "Lock Refresh", 32826, kNoKey, &PaneCommands::LockRefresh},
        PaneCommand{"LoadIOFile", "Load IO File...", 32773, kNoKey, &PaneCommands::LoadIOFile},
        PaneCommand{"SelectRegister", "Select IO Register...", 32819, kNoKey, &PaneCommands::SelectRegister},
        PaneCommand{"Print", "Print", 32771, kNoKey, &PaneCommands::Print},
        PaneCommand{"SaveToFile", "Save To File...", 32774, kNoKey, &PaneCommands::SaveToFile},
        PaneCommand{"Find", "Find...", 32820, Qt::CTRL | Qt::Key_F, &PaneCommands::Find},
        PaneCommand{"FindNext", "Find Next", 32821, Qt::Key_F3, &PaneCommands::FindNext},
        PaneCommand{"ShowToolbar", "Toolbar display", 0, kNoKey, &PaneCommands::ShowToolbar},
        PaneCommand{"CustomizeToolbar", "Customize toolbar...", 0, kNoKey, &PaneCommands::CustomizeToolbar},
        PaneCommand{"AllowDocking", "Allow Docking", 0, kNoKey, &PaneCommands::AllowDocking},
        PaneCommand{"Hide", "Hide", 0, kNoKey, &PaneCommands::Hide}),
    [](const testing::TestParamInfo<PaneCommand>& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace ioview::test
