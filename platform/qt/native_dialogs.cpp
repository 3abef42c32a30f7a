// The display's own modal things: message boxes, file and print dialogs, popup menus and drags.

#include <QtCore/qmimedata.h>
#include <QtCore/qtimer.h>
#include <QtGui/qdrag.h>
#include <QtGui/qimage.h>
#include <QtGui/qpixmap.h>
#include <QtPrintSupport/qprintdialog.h>
#include <QtPrintSupport/qprinter.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qfiledialog.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qmessagebox.h>

#include "platform/base/paths.h"
#include "platform/gui/window.h"
#include "platform/qt/area_peers.h"
#include "platform/qt/convert.h"
#include "platform/qt/guard.h"
#include "platform/qt/qt_display.h"
#include "platform/qt/qt_printer.h"

namespace platform {

namespace {

// Between what asks for the dialog and the host that may delete the window it lies over, it can go at any
// time.
template <typename Dialog>
class Owned {
 public:
  Owned() : m_before(qt::ActiveWindow()), m_dialog(new Dialog(m_before)) {
    m_dialog->setWindowModality(Qt::ApplicationModal);
    qt::MarkAsOurs(*m_dialog);
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  ~Owned() {
    if (m_dialog == nullptr) return;
    m_dialog->disconnect();
    m_dialog->hide();
    m_dialog->deleteLater();
    qt::ActivateAgain(m_before);
  }
  Dialog* operator->() const { return m_dialog; }
  Dialog* Get() const { return m_dialog; }

 private:
  const QPointer<QWidget> m_before;
  const QPointer<Dialog> m_dialog;
};

// "Text (*.txt)|*.txt|" to "Text (*.txt)".
QStringList FiltersOf(const std::string& filter) {
  QStringList filters;
  const QStringList parts = qt::ToQt(filter).split(QLatin1Char('|'));
  for (qsizetype i = 0; i + 1 < parts.size() && !parts[i].isEmpty(); i += 2) {
    QString name = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
    QString patterns = parts[i + 1];
    filters +=
        name + QStringLiteral(" (") + patterns.replace(QLatin1Char(';'), QLatin1Char(' ')) + QLatin1Char(')');
  }
  return filters;
}

void Fill(QMenu& menu, const std::vector<PopupMenuItem>& items) {
  for (const PopupMenuItem& item : items) {
    if (item.text.empty()) {
      menu.addSeparator();
    } else if (!item.items.empty()) {
      Fill(*menu.addMenu(qt::ToQt(item.text)), item.items);
    } else {
      QAction* action = menu.addAction(qt::ToQt(item.text));
      action->setData(item.id);
      action->setEnabled(item.enabled);
      action->setCheckable(item.checked);
      action->setChecked(item.checked);
    }
  }
}

bool IsDown(Qt::MouseButton button) {
  return (QApplication::mouseButtons() & button) != 0;
}

}  // namespace

void QtDisplay::RunMessageBox(const MessageBoxRequest& request, const std::function<void()>& opened) {
  const Owned<QMessageBox> box;
  if ((request.type & MB_ICONEXCLAMATION) == MB_ICONEXCLAMATION) {
    box->setIcon(QMessageBox::Warning);
  } else if (request.type & MB_ICONSTOP) {
    box->setIcon(QMessageBox::Critical);
  }
  box->setWindowTitle(request.caption.empty() ? QApplication::applicationDisplayName()
                                              : qt::ToQt(request.caption));
  box->setTextFormat(Qt::PlainText);
  box->setText(qt::ToQt(request.text));
  box->setStandardButtons(QMessageBox::Ok);
  bool done = false;
  const auto end = [&] {
    done = true;
    LoopEnded();
  };
  QObject::connect(box.Get(), &QDialog::finished, &m_here, end);
  const QMetaObject::Connection gone = QObject::connect(box.Get(), &QObject::destroyed, &m_here, end);
  box->show();
  RunUntil(opened, done);
  QObject::disconnect(gone);
}

std::optional<std::string> QtDisplay::RunFileDialog(const FileDialogRequest& request,
                                                    const std::function<void()>& opened) {
  const Owned<QFileDialog> dialog;
  dialog->setOption(QFileDialog::DontUseNativeDialog, !m_native_dialogs);
  dialog->setOption(QFileDialog::DontConfirmOverwrite, !request.overwrite_prompt);
  dialog->setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setDefaultSuffix(qt::ToQt(request.default_extension));
  dialog->setNameFilters(FiltersOf(request.filter));
  if (const std::optional<std::string> directory = ToNativePath(request.directory)) {
    dialog->setDirectory(QString::fromStdString(*directory));
  }
  dialog->selectFile(qt::ToQt(request.name));
  bool done = false;
  std::optional<std::string> chosen;
  const auto end = [&](int result) {
    if (result == QDialog::Accepted && !dialog->selectedFiles().isEmpty()) {
      chosen = FromNativePath(dialog->selectedFiles().front().toStdString());
    }
    done = true;
    LoopEnded();
  };
  QObject::connect(dialog.Get(), &QDialog::finished, &m_here, end);
  const QMetaObject::Connection gone =
      QObject::connect(dialog.Get(), &QObject::destroyed, &m_here, [&] { end(QDialog::Rejected); });
  dialog->show();
  RunUntil(opened, done);
  QObject::disconnect(gone);
  return chosen;
}

std::unique_ptr<Printer> QtDisplay::RunPrintDialog(const std::function<void()>& opened) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  const QPointer<QWidget> before = qt::ActiveWindow();
  QPointer<QPrintDialog> dialog = new QPrintDialog(printer.get(), before);
  qt::MarkAsOurs(*dialog);
  dialog->setWindowModality(Qt::ApplicationModal);
  bool done = false;
  bool accepted = false;
  const auto end = [&](int result) {
    accepted = result == QDialog::Accepted;
    done = true;
    LoopEnded();
  };
  QObject::connect(dialog, &QDialog::finished, &m_here, end);
  const QMetaObject::Connection gone =
      QObject::connect(dialog, &QObject::destroyed, &m_here, [&] { end(QDialog::Rejected); });
  dialog->show();
  RunUntil(opened, done);
  QObject::disconnect(gone);
  // It looks at the printer to its end.
  delete dialog;
  qt::ActivateAgain(before);
  return accepted ? std::make_unique<qt::QtPrinter>(std::move(printer)) : nullptr;
}

UINT QtDisplay::RunPopupMenu(CWnd& owner, const std::vector<PopupMenuItem>& items, POINT at,
                             const std::function<void()>& opened) {
  QWidget* widget = WidgetOf(owner);
  if (widget == nullptr) return 0;
  QMenu menu;
  qt::MarkAsOurs(menu);
  Fill(menu, items);
  bool done = false;
  UINT picked = 0;
  // The menu hides before it says which entry it was, both inside of one event.
  QObject::connect(&menu, &QMenu::aboutToHide, &m_here, [&] {
    done = true;
    LoopEnded();
  });
  QObject::connect(&menu, &QMenu::triggered, &m_here,
                   [&](const QAction* action) { picked = action->data().toUInt(); });
  menu.popup(widget->mapToGlobal(QPoint(at.x, at.y)));
  RunUntil(opened, done);
  return picked;
}

DragEffect QtDisplay::RunDrag(CWnd& source, const std::string& text, DragSource& drag) {
  constexpr int kLook = 30;  // milliseconds
  QWidget* widget = WidgetOf(source);
  if (widget == nullptr) return DragEffect::None;
  using Next = DragSource::Next;
  auto* mime = new QMimeData;
  mime->setText(qt::ToQt(text.substr(0, text.find('\0'))));
  auto* moved = new QDrag(widget);
  moved->setMimeData(mime);
  m_drag = moved;
  drag.Begin();
  QObject here;
  QObject::connect(moved, &QDrag::actionChanged, &here, [&](Qt::DropAction action) {
    qt::Guarded([&] { drag.Feedback(action == Qt::CopyAction ? DragEffect::Copy : DragEffect::None); });
  });
  bool cancelled = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &here, [&] {
    qt::Guarded([&] {
      if (drag.QueryContinue(false, IsDown(Qt::LeftButton), IsDown(Qt::RightButton)) != Next::Cancel) return;
      cancelled = true;
      QDrag::cancel();
    });
  });
  look.start(kLook);
  const Qt::DropAction action = moved->exec(Qt::CopyAction);
  look.stop();
  m_drag = nullptr;
  if (cancelled) return DragEffect::None;
  // What ended without a drop was ended by Escape.
  const bool dropped = action == Qt::CopyAction;
  const Next next = drag.QueryContinue(!dropped, false, false);
  return dropped && next == Next::Drop ? DragEffect::Copy : DragEffect::None;
}

void QtDisplay::SetDragCursor(const PictureResource& cursor) {
  const auto size = static_cast<std::size_t>(cursor.width) * static_cast<std::size_t>(cursor.height);
  if (m_drag == nullptr || cursor.width <= 0 || cursor.height <= 0 || cursor.pixels.size() < size) return;
  const QImage image(reinterpret_cast<const uchar*>(cursor.pixels.data()), cursor.width, cursor.height,
                     QImage::Format_ARGB32);
  const QPixmap picture = QPixmap::fromImage(image.copy());
  m_drag->setDragCursor(picture, Qt::CopyAction);
  m_drag->setDragCursor(picture, Qt::IgnoreAction);
}

}  // namespace platform
