// Keys that a component has registered as accelerators: looked for ahead of the widget that has the focus.
#pragma once

#include <QtCore/qobject.h>

#include <functional>

#include "ioview/ui/host_ui.h"

namespace ioview {

class KeyFilter final : public QObject {
 public:
  using Run = std::function<void(const HostUi::KeyCommand& command)>;

  // Filters the events of the whole program as long as it lives.
  KeyFilter(const HostUi& ui, Run run);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  const HostUi& ui_;
  Run run_;
};

}  // namespace ioview
