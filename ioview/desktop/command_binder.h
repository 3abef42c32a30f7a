// Menu entries and buttons that stand for commands of the component: they run in its windows, and show what
// its update handlers say.
#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qpointer.h>
#include <QtGui/qaction.h>

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "platform/base/types.h"
#include "platform/gui/display.h"

class QMenu;

namespace ioview {

class HostUi;

class CommandBinder {
 public:
  // The window that a command goes to, asked each time; 0 for none.
  using Target = std::function<platform::HWND()>;

  // `ran` is called after each command that the user gave.
  CommandBinder(const HostUi& ui, std::function<void()> ran) : ui_(ui), ran_(std::move(ran)) {}
  CommandBinder(const CommandBinder&) = delete;
  CommandBinder& operator=(const CommandBinder&) = delete;

  // A new action of `owner`, with the command's texts for status line and tool tip; an action without a text
  // takes the tool tip for it. It is forgotten when it is deleted.
  QAction* Make(QObject* owner, std::uint32_t command, const QString& text, Target target);
  // All entries of a menu resource, submenus included, at the end of `menu`.
  void Fill(QMenu& menu, const std::vector<platform::PopupMenuItem>& items, const Target& target);
  // Runs a command as one of its actions would. False when it is disabled.
  bool Run(std::uint32_t command, platform::HWND target);
  // Asks the update handlers.
  void Refresh();

 private:
  struct Bound {
    QPointer<QAction> action;
    std::uint32_t command;
    Target target;
  };
  static void Show(const Bound& bound);

  const HostUi& ui_;
  std::function<void()> ran_;
  std::vector<Bound> bound_;
};

}  // namespace ioview
