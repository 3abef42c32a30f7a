#include "ioview/desktop/customize_dialog.h"

#include <QtWidgets/qboxlayout.h>
#include <QtWidgets/qdialogbuttonbox.h>
#include <QtWidgets/qlabel.h>
#include <QtWidgets/qlistwidget.h>
#include <QtWidgets/qpushbutton.h>

#include "ioview/ui/host_ui.h"
#include "platform/qt/convert.h"

namespace ioview {

CustomizeDialog::CustomizeDialog(const HostUi& ui, const std::vector<ToolbarButton>& buttons,
                                 const std::set<std::uint32_t>& hidden, QWidget* parent)
    : QDialog(parent), list_(new QListWidget(this)) {
  setWindowTitle(QStringLiteral("Customize Toolbar"));
  for (const ToolbarButton& button : buttons) {
    if (button.command == 0) continue;
    const HostUi::CommandTexts texts = ui.TextsOf(button.command);
    const QString text = platform::qt::ToQt(texts.tool_tip);
    auto* const item =
        new QListWidgetItem(button.icon, text.isEmpty() ? QString::number(button.command) : text, list_);
    item->setData(Qt::UserRole, button.command);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(hidden.contains(button.command) ? Qt::Unchecked : Qt::Checked);
  }
  list_->setCurrentRow(0);

  auto* const label = new QLabel(QStringLiteral("&Buttons that show:"), this);
  label->setBuddy(list_);
  auto* const box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  QPushButton* const reset = box->addButton(QStringLiteral("&Reset"), QDialogButtonBox::ResetRole);
  connect(reset, &QPushButton::clicked, this, [this] {
    for (int row = 0; row < list_->count(); ++row) list_->item(row)->setCheckState(Qt::Checked);
  });
  connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(list_);
  layout->addWidget(box);
  resize(320, 300);
}

std::set<std::uint32_t> CustomizeDialog::Hidden() const {
  std::set<std::uint32_t> hidden;
  for (int row = 0; row < list_->count(); ++row) {
    const QListWidgetItem* const item = list_->item(row);
    if (item->checkState() == Qt::Unchecked) hidden.insert(item->data(Qt::UserRole).toUInt());
  }
  return hidden;
}

}  // namespace ioview
