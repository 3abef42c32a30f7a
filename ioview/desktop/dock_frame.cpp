#include "ioview/desktop/dock_frame.h"

#include <QtCore/qmetaobject.h>
#include <QtCore/qscopedvaluerollback.h>
#include <QtGui/qevent.h>
#include <QtWidgets/qboxlayout.h>
#include <QtWidgets/qtabbar.h>
#include <QtWidgets/qtoolbar.h>

#include <utility>

#include "platform/qt/convert.h"

namespace ioview {

using platform::qt::ToQt;

DockFrame::DockFrame(DockWindow& dock, CommandBinder& binder, Wishes wishes, QWidget* parent)
    : QDockWidget(parent),
      dock_(&dock),
      binder_(binder),
      wishes_(std::move(wishes)),
      toolbar_(new QToolBar(this)),
      room_(new QWidget(this)),
      tabs_(new QTabBar(this)) {
  setWindowTitle(ToQt(dock.Title()));
  setAllowedAreas(Qt::AllDockWidgetAreas);

  toolbar_->setMovable(false);
  toolbar_->setIconSize(QSize(16, 16));
  toolbar_->setContextMenuPolicy(Qt::PreventContextMenu);
  tabs_->setShape(QTabBar::RoundedSouth);
  tabs_->setDrawBase(false);
  tabs_->setExpanding(false);
  // A click on a tab goes to its page, not to the tabs.
  tabs_->setFocusPolicy(Qt::NoFocus);
  auto* const inside = new QVBoxLayout(room_);
  inside->setContentsMargins(0, 0, 0, 0);

  auto* const contents = new QWidget(this);
  auto* const layout = new QVBoxLayout(contents);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(toolbar_);
  layout->addWidget(room_, 1);
  layout->addWidget(tabs_);
  setWidget(contents);

  connect(this, &QDockWidget::topLevelChanged, this, [this](bool floating) {
    if (dock_ != nullptr && !syncing_) {
      dock_->dock_state = floating ? DockWindow::kFloating : DockWindow::kDocked;
    }
  });
  connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) {
    if (dock_ != nullptr && !syncing_ && tab >= 0)
      wishes_.activate_page(*dock_, static_cast<std::size_t>(tab));
  });
}

// The window decides what becomes of it; the frame goes when it does. Behind a main window that has closed, a
// floating frame goes with the program, which doesn't end while one refuses.
void DockFrame::closeEvent(QCloseEvent* event) {
  if (!parentWidget()->isVisible()) {
    QDockWidget::closeEvent(event);
    return;
  }
  event->ignore();
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (dock_ != nullptr) wishes_.close(*dock_);
      },
      Qt::QueuedConnection);
}

platform::HWND DockFrame::ActivePage() const {
  if (dock_ == nullptr || dock_->ActivePage() >= dock_->Pages().size()) return 0;
  return dock_->Pages()[dock_->ActivePage()].window;
}

void DockFrame::Sync(const std::set<std::uint32_t>& hidden_buttons) {
  if (dock_ == nullptr) return;
  const QScopedValueRollback syncing(syncing_, true);
  SyncToolbar(hidden_buttons);
  SyncTabs();
  const bool floating = dock_->dock_state != DockWindow::kDocked;
  if (isFloating() != floating) setFloating(floating);
  setVisible(dock_->is_shown);
}

void DockFrame::SyncTabs() {
  const std::vector<DockWindow::Page>& pages = dock_->Pages();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const int tab = static_cast<int>(i);
    const QString title = ToQt(pages[i].title);
    if (tab >= tabs_->count()) {
      tabs_->addTab(title);
    } else if (tabs_->tabText(tab) != title) {
      tabs_->setTabText(tab, title);
    }
  }
  while (tabs_->count() > static_cast<int>(pages.size())) tabs_->removeTab(tabs_->count() - 1);
  tabs_->setCurrentIndex(static_cast<int>(dock_->ActivePage()));
  // The bar takes the height that it had without a tab for its least.
  tabs_->setMinimumHeight(tabs_->sizeHint().height());
  tabs_->setVisible(!pages.empty());
}

void DockFrame::SyncToolbar(const std::set<std::uint32_t>& hidden_buttons) {
  if (toolbar_id_ != dock_->toolbar_id || hidden_ != hidden_buttons) {
    toolbar_id_ = dock_->toolbar_id;
    hidden_ = hidden_buttons;
    buttons_ = toolbar_id_ != 0 ? LoadToolbarButtons(dock_->toolbar_module, toolbar_id_)
                                : std::vector<ToolbarButton>();
    const QList<QAction*> before = toolbar_->actions();
    toolbar_->clear();
    for (QAction* const action : before) action->deleteLater();
    dock_->toolbar_commands.clear();
    for (const ToolbarButton& button : buttons_) {
      if (button.command == 0) {
        toolbar_->addSeparator();
      } else if (!hidden_.contains(button.command)) {
        QAction* const action =
            binder_.Make(toolbar_, button.command, QString(), [this] { return ActivePage(); });
        action->setIcon(button.icon);
        toolbar_->addAction(action);
        dock_->toolbar_commands.push_back(button.command);
      }
    }
  }
  toolbar_->setVisible(dock_->is_toolbar_shown && toolbar_id_ != 0);
}

}  // namespace ioview
