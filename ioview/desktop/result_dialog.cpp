#include "ioview/desktop/result_dialog.h"

#include <QtWidgets/qboxlayout.h>
#include <QtWidgets/qdialogbuttonbox.h>
#include <QtWidgets/qlabel.h>
#include <QtWidgets/qplaintextedit.h>

#include "platform/qt/convert.h"

namespace ioview {

namespace {

constexpr QSize kSizeWithLines(480, 280);

QString Sentence(std::size_t differences) {
  if (differences == 0) return QStringLiteral("No differences.");
  if (differences == 1) return QStringLiteral("One &difference:");
  return QStringLiteral("%1 &differences:").arg(differences);
}

}  // namespace

ResultDialog::ResultDialog(const QString& file, const std::vector<std::string>& lines, QWidget* parent)
    : QDialog(parent) {
  setWindowTitle(QStringLiteral("Compare - %1").arg(file));
  auto* const label = new QLabel(Sentence(lines.size()), this);
  auto* const box = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);

  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(label);
  if (!lines.empty()) {
    QStringList texts;
    for (const std::string& line : lines) texts += platform::qt::ToQt(line);
    // Lines that can be marked and copied.
    auto* const list = new QPlainTextEdit(texts.join(QLatin1Char('\n')), this);
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setLineWrapMode(QPlainTextEdit::NoWrap);
    label->setBuddy(list);
    layout->addWidget(list);
    resize(kSizeWithLines);
  }
  layout->addWidget(box);
}

}  // namespace ioview
