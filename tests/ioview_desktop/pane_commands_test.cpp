// Every command of the pane, by every way that the user has to it, with what it does at host or target.

#include "tests/ioview_desktop/desktop_stage.h"

namespace ioview::test {
namespace {

using testing::HasSubstr;

class PaneCommands : public DesktopStage {
 public:
  // Each gives a command once, and looks at what came of it.
  void Refresh() {
    Poke(0xFF0041, 0x21);
    Give();
    EXPECT_EQ(Value("PORT/PDATA"), "21");
  }

  void LockRefresh() {
    Give();
    EXPECT_TRUE(Until([this] { return PaneBar().actions()[1]->isChecked(); })) << "the button follows";
    Poke(0xFF0041, 0x21);
    Key(Qt::Key_F11);
    EXPECT_NE(Value("PORT/PDATA"), "21");
    EXPECT_TRUE(Menu("Register|Lock Refresh"));
    EXPECT_EQ(Value("PORT/PDATA"), "21") << "the lock's end reads";
  }

  void LoadIOFile() {
    InNextDialog([this](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Set I/O File");
      Type(QString::fromStdString(workspace.Path("lumen2.io")));
      Key(Qt::Key_Return);
    });
    Give();
    OpenRow("CLOCK");
    EXPECT_NE(Row("CLOCK/DEVICEID"), 0u) << "only this file has it";
  }

  void SelectRegister() {
    InNextDialog([](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Select IO Register");
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::AltModifier);
      QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
    });
    Give();
    EXPECT_TRUE(Until([&] { return QApplication::activeModalWidget() == nullptr; })) << "all rows are opened";
    EXPECT_GT(Grid(PaneIndex::kSelected).GetRowCount(), 6u);
  }

  void Print() {
    const std::filesystem::path pdf = workspace.Native("rows.pdf");
    std::filesystem::remove(pdf);
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
    EXPECT_THAT(ReadFile(pdf), testing::AllOf(testing::StartsWith("%PDF-"), HasSubstr("/Count 1")));
  }

  void SaveToFile() {
    workspace.Delete("rows.txt");
    InNextDialog([&](QWidget& dialog) { NameFile(dialog, "rows.txt"); });
    Give();
    EXPECT_THAT(ReadFile(workspace.Native("rows.txt")), HasSubstr("PDATA"));
  }

  void Find() {
    InNextDialog([](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Find");
      Type("FF0062");
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    Give();
    EXPECT_EQ(Grid().GetSelectedItem(), Row("TIMER/TCOUNT"));
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
    Give();
    EXPECT_FALSE(PaneBar().isVisible() || Component().View()->is_toolbar_shown);
    EXPECT_FALSE(Menu("Register|Customize toolbar..."));
    EXPECT_TRUE(Menu("Register|Toolbar display"));
    EXPECT_TRUE(PaneBar().isVisible() && Component().View()->is_toolbar_shown);
  }

  void CustomizeToolbar() {
    // The layout is kept: the next way finds seven of the eight.
    const std::size_t count = Component().View()->toolbar_commands.size();
    TogglePrintButton();
    Give();
    EXPECT_TRUE(Until([&] { return Component().View()->toolbar_commands.size() + count == 8 + 7; }));
  }

  void AllowDocking() {
    Give();
    EXPECT_TRUE(Window().ViewFrame()->isFloating() && Window().centralWidget()->isVisible());
    EXPECT_EQ(Component().View()->dock_state, DockWindow::kFloating);
    EXPECT_TRUE(Menu("Register|Allow Docking"));
    EXPECT_FALSE(Window().ViewFrame()->isFloating() || Window().centralWidget()->isVisible());
    EXPECT_EQ(Component().View()->dock_state, DockWindow::kDocked);
  }

  void Hide() {
    Give();
    EXPECT_FALSE(Component().View()->is_shown);
    EXPECT_FALSE(Window().ViewFrame()->isVisible());
    Key(Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(Window().ViewFrame()->isVisible());
  }

  void Give() {
    way_();
    EXPECT_TRUE(Until([this] { return Answered(); })) << "no dialog came";
    Settle();
  }
  void By(const char* name, std::function<void()> way, void (PaneCommands::*check)()) {
    SCOPED_TRACE(name);
    Start();
    OpenRow("PORT");
    OpenRow("TIMER");
    ClickRow("PORT");
    way_ = std::move(way);
    (this->*check)();
  }

 private:
  std::function<void()> way_;
};

TEST_F(PaneCommands, RunByMenuToolbarContextMenuAndKey) {
  constexpr QKeyCombination kNoKey = Qt::Key_unknown;
  const struct {
    const char* entry;     // of the menus
    std::uint32_t button;  // 0: none
    QKeyCombination key;
    void (PaneCommands::*check)();
  } rows[] = {
      {"Refresh", 32817, kNoKey, &PaneCommands::Refresh},
      {"Lock Refresh", 32826, kNoKey, &PaneCommands::LockRefresh},
      {"Load IO File...", 32773, kNoKey, &PaneCommands::LoadIOFile},
      {"Select IO Register...", 32819, kNoKey, &PaneCommands::SelectRegister},
      {"Print", 32771, kNoKey, &PaneCommands::Print},
      {"Save To File...", 32774, kNoKey, &PaneCommands::SaveToFile},
      {"Find...", 32820, Qt::CTRL | Qt::Key_F, &PaneCommands::Find},
      {"Find Next", 32821, Qt::Key_F3, &PaneCommands::FindNext},
      {"Toolbar display", 0, kNoKey, &PaneCommands::ShowToolbar},
      {"Customize toolbar...", 0, kNoKey, &PaneCommands::CustomizeToolbar},
      {"Allow Docking", 0, kNoKey, &PaneCommands::AllowDocking},
      {"Hide", 0, kNoKey, &PaneCommands::Hide},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.entry);
    const QString entry = QLatin1String(row.entry);
    By(
        "menu", [&] { EXPECT_TRUE(Menu("Register|" + entry)); }, row.check);
    if (row.button != 0)
      By(
          "toolbar", [&] { EXPECT_TRUE(Click(PaneBar(), row.button)); }, row.check);
    const auto pick = [&entry](QMenu& menu) { EXPECT_TRUE(Pick(menu, entry)); };
    By(
        "context menu", [&] { InNextPopup(pick), ClickRow("CLOCK", Qt::RightButton); }, row.check);
    if (row.key == kNoKey) continue;
    By(
        "key", [&] { Key(row.key.key(), row.key.keyboardModifiers()); }, row.check);
  }
}

}  // namespace
}  // namespace ioview::test
