// The menus of the main window that come from a component: what it has registered merges into the menu bar by
// its texts, and the pane that shows has a menu of its own.
#pragma once

#include <QtCore/qpointer.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qmenubar.h>

#include <functional>
#include <vector>

#include "ioview/desktop/command_binder.h"
#include "ioview/ui/host_ui.h"

namespace ioview {

class ComponentMenus {
 public:
  // `pane` says which pane shows, 0 for none.
  ComponentMenus(QMenuBar& bar, const HostUi& ui, CommandBinder& binder, std::function<platform::HWND()> pane)
      : bar_(bar), ui_(ui), binder_(binder), pane_(std::move(pane)) {}
  ComponentMenus(const ComponentMenus&) = delete;
  ComponentMenus& operator=(const ComponentMenus&) = delete;

  // New menus of the bar come before this action.
  void SetEnd(QAction* before) { end_ = before; }
  // Takes the entries of the last time away and merges anew.
  void Rebuild();
  // The popup menu of the pane that shows; empty and false without one. For a menu that is about to show.
  bool FillPaneMenu(QMenu& menu);

 private:
  void MergeMenu(const std::vector<platform::PopupMenuItem>& items);
  void Merge(QMenu& menu, const std::vector<platform::PopupMenuItem>& items);

  QMenuBar& bar_;
  const HostUi& ui_;
  CommandBinder& binder_;
  std::function<platform::HWND()> pane_;
  QPointer<QAction> end_;
  std::vector<QPointer<QAction>> merged_;
};

}  // namespace ioview
