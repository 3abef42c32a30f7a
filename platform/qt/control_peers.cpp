#include "platform/qt/control_peers.h"

#include <QtCore/qscopedvaluerollback.h>
#include <QtGui/qevent.h>
#include <QtGui/qicon.h>
#include <QtGui/qimage.h>
#include <QtGui/qpalette.h>
#include <QtGui/qpixmap.h>
#include <QtWidgets/qcheckbox.h>
#include <QtWidgets/qcombobox.h>
#include <QtWidgets/qlabel.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qprogressbar.h>
#include <QtWidgets/qpushbutton.h>

#include <algorithm>

#include "platform/gui/controls.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/qt/convert.h"
#include "platform/qt/guard.h"

namespace platform::qt {

namespace {

// A typing key comes to the widget with its character, so that whoever takes the key ahead keeps it from it.
// Tab never does: the layer moves the focus.
bool TakesAsText(const MSG& msg) {
  if (msg.message != WM_KEYDOWN) return true;
  return msg.wParam != VK_TAB && TypedBy(*static_cast<QKeyEvent*>(msg.native)).empty();
}

// From where the selection began to the caret.
struct Range {
  qsizetype anchor;
  qsizetype caret;
};

Range SelectionOf(const QLineEdit& line) {
  const qsizetype caret = line.cursorPosition();
  if (!line.hasSelectedText()) return {caret, caret};
  return {caret == line.selectionStart() ? line.selectionEnd() : line.selectionStart(), caret};
}

// Left alone when it is that already, since the caret may stand at either end.
void Select(QLineEdit& line, const std::string& text, std::size_t start, std::size_t end) {
  const int from = ToQtPosition(text, start);
  const int to = ToQtPosition(text, end);
  const Range now = SelectionOf(line);
  if (std::min(now.anchor, now.caret) == from && std::max(now.anchor, now.caret) == to) return;
  if (from == to) {
    line.setCursorPosition(to);
  } else {
    line.setSelection(from, to - from);
  }
}

// Both kinds of window with a line of text take the same reports of its user.
template <typename Window>
void Report(Window& window, const QLineEdit& line, bool edited) {
  QString text = line.text();
  Range range = SelectionOf(line);
  if (!edited) {
    window.PeerSelected(FromQtPosition(text, range.anchor), FromQtPosition(text, range.caret));
    return;
  }
  // A line end ends what was pasted; the caret stands behind that.
  const auto* const first = std::find_if(
      text.cbegin(), text.cend(), [](QChar c) { return c == QLatin1Char('\n') || c == QLatin1Char('\r'); });
  if (const qsizetype end = first - text.cbegin(); end < text.size()) {
    text.remove(end, std::max(range.caret - end, qsizetype{1}));
    range = {end, end};
  }
  window.PeerEdited(FromQt(text), FromQtPosition(text, range.anchor), FromQtPosition(text, range.caret));
}

}  // namespace

// Edit ---------------------------------------------------------------------------------------------------

EditPeer::EditPeer(CWnd& owner, QWidget* parent) : WidgetPeer(owner), m_line(new QLineEdit(parent)) {
  const CWnd* above = owner.GetParent();
  if (above != nullptr && above->GetKind() == WindowKind::Grid) {
    // Over a cell the text stands where the cell's stood.
    m_line->setFont(FontOf(static_cast<const SECTreeCtrl*>(above)->GetRowFont()));
    m_line->setFrame(false);
    m_line->setTextMargins(2, 0, 0, 0);
  }
  if (static_cast<CEdit&>(owner).IsReadOnly()) {
    // Like what can't be typed into.
    m_line->setReadOnly(true);
    QPalette palette = m_line->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    m_line->setPalette(palette);
  }
  const auto report = [this](bool edited) {
    if (m_quiet || window == nullptr) return;
    Guarded([&] { Report(static_cast<CEdit&>(*window), *m_line, edited); });
  };
  connect(m_line, &QLineEdit::textEdited, this, [report] { report(true); });
  connect(m_line, &QLineEdit::selectionChanged, this, [report] { report(false); });
  connect(m_line, &QLineEdit::cursorPositionChanged, this, [report] { report(false); });
  Adopt(m_line, m_line);
}

void EditPeer::ShowPart(Part part) {
  const auto& edit = static_cast<CEdit&>(*window);
  const QScopedValueRollback<bool> quiet(m_quiet, true);
  if (part == Part::Text) {
    const QString text = ToQt(edit.GetText());
    if (m_line->text() != text) m_line->setText(text);
  } else if (part == Part::Selection) {
    Select(*m_line, edit.GetText(), edit.GetSelStart(), edit.GetSelEnd());
  }
}

bool EditPeer::Takes(const MSG& msg) const {
  return TakesAsText(msg);
}

// Combo box ----------------------------------------------------------------------------------------------

ComboPeer::ComboPeer(CWnd& owner, QWidget* parent) : WidgetPeer(owner), m_combo(new QComboBox(parent)) {
  m_combo->setInsertPolicy(QComboBox::NoInsert);
  connect(m_combo, &QComboBox::activated, this, [this](int index) {
    if (m_quiet || window == nullptr) return;
    Guarded([&] { static_cast<CComboBox&>(*window).PeerPicked(index); });
  });
  if (static_cast<CComboBox&>(owner).HasEdit()) {
    m_combo->setEditable(true);
    m_combo->setCompleter(nullptr);
    m_line = m_combo->lineEdit();
    // An entry is picked by picking it, not by typing its name and leaving.
    disconnect(m_line, &QLineEdit::editingFinished, m_combo, nullptr);
    disconnect(m_line, &QLineEdit::returnPressed, m_combo, nullptr);
    const auto report = [this](bool edited) {
      if (m_quiet || window == nullptr) return;
      Guarded([&] { Report(static_cast<CComboBox&>(*window), *m_line, edited); });
    };
    connect(m_line, &QLineEdit::textEdited, this, [report] { report(true); });
    connect(m_line, &QLineEdit::selectionChanged, this, [report] { report(false); });
    connect(m_line, &QLineEdit::cursorPositionChanged, this, [report] { report(false); });
    Watch(m_line);
  }
  Adopt(m_combo, m_combo);
}

void ComboPeer::ShowPart(Part part) {
  const auto& combo = static_cast<CComboBox&>(*window);
  const QScopedValueRollback<bool> quiet(m_quiet, true);
  if (part == Part::Items) {
    const std::vector<std::string>& strings = combo.GetStrings();
    for (int i = m_combo->count(); static_cast<std::size_t>(i) < strings.size(); ++i) {
      m_combo->addItem(ToQt(strings[static_cast<std::size_t>(i)]));
    }
    // The widget picks its first entry by itself.
    ShowPart(Part::Text);
    ShowPart(Part::Selection);
  } else if (part == Part::Text || part == Part::Selection) {
    // Without an entry an edit's text stays, but the widget would empty it.
    if (m_line == nullptr || combo.GetCurSel() >= 0) m_combo->setCurrentIndex(combo.GetCurSel());
    if (m_line == nullptr) return;
    const QString text = ToQt(combo.GetText());
    if (m_line->text() != text) m_line->setText(text);
    Select(*m_line, combo.GetText(), combo.GetEditSelStart(), combo.GetEditSelEnd());
  }
}

bool ComboPeer::Takes(const MSG& msg) const {
  return TakesAsText(msg);
}

// Buttons ------------------------------------------------------------------------------------------------

ButtonPeer::ButtonPeer(CWnd& owner, QWidget* parent) : WidgetPeer(owner) {
  if (owner.GetKind() == WindowKind::CheckBox) {
    m_button = new QCheckBox(parent);
  } else {
    auto* button = new QPushButton(parent);
    button->setAutoDefault(false);
    button->setDefault(static_cast<CButton&>(owner).IsDefault());
    m_button = button;
  }
  connect(m_button, &QAbstractButton::clicked, this, [this] {
    Guarded([this] {
      const HWND handle = window != nullptr ? window->GetHandle() : 0;
      if (handle != 0) static_cast<CButton&>(*window).Clicked();
    });
    // The mark is the window's.
    if (window != nullptr) Update(Part::Selection);
  });
  Adopt(m_button, m_button);
}

void ButtonPeer::ShowPart(Part part) {
  if (part == Part::Selection && window->GetKind() == WindowKind::CheckBox) {
    m_button->setChecked(static_cast<CCheckBox&>(*window).GetCheck());
  }
  if (part != Part::Text) return;
  const CImageList* images = static_cast<CButton&>(*window).GetImage();
  const std::span<const std::uint32_t> pixels =
      images != nullptr ? images->GetImage(0) : std::span<const std::uint32_t>();
  m_button->setText(pixels.empty() ? ToQt(window->GetText()) : QString());
  // The layer handles Alt and a letter.
  m_button->setShortcut({});
  if (pixels.empty()) {
    m_button->setIcon({});
    return;
  }
  const QImage image(reinterpret_cast<const uchar*>(pixels.data()), images->GetWidth(), images->GetHeight(),
                     QImage::Format_ARGB32);
  m_button->setIcon(QIcon(QPixmap::fromImage(image.copy())));
  m_button->setIconSize(image.size());
}

// Arrow keys would move the focus, and Enter is the dialog's.
bool ButtonPeer::Takes(const MSG& msg) const {
  switch (msg.message) {
    case WM_KEYDOWN:
      return false;
    case WM_CHAR:
    case WM_KEYUP:
      return msg.wParam == VK_SPACE;
    default:
      return true;
  }
}

void ButtonPeer::OnPressLost() {
  m_button->setDown(false);
}

// Label and progress bar ---------------------------------------------------------------------------------

LabelPeer::LabelPeer(CWnd& owner, QWidget* parent) : WidgetPeer(owner), m_label(new QLabel(parent)) {
  m_label->setTextFormat(Qt::PlainText);
  // Without a buddy it would show its ampersand. The layer handles the letter.
  m_label->setBuddy(m_label);
  Adopt(m_label, m_label);
}

void LabelPeer::ShowPart(Part part) {
  if (part == Part::Text) m_label->setText(ToQt(window->GetText()));
}

ProgressPeer::ProgressPeer(CWnd& owner, QWidget* parent)
    : WidgetPeer(owner), m_bar(new QProgressBar(parent)) {
  m_bar->setTextVisible(false);
  Adopt(m_bar, m_bar);
}

void ProgressPeer::ShowPart(Part part) {
  if (part != Part::Position) return;
  const auto& progress = static_cast<CProgress&>(*window);
  m_bar->setRange(0, std::max(progress.GetRange(), 1));
  m_bar->setValue(progress.GetPos());
}

}  // namespace platform::qt
