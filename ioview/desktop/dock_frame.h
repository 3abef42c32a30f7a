// The widgets around a dockable window: its frame with title and buttons, the toolbar in it, the room for its
// pages, and their tabs.
#pragma once

#include <QtWidgets/qdockwidget.h>

#include <cstdint>
#include <functional>
#include <set>

#include "ioview/desktop/command_binder.h"
#include "ioview/desktop/toolbar_buttons.h"
#include "ioview/ui/dock_window.h"

class QTabBar;
class QToolBar;

namespace ioview {

class DockFrame final : public QDockWidget {
 public:
  struct Wishes {
    std::function<void(DockWindow&)> close;                       // by the frame's own button
    std::function<void(DockWindow&, std::size_t)> activate_page;  // by a tab
  };

  // `binder` must outlive the frame; the window must until Forget.
  DockFrame(DockWindow& dock, CommandBinder& binder, Wishes wishes, QWidget* parent);

  // Null once the window is gone.
  DockWindow* Dock() const { return dock_; }
  void Forget() { dock_ = nullptr; }
  // Where the window's own widget goes.
  QWidget* Room() const { return room_; }
  // All buttons of the toolbar, whether or not they show.
  const std::vector<ToolbarButton>& Buttons() const { return buttons_; }

  // Shows the window as it is, with the buttons that aren't hidden.
  void Sync(const std::set<std::uint32_t>& hidden_buttons);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void SyncTabs();
  void SyncToolbar(const std::set<std::uint32_t>& hidden_buttons);
  platform::HWND ActivePage() const;

  DockWindow* dock_;
  CommandBinder& binder_;
  const Wishes wishes_;
  QToolBar* toolbar_;
  QWidget* room_;
  QTabBar* tabs_;
  std::vector<ToolbarButton> buttons_;
  std::uint32_t toolbar_id_ = 0;
  std::set<std::uint32_t> hidden_;
  bool syncing_ = false;
};

}  // namespace ioview
