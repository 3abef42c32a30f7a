#include "ioview/desktop/command_binder.h"

#include <QtWidgets/qmenu.h>

#include "ioview/component/instance.h"
#include "ioview/ui/host_ui.h"
#include "platform/qt/convert.h"
#include "platform/qt/guard.h"

namespace ioview {

using platform::qt::ToQt;

QAction* CommandBinder::Make(QObject* owner, std::uint32_t command, const QString& text, Target target) {
  const HostUi::CommandTexts texts = ui_.TextsOf(command);
  auto* const action = new QAction(text.isEmpty() ? ToQt(texts.tool_tip) : text, owner);
  action->setData(command);
  action->setStatusTip(ToQt(texts.status_line));
  if (!texts.tool_tip.empty()) action->setToolTip(ToQt(texts.tool_tip));
  // What it captures outlives the action, which a command may take away.
  QObject::connect(action, &QAction::triggered, action, [this, command, target] { Run(command, target()); });
  bound_.push_back({action, command, std::move(target)});
  Show(bound_.back());
  return action;
}

void CommandBinder::Fill(QMenu& menu, const std::vector<platform::PopupMenuItem>& items,
                         const Target& target) {
  for (const platform::PopupMenuItem& item : items) {
    if (item.text.empty()) {
      menu.addSeparator();
    } else if (!item.items.empty()) {
      Fill(*menu.addMenu(ToQt(item.text)), item.items, target);
    } else {
      menu.addAction(Make(&menu, item.id, ToQt(item.text), target));
    }
  }
}

bool CommandBinder::Run(std::uint32_t command, platform::HWND target) {
  bool done = false;
  platform::qt::Guarded([&] { done = Instance::RunCommand(command, target); });
  platform::qt::Guarded(ran_);
  return done;
}

void CommandBinder::Refresh() {
  std::erase_if(bound_, [](const Bound& bound) { return bound.action == nullptr; });
  // An update handler knows nothing of menus, so none is added meanwhile.
  for (const Bound& bound : bound_) Show(bound);
}

void CommandBinder::Show(const Bound& bound) {
  platform::qt::Guarded([&] {
    const Instance::CommandState state = Instance::StateOf(bound.command, bound.target());
    bound.action->setEnabled(state.enabled);
    // Without a box in front of entries that are never checked.
    bound.action->setCheckable(state.checked);
    bound.action->setChecked(state.checked);
  });
}

}  // namespace ioview
