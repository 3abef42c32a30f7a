// Lets the user choose which buttons of a toolbar show.
#pragma once

#include <QtWidgets/qdialog.h>

#include <cstdint>
#include <set>
#include <vector>

#include "ioview/desktop/toolbar_buttons.h"

class QListWidget;

namespace ioview {

class HostUi;

class CustomizeDialog final : public QDialog {
 public:
  CustomizeDialog(const HostUi& ui, const std::vector<ToolbarButton>& buttons,
                  const std::set<std::uint32_t>& hidden, QWidget* parent);

  // The commands whose buttons aren't to show.
  std::set<std::uint32_t> Hidden() const;

 private:
  QListWidget* list_;
};

}  // namespace ioview
