// What the desktop keeps between two runs, and what it does about files that it can't use.

#include <QtWidgets/qcombobox.h>
#include <QtWidgets/qfontcombobox.h>
#include <QtWidgets/qlabel.h>
#include <QtWidgets/qspinbox.h>

#include <fstream>

#include "platform/base/text.h"
#include "tests/ioview_desktop/desktop_stage.h"

namespace ioview::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr std::uint32_t kPrint = 32771;

void WriteAll(const fs::path& path, const std::string& text) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

class Keeping : public DesktopStage {
 protected:
  fs::path SessionFile() { return SessionFileOf(workspace.Native().string()); }
};

TEST_F(Keeping, TheSessionIsSavedWhenTheWindowClosesAndBringsTheViewBack) {
  Start();
  EXPECT_FALSE(fs::exists(SessionFile()));
  OpenRow("PORT");
  OpenRow("PORT/PDATA");
  Quit();
  ASSERT_TRUE(fs::exists(SessionFile()));

  Start();
  EXPECT_TRUE(Grid().IsExpanded(Row("PORT/PDATA")));
  EXPECT_FALSE(Grid().IsExpanded(Row("CLOCK")));

  // Closed by its frame, it is open again with the next start: a file was named.
  Component().CloseView();
  Quit();
  Start();
  EXPECT_NE(Component().View(), nullptr);
}

TEST_F(Keeping, TheFileOfTheCommandLineWinsOverAStoredOne) {
  const std::string key = "{F866DB60-6186-11D5-8BBE-0004E2013C71}IOCtrlIOFile";
  const SessionValues::Names names{u"demo", u"demo", u"Debug"};
  SessionValues values;
  values.Set(names, platform::ToWide(key), u"$(WORKSPDIR)\\lumen2.io");
  std::string why;
  ASSERT_TRUE(SaveSessionFile(SessionFile().string(), values, why)) << why;
  Start("lumen3.io");
  OpenRow("CLOCK");
  EXPECT_EQ(Row("CLOCK/DEVICEID"), 0u);
  EXPECT_NE(Row("CLOCK/REVISION"), 0u);
  Quit();

  // A name that doesn't end in ".io" is shown as well.
  fs::copy_file(workspace.Native("lumen2.io"), workspace.Native("lumen.def"));
  Start("lumen.def");
  OpenRow("CLOCK");
  EXPECT_NE(Row("CLOCK/DEVICEID"), 0u);
}

TEST_F(Keeping, TheLayoutOfTheWindowComesBack) {
  Start();
  Window().resize(820, 540);
  Window().ViewFrame()->setFloating(true);
  EXPECT_EQ(Component().View()->dock_state, DockWindow::kFloating) << "the user's own docking counts";
  TogglePrintButton();
  ASSERT_TRUE(Menu("Register|Customize toolbar..."));
  Settle();
  ASSERT_TRUE(Answered());
  EXPECT_FALSE(Click(PaneBar(), kPrint));
  EXPECT_THAT(Component().View()->toolbar_commands, testing::Not(testing::Contains(kPrint)));
  Quit();

  Start();
  EXPECT_EQ(Window().size(), QSize(820, 540));
  EXPECT_TRUE(Window().ViewFrame()->isFloating());
  EXPECT_EQ(Component().View()->dock_state, DockWindow::kFloating);
  EXPECT_EQ(PaneBar().actions().size(), 7);
  InNextDialog([](QWidget& dialog) {
    EXPECT_EQ(dialog.findChild<QListWidget*>()->item(3)->checkState(), Qt::Unchecked);
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->text() == "&Reset") QTest::mouseClick(button, Qt::LeftButton);
    }
    Press(dialog, QDialogButtonBox::Ok);
  });
  ASSERT_TRUE(Menu("Register|Customize toolbar..."));
  Settle();
  EXPECT_EQ(PaneBar().actions().size(), 8);

  // A view that is closed and opened again takes its old place.
  Component().CloseView();
  Settle();
  Key(Qt::Key_I, Qt::ControlModifier);
  EXPECT_TRUE(Window().ViewFrame()->isFloating());

  Window().close();
  EXPECT_TRUE(Window().ViewFrame()->close()) << "the program can end";
}

