#include "ioview/desktop/main_window.h"

#include <QtCore/qmetaobject.h>
#include <QtCore/qtimer.h>
#include <QtGui/qevent.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qboxlayout.h>
#include <QtWidgets/qlabel.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qstatusbar.h>
#include <QtWidgets/qtoolbar.h>

#include <algorithm>
#include <utility>

#include "ioview/desktop/customize_dialog.h"
#include "platform/gui/window.h"
#include "platform/qt/convert.h"
#include "platform/qt/guard.h"

namespace ioview {

using platform::HWND;
using platform::qt::Guarded;
using platform::qt::ToQt;

namespace {

constexpr QSize kFirstSize(1000, 680);
// How often buttons follow what nobody announces, such as the end of a search.
constexpr int kLookMilliseconds = 250;
constexpr std::uint32_t kHideDock = 1;
constexpr std::uint32_t kShowDock = 2;

// The same for every workspace: the part of the identity in front of their keys.
QString LayoutName(const DockWindow& dock) {
  return ToQt(dock.Identity()).section(QLatin1Char('}'), 0, 0);
}

}  // namespace

MainWindow::MainWindow(Instance& instance, Program program)
    : instance_(instance),
      program_(std::move(program)),
      target_(instance),
      tests_(instance, *this),
      binder_(instance.host.ui, [this] { SyncLater(); }),
      keys_(instance.host.ui,
            [this](const HostUi::KeyCommand& command) { binder_.Run(command.command, command.target); }),
      hidden_room_(new QWidget),
      target_bar_(new QToolBar(QStringLiteral("Debug"))),
      target_state_(new QLabel) {
  setWindowTitle(QStringLiteral("ioview"));
  resize(kFirstSize);
  setDockOptions(AnimatedDocks | AllowTabbedDocks | AllowNestedDocks);

  // Docks fill the window. What lies behind them shows when there are none.
  auto* const behind = new QWidget(this);
  auto* const hint =
      new QLabel(QStringLiteral("No view is open.\n\nView > CPU > IO (Ctrl+I) opens the I/O view."));
  hint->setAlignment(Qt::AlignCenter);
  hint->setEnabled(false);
  auto* const layout = new QVBoxLayout(behind);
  layout->addWidget(hint);
  hidden_room_->setParent(behind);
  hidden_room_->hide();
  setCentralWidget(behind);

  MakeMenus();
  addToolBar(target_bar_);
  statusBar()->addPermanentWidget(target_state_);
  instance_.host.ui.SetObserver(this);

  auto* const look = new QTimer(this);
  connect(look, &QTimer::timeout, this, [this] {
    target_.demo.Look();
    if (menus_changed_) SyncLater();
    RefreshStates();
  });
  look->start(kLookMilliseconds);
  SyncNow();
}

MainWindow::~MainWindow() {
  instance_.host.ui.SetObserver(nullptr);
  for (DockFrame* const frame : frames_) frame->Forget();
}

// Docks --------------------------------------------------------------------------------------------------

DockFrame* MainWindow::FrameOf(const DockWindow& dock) const {
  const auto found =
      std::ranges::find_if(frames_, [&](const DockFrame* frame) { return frame->Dock() == &dock; });
  return found != frames_.end() ? *found : nullptr;
}

QWidget* MainWindow::ContainerOf(const platform::CWnd& window) {
  for (const std::unique_ptr<DockWindow>& dock : instance_.host.ui.Docks()) {
    if (dock.get() != &window) continue;
    DockFrame* const known = FrameOf(*dock);
    return (known != nullptr ? known : MakeFrame(*dock))->Room();
  }
  return nullptr;
}

DockFrame* MainWindow::MakeFrame(DockWindow& dock) {
  auto* const frame = new DockFrame(dock, binder_,
                                    {[this](DockWindow& closed) { CloseDock(closed); },
                                     [this](DockWindow& shown, std::size_t page) {
                                       Guarded([&] {
                                         instance_.host.ui.ActivatePage(shown, page);
                                         FocusPage();
                                       });
                                     }},
                                    this);
  QString name = LayoutName(dock);
  while (findChild<QWidget*>(name) != nullptr) name += QLatin1Char('+');
  frame->setObjectName(name);
  frames_.push_back(frame);
  if (!restoreDockWidget(frame)) addDockWidget(Qt::BottomDockWidgetArea, frame);
  if (frame->isFloating()) dock.dock_state = DockWindow::kFloating;
  frame->hide();
  SyncLater();
  return frame;
}

void MainWindow::DockGone(DockWindow& dock) {
  DockFrame* const frame = FrameOf(dock);
  if (frame == nullptr) return;
  frame->Forget();
  std::erase(frames_, frame);
  // One that comes after it takes its place.
  const QByteArray state = saveState();
  removeDockWidget(frame);
  frame->setObjectName(QString());
  frame->deleteLater();
  restoreState(state);
  SyncLater();
}

// The component takes its pages away, and the window goes with the last. One without pages goes by itself.
void MainWindow::CloseDock(DockWindow& dock) {
  Guarded([&] {
    const HWND handle = dock.GetHandle();
    if (instance_.View() == &dock) instance_.CloseView();
    DockWindow* const left = instance_.host.ui.FindDock(handle);
    if (left != nullptr && left->Pages().empty()) instance_.host.ui.DestroyDock(handle);
  });
  SyncLater();
}

void MainWindow::ToggleDock(DockWindow& dock) {
  Guarded([&] {
    const HWND handle = dock.GetHandle();
    const bool show = !dock.is_shown;
    if (instance_.View() == &dock && show) {
      Instance::RunCommand(kOpenViewCommand, instance_.Frame());
    } else if (instance_.View() == &dock) {
      instance_.HidePane(instance_.Pane(PaneIndex::kAll) != nullptr ? PaneIndex::kAll : PaneIndex::kSelected);
    }
    DockWindow* const left = instance_.host.ui.FindDock(handle);
    if (left != nullptr && left->is_shown != show) {
      instance_.host.ui.SetDockState(*left, show ? kShowDock : kHideDock);
    }
  });
  SyncLater();
}

DockFrame* MainWindow::ViewFrame() const {
  const DockWindow* const view = instance_.View();
  return view != nullptr ? FrameOf(*view) : nullptr;
}

HWND MainWindow::ShownPane() const {
  const DockWindow* const view = instance_.View();
  if (view == nullptr || !view->is_shown || view->ActivePage() >= view->Pages().size()) return 0;
  return view->Pages()[view->ActivePage()].window;
}

void MainWindow::FocusPage() {
  if (const HWND pane = ShownPane()) platform::SetFocus(pane);
}

void MainWindow::ShowOtherPage() {
  DockWindow* const view = instance_.View();
  if (view == nullptr || view->Pages().empty()) return;
  Guarded([&] {
    instance_.host.ui.ActivatePage(*view, (view->ActivePage() + 1) % view->Pages().size());
    FocusPage();
  });
}

void MainWindow::CustomizeToolbar(DockWindow& dock) {
  QMetaObject::invokeMethod(
      this, [this, handle = dock.GetHandle()] { ShowCustomizeDialog(handle); }, Qt::QueuedConnection);
}

void MainWindow::ShowCustomizeDialog(HWND handle) {
  const DockWindow* const dock = instance_.host.ui.FindDock(handle);
  const DockFrame* const frame = dock != nullptr ? FrameOf(*dock) : nullptr;
  if (frame == nullptr) return;
  CustomizeDialog dialog(instance_.host.ui, frame->Buttons(), hidden_buttons_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  hidden_buttons_ = dialog.Hidden();
  SyncNow();
  program_.save_settings();
}

// Layout -------------------------------------------------------------------------------------------------

void MainWindow::SetLayout(const WindowLayout& layout) {
  hidden_buttons_ = layout.hidden_buttons;
  if (!layout.geometry.isEmpty()) restoreGeometry(layout.geometry);
  if (!layout.state.isEmpty()) restoreState(layout.state);
  for (const DockFrame* const frame : frames_) {
    if (frame->Dock() != nullptr) {
      frame->Dock()->dock_state = frame->isFloating() ? DockWindow::kFloating : DockWindow::kDocked;
    }
  }
  SyncNow();
}

WindowLayout MainWindow::GetLayout() const {
  return {saveGeometry(), saveState(), hidden_buttons_};
}

// Following the host -------------------------------------------------------------------------------------

void MainWindow::MenusChanged() {
  menus_changed_ = true;
  SyncLater();
}

void MainWindow::SyncLater() {
  if (std::exchange(sync_waits_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (sync_waits_) SyncNow();
      },
      Qt::QueuedConnection);
}

void MainWindow::SyncNow() {
  sync_waits_ = false;
  // An open menu keeps its entries; the next look comes soon.
  if (menus_changed_ && QApplication::activePopupWidget() == nullptr) {
    menus_changed_ = false;
    menus_->Rebuild();
    SyncBars();
  }
  bool docked = false;
  for (DockFrame* const frame : frames_) {
    frame->Sync(hidden_buttons_);
    const DockWindow* const dock = frame->Dock();
    docked = docked || (dock != nullptr && dock->is_shown && !frame->isFloating());
  }
  centralWidget()->setVisible(!docked);
  RefreshStates();
}

// A toolbar that a component has registered is one of the main window's.
void MainWindow::SyncBars() {
  const std::vector<Registration>& registered = instance_.host.ui.Registrations();
  std::erase_if(bars_, [&](const Bar& bar) {
    const bool kept = std::ranges::any_of(registered, [&](const Registration& entry) {
      return entry.kind == RegistrationKind::kToolbar && entry.identity == bar.identity;
    });
    if (!kept) bar.bar->deleteLater();
    return !kept;
  });
  for (const Registration& entry : registered) {
    if (entry.kind != RegistrationKind::kToolbar) continue;
    if (std::ranges::any_of(bars_, [&](const Bar& bar) { return bar.identity == entry.identity; })) continue;
    auto* const bar = new QToolBar(ToQt(entry.title), this);
    bar->setObjectName(ToQt(entry.identity));
    bar->setIconSize(QSize(16, 16));
    for (const ToolbarButton& button : LoadToolbarButtons(entry.module, entry.resource)) {
      if (button.command == 0) {
        bar->addSeparator();
        continue;
      }
      QAction* const action = binder_.Make(bar, button.command, QString(), [this, command = button.command] {
        return instance_.host.ui.SinkOf(command);
      });
      action->setIcon(button.icon);
      bar->addAction(action);
      if (windowIcon().isNull()) setWindowIcon(button.icon);
    }
    addToolBar(bar);
    bars_.push_back({entry.identity, bar});
  }
}

void MainWindow::RefreshStates() {
  binder_.Refresh();
  for (const OwnAction& action : own_actions_) action.action->setEnabled(action.can());
  demo_->setChecked(target_.demo.IsOn());
  target_state_->setText(QStringLiteral("Target: ") + ToQt(target_.StateText()));
  const DockWindow* const view = instance_.View();
  pane_menu_->menuAction()->setEnabled(instance_.host.ui.PopupMenuOf(ShownPane()) != nullptr);
  other_page_->setEnabled(view != nullptr && view->is_shown && view->Pages().size() > 1);
  format_->setEnabled(instance_.Format() != nullptr);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  Guarded(program_.closed);
  event->accept();
}

}  // namespace ioview
