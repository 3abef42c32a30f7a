#include "ioview/desktop/format_dialog.h"

#include <QtGui/qpixmap.h>
#include <QtWidgets/qboxlayout.h>
#include <QtWidgets/qcombobox.h>
#include <QtWidgets/qdialogbuttonbox.h>
#include <QtWidgets/qfontcombobox.h>
#include <QtWidgets/qformlayout.h>
#include <QtWidgets/qlabel.h>
#include <QtWidgets/qlistwidget.h>
#include <QtWidgets/qpushbutton.h>
#include <QtWidgets/qspinbox.h>

#include <algorithm>

#include "ioview/desktop/logical_colours.h"
#include "platform/base/bstr.h"
#include "platform/base/variant.h"
#include "platform/qt/guard.h"

namespace ioview {

namespace {

constexpr int kSmallestFont = 4;
constexpr int kLargestFont = 72;
constexpr QSize kSwatch(28, 12);

QString TextOf(const char16_t* text) {
  return text != nullptr ? QString::fromUtf16(text, static_cast<qsizetype>(platform::SysStringLen(text)))
                         : QString();
}

platform::ScopedBstr BstrOf(const QString& text) {
  return platform::ScopedBstr(std::u16string_view(reinterpret_cast<const char16_t*>(text.utf16()),
                                                  static_cast<std::size_t>(text.size())));
}

void FillColours(QComboBox& box, ColourUse use) {
  for (std::size_t i = 0; i < kLogicalColours.size(); ++i) {
    QPixmap swatch(kSwatch);
    swatch.fill(ColourOfIndex(static_cast<int>(i), use));
    box.addItem(QIcon(swatch), QLatin1String(kLogicalColours[i].name));
  }
  box.setIconSize(kSwatch);
  box.setMaxVisibleItems(static_cast<int>(kLogicalColours.size()));
}

}  // namespace

FormatDialog::FormatDialog(pvw::IQFormatViewClient2& client, QWidget* parent)
    : QDialog(parent),
      client_(client),
      item_list_(new QListWidget(this)),
      faces_(new QFontComboBox(this)),
      sizes_(new QSpinBox(this)),
      text_colours_(new QComboBox(this)),
      back_colours_(new QComboBox(this)),
      preview_(new QLabel(this)) {
  ReadClient();
  LayOut();

  showing_ = true;
  for (const Item& item : items_) item_list_->addItem(item.name);
  // The view's font counts by its name, whether or not the machine has it.
  faces_->setFontFilters(QFontComboBox::MonospacedFonts | QFontComboBox::ProportionalFonts);
  faces_->setCurrentText(face_);
  sizes_->setRange(std::min(kSmallestFont, size_), std::max(kLargestFont, size_));
  sizes_->setSuffix(QStringLiteral(" pt"));
  sizes_->setValue(size_);
  FillColours(*text_colours_, ColourUse::kText);
  FillColours(*back_colours_, ColourUse::kBackground);
  showing_ = false;

  connect(item_list_, &QListWidget::currentRowChanged, this, [this](int row) { ShowItem(row); });
  connect(faces_, &QComboBox::currentTextChanged, this, [this] { ShowPreview(); });
  connect(sizes_, &QSpinBox::valueChanged, this, [this] { ShowPreview(); });
  for (QComboBox* const box : {text_colours_, back_colours_}) {
    connect(box, &QComboBox::currentIndexChanged, this, [this] { PickColour(); });
  }
  item_list_->setCurrentRow(0);
  ShowItem(item_list_->currentRow());
}

void FormatDialog::ReadClient() {
  platform::ScopedBstr name;
  client_.GetFormatName(name.Receive());
  setWindowTitle(QStringLiteral("Format - ") + TextOf(name.Get()));
  platform::ScopedBstr face;
  client_.GetFont(face.Receive(), &size_);
  face_ = TextOf(face.Get());

  platform::ScopedVariant list;
  client_.GetFormatItems(list.Receive());
  if ((list.Get().vt & platform::VT_ARRAY) == 0) return;
  for (std::size_t i = 0; i < platform::SafeArrayGetCount(list.Get().parray); ++i) {
    const platform::VARIANT* const element = platform::SafeArrayVariantAt(list.Get().parray, i);
    if (element == nullptr || element->vt != platform::VT_BSTR) continue;
    Item& item = items_.emplace_back();
    item.name = TextOf(element->bstrVal);
    client_.GetItemColours(element->bstrVal, &item.text, &item.background);
  }
}

void FormatDialog::LayOut() {
  auto* const form = new QFormLayout;
  form->addRow(QStringLiteral("&Font:"), faces_);
  form->addRow(QStringLiteral("&Size:"), sizes_);
  form->addRow(QStringLiteral("&Text:"), text_colours_);
  form->addRow(QStringLiteral("&Background:"), back_colours_);

  auto* const items = new QVBoxLayout;
  auto* const label = new QLabel(QStringLiteral("&Items:"), this);
  label->setBuddy(item_list_);
  items->addWidget(label);
  items->addWidget(item_list_);
  auto* const top = new QHBoxLayout;
  top->addLayout(items, 1);
  top->addLayout(form, 2);

  preview_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  preview_->setTextFormat(Qt::PlainText);
  preview_->setAlignment(Qt::AlignCenter);
  preview_->setFixedHeight(72);
  preview_->setAutoFillBackground(true);

  auto* const box =
      new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
  connect(box, &QDialogButtonBox::accepted, this, [this] {
    Apply();
    accept();
  });
  connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(box->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, [this] { Apply(); });

  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(preview_);
  layout->addWidget(box);
  resize(600, 360);
}

void FormatDialog::ShowItem(int row) {
  const bool known = row >= 0 && static_cast<std::size_t>(row) < items_.size();
  text_colours_->setEnabled(known);
  back_colours_->setEnabled(known);
  if (known) {
    const Item& item = items_[static_cast<std::size_t>(row)];
    showing_ = true;
    // An index that there is not picks none.
    text_colours_->setCurrentIndex(item.text < text_colours_->count() ? item.text : -1);
    back_colours_->setCurrentIndex(item.background < back_colours_->count() ? item.background : -1);
    showing_ = false;
  }
  ShowPreview();
}

void FormatDialog::ShowPreview() {
  if (showing_) return;
  QFont font(faces_->currentText(), sizes_->value());
  preview_->setFont(font);
  preview_->setText(QStringLiteral("PDATA   H'00FF0041   1F   RW"));
  const int row = item_list_->currentRow();
  if (row < 0) return;
  const Item& item = items_[static_cast<std::size_t>(row)];
  QPalette palette = preview_->palette();
  palette.setColor(QPalette::WindowText, ColourOfIndex(item.text, ColourUse::kText));
  palette.setColor(QPalette::Window, ColourOfIndex(item.background, ColourUse::kBackground));
  preview_->setPalette(palette);
}

void FormatDialog::PickColour() {
  const int row = item_list_->currentRow();
  if (showing_ || row < 0) return;
  Item& item = items_[static_cast<std::size_t>(row)];
  if (text_colours_->currentIndex() >= 0) item.text = text_colours_->currentIndex();
  if (back_colours_->currentIndex() >= 0) item.background = back_colours_->currentIndex();
  item.changed = true;
  ShowPreview();
}

void FormatDialog::Apply() {
  platform::qt::Guarded([this] {
    if (faces_->currentText() != face_ || sizes_->value() != size_) {
      face_ = faces_->currentText();
      size_ = sizes_->value();
      client_.SetFont(BstrOf(face_).Get(), size_);
    }
    for (Item& item : items_) {
      if (!item.changed) continue;
      item.changed = false;
      client_.SetItemColours(BstrOf(item.name).Get(), item.text, item.background);
    }
  });
}

}  // namespace ioview
