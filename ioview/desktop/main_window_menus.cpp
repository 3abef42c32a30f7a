// The menus of the main window that are the host's own.

#include <QtGui/qkeysequence.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qmenubar.h>
#include <QtWidgets/qmessagebox.h>
#include <QtWidgets/qstyle.h>
#include <QtWidgets/qtoolbar.h>

#include <optional>

#include "ioview/desktop/format_dialog.h"
#include "ioview/desktop/main_window.h"
#include "platform/gui/common_dialogs.h"
#include "platform/qt/convert.h"
#include "platform/qt/guard.h"

namespace ioview {

using platform::qt::Guarded;
using platform::qt::ToQt;

namespace {

constexpr char kDefinitionFilter[] = "I/O Files (*.io)|*.io||";

struct TargetEntry {
  const char* text;
  const char* tip;
  const char* keys;
  QStyle::StandardPixmap picture;
  void (TargetControl::*run)();
  bool (*can)(const TargetControl& target);
};
constexpr TargetEntry kTargetEntries[] = {
    {"&Connect", "Connect the target", "", QStyle::SP_DialogApplyButton, &TargetControl::Connect,
     [](const TargetControl& target) { return !target.IsConnected(); }},
    {"&Disconnect", "Disconnect the target", "", QStyle::SP_DialogCancelButton, &TargetControl::Disconnect,
     [](const TargetControl& target) { return target.IsConnected(); }},
    {nullptr, nullptr, nullptr, {}, nullptr, nullptr},
    {"&Run", "Let the target run", "F5", QStyle::SP_MediaPlay, &TargetControl::Run,
     [](const TargetControl& target) { return target.IsStopped(); }},
    {"&Stop", "Stop the target", "Shift+F5", QStyle::SP_MediaStop, &TargetControl::Stop,
     [](const TargetControl& target) { return target.IsRunning(); }},
    {nullptr, nullptr, nullptr, {}, nullptr, nullptr},
    {"S&tep", "Run one step of the target's program", "F11", QStyle::SP_MediaSkipForward,
     &TargetControl::Step, [](const TargetControl& target) { return target.IsStopped(); }},
    {"Step &Quietly", "Run ten steps and read the registers after the last", "Shift+F11",
     QStyle::SP_MediaSeekForward, &TargetControl::StepQuietly,
     [](const TargetControl& target) { return target.IsStopped(); }},
};

QAction* AddEntry(QMenu& menu, const char* text, const char* tip, const char* keys = "") {
  QAction* const action = menu.addAction(QLatin1String(text));
  action->setStatusTip(QLatin1String(tip));
  if (*keys != '\0') action->setShortcut(QKeySequence(QLatin1String(keys)));
  return action;
}

}  // namespace

void MainWindow::MakeMenus() {
  menus_ = std::make_unique<ComponentMenus>(*menuBar(), instance_.host.ui, binder_,
                                            [this] { return ShownPane(); });
  MakeFileMenu(*menuBar()->addMenu(QStringLiteral("&File")));
  MakeViewMenu(*menuBar()->addMenu(QStringLiteral("&View")));
  pane_menu_ = menuBar()->addMenu(QStringLiteral("&Register"));
  connect(pane_menu_, &QMenu::aboutToShow, this, [this] { menus_->FillPaneMenu(*pane_menu_); });
  MakeDebugMenu(*menuBar()->addMenu(QStringLiteral("&Debug")));
  MakeTestMenu(*menuBar()->addMenu(QStringLiteral("&Test")));
  QMenu* const help = menuBar()->addMenu(QStringLiteral("&Help"));
  MakeHelpMenu(*help);
  menus_->SetEnd(help->menuAction());
  for (const QAction* const menu : menuBar()->actions()) {
    connect(menu->menu(), &QMenu::aboutToShow, this, [this] { RefreshStates(); });
  }
}

void MainWindow::MakeFileMenu(QMenu& menu) {
  connect(
      AddEntry(menu, "&Open I/O Definition...", "Show the registers of another definition file", "Ctrl+O"),
      &QAction::triggered, this, [this] { Guarded([this] { OpenDefinition(); }); });
  connect(AddEntry(menu, "&Save Session", "Save what the workspace's session and the user's settings hold",
                   "Ctrl+S"),
          &QAction::triggered, this, [this] { Guarded(program_.save_session); });
  menu.addSeparator();
  connect(AddEntry(menu, "E&xit", "Close the program", "Ctrl+Q"), &QAction::triggered, this,
          [this] { close(); });
}

// Entries of components come in front of the first separator.
void MainWindow::MakeViewMenu(QMenu& menu) {
  menu.addSeparator();
  windows_ = menu.addMenu(QStringLiteral("&Windows"));
  connect(windows_, &QMenu::aboutToShow, this, [this] { FillWindowEntries(); });
  other_page_ = AddEntry(menu, "Next &Page", "Show the other page of the view", "Ctrl+Tab");
  connect(other_page_, &QAction::triggered, this, [this] { ShowOtherPage(); });
  menu.addSeparator();
  format_ = AddEntry(menu, "&Format...", "Choose the font and the colours of the view");
  connect(format_, &QAction::triggered, this, [this] { ShowFormatDialog(); });
}

void MainWindow::FillWindowEntries() {
  windows_->clear();
  for (const DockFrame* const frame : frames_) {
    if (frame->Dock() == nullptr) continue;
    QAction* const entry = windows_->addAction(frame->windowTitle());
    entry->setCheckable(true);
    entry->setChecked(frame->Dock()->is_shown);
    entry->setStatusTip(QStringLiteral("Show or hide this window"));
    connect(entry, &QAction::triggered, this, [this, handle = frame->Dock()->GetHandle()] {
      if (DockWindow* const dock = instance_.host.ui.FindDock(handle)) ToggleDock(*dock);
    });
  }
  if (!windows_->isEmpty()) windows_->addSeparator();
  windows_->addAction(target_bar_->toggleViewAction());
  for (const Bar& bar : bars_) windows_->addAction(bar.bar->toggleViewAction());
}

void MainWindow::MakeDebugMenu(QMenu& menu) {
  target_bar_->setObjectName(QStringLiteral("Debug"));
  target_bar_->setIconSize(QSize(16, 16));
  target_bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  for (const TargetEntry& entry : kTargetEntries) {
    if (entry.text == nullptr) {
      menu.addSeparator();
      target_bar_->addSeparator();
      continue;
    }
    QAction* const action = AddEntry(menu, entry.text, entry.tip, entry.keys);
    action->setIcon(style()->standardIcon(entry.picture));
    QString tip = QLatin1String(entry.tip);
    if (*entry.keys != '\0') tip += QStringLiteral(" (%1)").arg(QLatin1String(entry.keys));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, [this, run = entry.run] {
      Guarded([&] { (target_.*run)(); });
      RefreshStates();
    });
    target_bar_->addAction(action);
    own_actions_.push_back({action, [this, can = entry.can] { return can(target_); }});
  }
  menu.addSeparator();
  demo_ = AddEntry(menu, "Target &Memory Moves", "Let registers change by themselves at each step");
  demo_->setCheckable(true);
  connect(demo_, &QAction::triggered, this, [this](bool on) { target_.demo.Switch(on); });
}

