#include "ioview/desktop/component_menus.h"

#include "platform/base/app.h"
#include "platform/gui/menu.h"
#include "platform/gui/window.h"
#include "platform/qt/convert.h"

namespace ioview {

using platform::PopupMenuItem;
using platform::qt::ToQt;

namespace {

QString Bare(const QString& text) {
  return text.section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&'));
}

QMenu* FindMenu(const QWidget& in, const QString& text) {
  for (QAction* const action : in.actions()) {
    if (action->menu() != nullptr && Bare(action->text()) == Bare(text)) return action->menu();
  }
  return nullptr;
}

// Entries of a component stand in front of the host's own, which begin with a separator.
QAction* FirstSeparator(const QMenu& menu) {
  for (QAction* const action : menu.actions()) {
    if (action->isSeparator()) return action;
  }
  return nullptr;
}

std::vector<PopupMenuItem> ItemsOf(const Registration& registration) {
  const platform::ScopedResourceModule scope(registration.module);
  const platform::MenuResource* const menu = platform::LoadMenu(registration.resource);
  return menu != nullptr ? platform::MenuItems(menu->items) : std::vector<PopupMenuItem>();
}

}  // namespace

void ComponentMenus::Rebuild() {
  for (const QPointer<QAction>& action : merged_) {
    if (action == nullptr) continue;
    if (QMenu* const menu = action->menu()) {
      menu->deleteLater();
    } else {
      action->deleteLater();
    }
    for (QObject* const object : action->associatedObjects()) {
      if (auto* const widget = dynamic_cast<QWidget*>(object)) widget->removeAction(action);
    }
  }
  merged_.clear();
  for (const Registration& registration : ui_.Registrations()) {
    if (registration.kind == RegistrationKind::kMenu) MergeMenu(ItemsOf(registration));
  }
}

void ComponentMenus::MergeMenu(const std::vector<PopupMenuItem>& items) {
  for (const PopupMenuItem& item : items) {
    if (item.items.empty()) continue;
    QMenu* menu = FindMenu(bar_, ToQt(item.text));
    if (menu == nullptr) {
      menu = new QMenu(ToQt(item.text), &bar_);
      bar_.insertMenu(end_, menu);
      merged_.emplace_back(menu->menuAction());
    }
    Merge(*menu, item.items);
  }
}

void ComponentMenus::Merge(QMenu& menu, const std::vector<PopupMenuItem>& items) {
  QAction* const before = FirstSeparator(menu);
  for (const PopupMenuItem& item : items) {
    if (item.text.empty()) {
      merged_.emplace_back(menu.insertSeparator(before));
    } else if (item.items.empty()) {
      const std::uint32_t command = item.id;
      QAction* const action =
          binder_.Make(&menu, command, ToQt(item.text), [this, command] { return ui_.SinkOf(command); });
      menu.insertAction(before, action);
      merged_.emplace_back(action);
    } else if (QMenu* const known = FindMenu(menu, ToQt(item.text))) {
      Merge(*known, item.items);
    } else {
      auto* const added = new QMenu(ToQt(item.text), &menu);
      menu.insertMenu(before, added);
      merged_.emplace_back(added->menuAction());
      Merge(*added, item.items);
    }
  }
}

bool ComponentMenus::FillPaneMenu(QMenu& menu) {
  menu.clear();
  const platform::HWND pane = pane_();
  const Registration* const registration = ui_.PopupMenuOf(pane);
  if (registration == nullptr) return false;
  binder_.Fill(menu, ItemsOf(*registration), [pane_of = pane_] { return pane_of(); });
  return true;
}

}  // namespace ioview