TEST_F(Keeping, FontAndColoursAreChosenInTheFormatDialog) {
  Start();
  InNextDialog([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Format - IO");
    EXPECT_EQ(dialog.findChild<QFontComboBox*>()->currentText(), "Courier New");
    auto* size = dialog.findChild<QSpinBox*>();
    EXPECT_EQ(size->value(), 11);
    QComboBox* text = dialog.findChildren<QComboBox*>()[1];
    EXPECT_EQ(text->currentText(), "SYSTEM");
    QTest::keyClicks(text, "DARKBLUE");
    EXPECT_EQ(text->currentText(), "DARKBLUE");
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
      if (!label->text().startsWith("PDATA")) continue;
      EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(0, 0, 0x80));
    }
    QTest::keyClick(size, Qt::Key_Up);
    Press(dialog, QDialogButtonBox::Apply);
    QTest::keyClick(size, Qt::Key_Up);
    Press(dialog, QDialogButtonBox::Cancel);
  });
  const int line = Grid().GetLineHeight();
  ASSERT_TRUE(Menu("View|Format..."));
  ASSERT_TRUE(Answered());
  EXPECT_GT(Grid().GetLineHeight(), line);
  const UserSettings& settings = Host().settings;
  EXPECT_EQ(std::get<std::int32_t>(*settings.Find(u"", u"PVW_IO_FONT_SIZE")), 12) << "the last was cancelled";
  EXPECT_EQ(std::get<std::int32_t>(*settings.Find(u"", u"PVW_IO_FGCOLOUR")), 10);
  EXPECT_THAT(ReadFile(settings_file), HasSubstr("PVW_IO_FGCOLOUR")) << "at once on the disk";

  Quit();
  Start();
  EXPECT_GT(Grid().GetLineHeight(), line);
}

TEST_F(Keeping, FilesThatCantBeUsedAreToldOfAndKeptAside) {
  WriteAll(settings_file, "{\"settings\": [");
  WriteAll(SessionFile(), "no session");
  std::string told;
  TakeBox(told);
  Start();
  ASSERT_TRUE(Until([&] { return !told.empty(); }));
  EXPECT_THAT(told, HasSubstr("settings.json"));
  EXPECT_THAT(told, HasSubstr("session.json"));
  EXPECT_NE(Component().View(), nullptr);
  Quit();
  EXPECT_EQ(ReadFile(settings_file + ".bad") + ReadFile(SessionFile().string() + ".bad"),
            "{\"settings\": [no session");
}

TEST_F(Keeping, AStoreThatCantBeWrittenIsToldOfAndTheProgramGoesOn) {
  Start();
  // A file lies where the session's directory is to be.
  WriteAll(workspace.Native(".ioview"), "");
  std::string told;
  TakeBox(told);
  ASSERT_TRUE(Menu("File|Save Session"));
  ASSERT_TRUE(Until([&] { return !told.empty(); }));
  EXPECT_THAT(told, HasSubstr("session.json"));
  fs::remove(workspace.Native(".ioview"));
  ASSERT_TRUE(Menu("File|Save Session"));
  EXPECT_TRUE(fs::exists(SessionFile())) << "a second try writes it";

  ASSERT_TRUE(Menu("File|Exit"));
  EXPECT_FALSE(Window().isVisible());
}

TEST_F(Keeping, LayoutsOfAnyContentAreTakenForNone) {
  const std::string good = WindowLayout{"place", "state", {1, 2}}.ToBytes();
  EXPECT_EQ(WindowLayout::FromBytes(good).hidden_buttons, (std::set<std::uint32_t>{1, 2}));
  for (std::size_t cut = 0; cut < good.size(); ++cut) {
    EXPECT_TRUE(WindowLayout::FromBytes(good.substr(0, cut)).state.isEmpty()) << cut;
  }
  std::string many = good;
  many.replace(many.size() - 12, 4, "\xFF\xFF\xFF\xFF");
  EXPECT_TRUE(WindowLayout::FromBytes(many).hidden_buttons.empty());

  Start();
  WindowLayout odd;
  odd.geometry = "not a place";
  odd.state = "not a state";
  Window().SetLayout(odd);
  Settle();
  EXPECT_TRUE(Window().ViewFrame()->isVisible());
}

}  // namespace
}  // namespace ioview::test