// Registers are read from a target that stands still.
void MainWindow::MakeTestMenu(QMenu& menu) {
  const auto add = [&](const char* text, const char* tip, void (TestCommands::*run)(), bool reads) {
    QAction* const action = AddEntry(menu, text, tip);
    connect(action, &QAction::triggered, this, [this, run] {
      Guarded([&] { (tests_.*run)(); });
      SyncLater();
    });
    own_actions_.push_back(
        {action, [this, reads] { return tests_.CanTest() && (!reads || target_.IsStopped()); }});
  };
  add("Choose &Registers...", "Choose the registers that are captured", &TestCommands::ChooseRegisters,
      false);
  menu.addSeparator();
  add("&Capture...", "Read the chosen registers and write them to a file", &TestCommands::Capture, true);
  add("C&ompare...", "Show what differs between the target and a captured file", &TestCommands::Compare,
      true);
}

void MainWindow::MakeHelpMenu(QMenu& menu) {
  connect(AddEntry(menu, "&About ioview", "Say what this program is"), &QAction::triggered, this,
          [this] { QMessageBox::about(this, QStringLiteral("About ioview"), ToQt(program_.about())); });
}

// Toolbars alone: a dock is shown and hidden by its component.
QMenu* MainWindow::createPopupMenu() {
  auto* const menu = new QMenu(this);
  menu->addAction(target_bar_->toggleViewAction());
  for (const Bar& bar : bars_) menu->addAction(bar.bar->toggleViewAction());
  return menu;
}

void MainWindow::OpenDefinition() {
  platform::FileDialogRequest request;
  request.default_extension = "io";
  request.filter = kDefinitionFilter;
  request.directory = instance_.host.workspace.directory;
  request.path_must_exist = true;
  const std::optional<std::string> path = platform::RunFileDialog(request);
  if (!path) return;
  // It loads into a view that is open.
  if (ShownPane() == 0) Instance::RunCommand(kOpenViewCommand, instance_.Frame());
  instance_.LoadIOFile(*path, 0);
}

void MainWindow::ShowFormatDialog() {
  pvw::IQFormatViewClient2* const client = instance_.Format();
  if (client == nullptr) return;
  FormatDialog(*client, this).exec();
  program_.save_settings();
}

}  // namespace ioview
