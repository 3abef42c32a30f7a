// The desktop over the example device, off screen, with the hands of a user: real mouse and key events. The
// widgets that most tests look into come along.
#pragma once

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qdialogbuttonbox.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qlistwidget.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qmessagebox.h>
#include <QtWidgets/qpushbutton.h>
#include <QtWidgets/qtoolbar.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ioview/desktop/desktop.h"
#include "tests/support/temp_dir.h"

namespace ioview::test {

// Lets everything happen that waits to.
void Settle();
// Lets it happen until the condition holds; false when that takes more than some seconds.
bool Until(const std::function<bool()>& condition);

class DesktopStage : public testing::Test {
 protected:
  DesktopStage();
  ~DesktopStage() override;

  // Starts the program on the file in the workspace, as the command line would; the one before is gone.
  void Start(const std::string& file = "lumen3.io");
  // The user closes the window, and the program ends.
  void Quit();
  Instance& Component() { return desktop->GetInstance(); }
  MainWindow& Window() { return desktop->Window(); }
  HostServices& Host() { return Component().host; }
  platform::SECTreeCtrl& Grid(PaneIndex pane = PaneIndex::kAll) { return *Component().Grid(pane); }

  // What somebody else does to the target's memory, and what is in it.
  void Poke(std::uint32_t address, std::uint8_t byte) { Host().target.Poke(address, {&byte, 1}); }
  int Byte(std::uint32_t address);

  // By names from the module down, "PORT/PDATA"; 0 when there is none.
  platform::HTREEITEM Row(const std::string& path, PaneIndex pane = PaneIndex::kAll);
  void OpenRow(const std::string& path) { Grid().Expand(Row(path), platform::TVE_EXPAND); }
  std::string Value(const std::string& path) { return Grid().GetItemText(Row(path), 2); }
  // Whether a row is drawn red in the page that shows.
  bool ShowsRed();

  // Clicks through the menus; "Debug|Step". False when an entry isn't there or is disabled.
  bool Menu(const QString& path);
  // The texts of an open menu, without marks and keys; disabled ones in brackets, separators as "-".
  static QStringList Entries(const QMenu& menu);
  // Clicks the entry of the menu that is open.
  static bool Pick(QMenu& menu, const QString& text);
  bool Click(QToolBar& bar, std::uint32_t command);
  QToolBar& PaneBar();
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  // A click into the middle of one of a row's cells, with either button.
  void ClickRow(const std::string& path, Qt::MouseButton button = Qt::LeftButton, int column = 0);
  void DoubleClickCell(const std::string& path, int column);
  // Keys to whatever has the keyboard; characters go one by one.
  static void Type(const QString& text);
  // Through Qt's file dialog that is up: the name is typed, a file of the workspace.
  void NameFile(QWidget& dialog, const std::string& name);
  // What the user does in the next modal window, over the one that is up now if there is one; it must be
  // closed by it. `Answered` says whether it came.
  void InNextDialog(std::function<void(QWidget& dialog)> act);
  void InNextPopup(std::function<void(QMenu& menu)> act);
  static void Press(QWidget& dialog, QDialogButtonBox::StandardButton button);
  // Takes the Print button out of the toolbar, or puts it back, in the dialog that comes next.
  void TogglePrintButton();
  // Ends the next message box, and gives its text.
  void TakeBox(std::string& text);
  bool Answered() const { return answers_ == 0; }
  static QString Bare(QString text);
  static std::string ReadFile(const std::filesystem::path& path);

  pvw::test::TempDir workspace;
  std::string settings_file;
  ComponentLibrary library;
  std::unique_ptr<Desktop> desktop;

 private:
  void WaitFor(std::function<bool()> look);

  int answers_ = 0;  // that are still to come
  QObject here_;     // what waits goes with it
};

}  // namespace ioview::test
