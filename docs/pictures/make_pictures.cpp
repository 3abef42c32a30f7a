// make_pictures EXAMPLES OUT: the pictures of the README, made by the desktop that users see, on the example
// device. Needs no screen: QT_QPA_PLATFORM=offscreen.

#include <QtCore/qtemporarydir.h>
#include <QtCore/qtimer.h>
#include <QtGui/qevent.h>
#include <QtGui/qfontinfo.h>
#include <QtGui/qpixmap.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qprogressbar.h>

#include <cstdint>
#include <cstdio>
#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ioview/desktop/desktop.h"
#include "ioview/desktop/format_dialog.h"
#include "ioview/desktop/result_dialog.h"
#include "ioview/memory_file.h"
#include "ioview/program_error.h"
#include "ioview/test/snapshot_text.h"
#include "platform/base/bstr.h"
#include "platform/gui/controls.h"

namespace {

using ioview::PaneIndex;

constexpr std::u16string_view kSelectionKey = u"{F866DB60-6186-11D5-8BBE-0004E2013C71}IOSelection IOWnd0";
constexpr std::u16string_view kSelection =
    u"{INTC?{INTFLAG?{TIMIRQ?SERIRQ?}}PORT?{PDATA?{LAMPS?FAN?}PPIN?}TIMER?{TCOUNT?TPERIOD?TTOTAL?}ADC?{TEMP?}"
    u"}";

void Settle() {
  for (int i = 0; i < 10; ++i) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
  }
}

void Save(QWidget& widget, const std::string& path) {
  Settle();
  if (!widget.grab().save(QString::fromStdString(path), "PNG")) {
    throw ioview::ProgramError(path + ": Can't be written");
  }
}

void OpenRow(platform::SECTreeCtrl& grid, const std::vector<std::string>& names) {
  platform::HTREEITEM item = 0;
  for (const std::string& name : names) {
    item = item == 0 ? grid.GetRootItem() : grid.GetChildItem(item);
    while (item != 0 && grid.GetItemText(item, 0) != name) item = grid.GetNextSiblingItem(item);
    grid.Expand(item, platform::TVE_EXPAND);
  }
}

// The control of the dialog that has the keyboard, or what stands beside it.
platform::CWnd* Control(platform::UINT id) {
  platform::CWnd* const focus = platform::CWnd::FromHandle(platform::GetFocus());
  return focus != nullptr ? focus->GetTopLevelParent()->GetDlgItem(id) : nullptr;
}

// The picture of the modal dialog of this title that `open` opens, once `prepare` has been at it. The dialog
// ends then.
void SaveDialog(const std::string& path, const QString& title, const std::function<void()>& open,
                const std::function<void(QWidget&)>& prepare = {}) {
  constexpr int kLook = 20;  // milliseconds
  bool saved = false;
  QTimer look;
  // It comes in a call of its own, since a timer is silent in a loop that its handler runs.
  const auto take = [&](QWidget* dialog) {
    Settle();
    if (prepare) prepare(*dialog);
    saved = dialog->grab().save(QString::fromStdString(path), "PNG");
    dialog->close();
  };
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible() || !dialog->windowTitle().startsWith(title)) return;
    look.stop();
    QTimer::singleShot(0, dialog, [&take, dialog] { take(dialog); });
  });
  look.start(kLook);
  open();
  for (int i = 0; i < 100 && look.isActive(); ++i) Settle();
  Settle();
  if (!saved) throw ioview::ProgramError(path + ": Its dialog didn't open, or it can't be written");
}

// The component's dialogs and the host's, over the first page.
void MakeDialogPictures(ioview::Desktop& desktop, const std::string& out) {
  constexpr std::uint32_t kLoad = 32773, kCustomize = 32778, kSelect = 32819, kFind = 32820;
  constexpr platform::UINT kSearchText = 13014, kSelectTree = 13006, kSelectOk = 13007;
  ioview::Instance& instance = desktop.GetInstance();
  ioview::MainWindow& window = desktop.Window();
  instance.host.ui.ActivatePage(*instance.View(), 0);
  window.SyncNow();
  window.activateWindow();
  Settle();
  platform::SECTreeCtrl& grid = *instance.Grid(PaneIndex::kAll);
  const auto run = [&](std::uint32_t command) {
    return [&instance, command] {
      ioview::Instance::RunCommand(command, instance.Pane(PaneIndex::kAll)->GetHandle());
      Settle();
    };
  };

  platform::SetFocus(grid.GetHandle());
  for (platform::HTREEITEM row = grid.GetItemAtRow(0); row != 0;) {
    if (grid.GetItemText(row, 0) == "PDATA") {
      grid.SelectItem(row);
      break;
    }
    row = grid.GetItemAtRow(static_cast<std::size_t>(grid.GetRowOfItem(row)) + 1);
  }
  SaveDialog(out + "/edit-memory.png", QStringLiteral("Edit PDATA"), [&] {
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"));
    QCoreApplication::sendEvent(platform::QtDisplay::WidgetOf(grid), &enter);
  });
  SaveDialog(out + "/set-io-file.png", QStringLiteral("Set I/O File"), run(kLoad), [](QWidget&) {
    // Without the directory of this run.
    if (platform::CWnd* const edit = Control(9001)) edit->SetText("$(WORKSPDIR)\\lumen3.io");
  });
  SaveDialog(out + "/find.png", QStringLiteral("Find"), run(kFind), [](QWidget&) {
    if (platform::CWnd* const text = Control(kSearchText)) text->SetText("FF0041");
  });
  SaveDialog(out + "/select-register.png", QStringLiteral("Select IO Register"), run(kSelect), [](QWidget&) {
    auto* const tree = dynamic_cast<platform::SECTreeCtrl*>(Control(kSelectTree));
    if (tree == nullptr) return;
    for (const char* const module : {"INTC", "PORT"}) OpenRow(*tree, {module});
    OpenRow(*tree, {"PORT", "PDATA"});
    Settle();
  });
  // It comes when the choice is confirmed. On this small device it has done its work before it shows, and
  // looks at the clock later.
  const auto confirm = [&] {
    QTimer::singleShot(0, &window, [] {
      if (platform::CWnd* const ok = Control(kSelectOk)) static_cast<platform::CButton*>(ok)->Clicked();
    });
    run(kSelect)();
  };
  SaveDialog(out + "/progress.png", QStringLiteral("Loading..."), confirm, [](QWidget& dialog) {
    if (auto* const bar = dialog.findChild<QProgressBar*>()) bar->setValue(40);
  });
  SaveDialog(out + "/customize-toolbar.png", QStringLiteral("Customize Toolbar"), run(kCustomize));
}

void MakeTestPictures(ioview::Desktop& desktop, const std::string& out) {
  pvw::IQTestClient* const client = desktop.GetInstance().Test();
  if (client == nullptr) throw ioview::ProgramError("The component has no test client");
  const platform::ScopedBstr request(ioview::SnapshotRequest({"PDATA", "PDIR", "TCOUNT", "TPERIOD"}));
  client->SetTestData(request.Get());
  SaveDialog(out + "/compared-registers.png", QStringLiteral("Edit Test IO registers"),
             [&] { client->EditDetails(); });

  platform::ScopedBstr before, summary, detail, words;
  std::uint32_t status = 0;
  client->GetTestData(before.Receive());
  desktop.Window().Target().Step();
  client->CompareWithTarget(before.Get(), summary.Receive(), detail.Receive(), &status);
  client->FormatResult(detail.Get(), 0, words.Receive());
  ioview::ResultDialog dialog(QStringLiteral("before.txt"), ioview::SplitItems(words.Text()),
                              &desktop.Window());
  dialog.show();
  Save(dialog, out + "/differences.png");
}

void MakePictures(const std::string& examples, const std::string& out) {
  // On a machine without the font the columns would be those of another.
  if (QFontInfo(QFont(QStringLiteral("Courier New"))).family() != QStringLiteral("Liberation Mono")) {
    throw ioview::ProgramError("The font Liberation Mono is missing; scripts/setup installs it");
  }
  const QTemporaryDir scratch;
  const std::string workspace = scratch.path().toStdString();
  ioview::SessionValues session;
  session.Set({u"demo", u"demo", u"Debug"}, kSelectionKey, kSelection);
  std::string why;
  if (!ioview::SaveSessionFile(ioview::SessionFileOf(workspace), session, why)) {
    throw ioview::ProgramError(why);
  }

  const ioview::ComponentLibrary library;
  ioview::Desktop desktop(library, {examples + "/lumen3.io", workspace, {}});
  ioview::Instance& instance = desktop.GetInstance();
  ioview::LoadMemoryFile(instance.host.target, examples + "/lumen.mem");
  if (!desktop.Open(true)) throw ioview::ProgramError("The component can't be connected");
  ioview::MainWindow& window = desktop.Window();
  window.setWindowTitle(QStringLiteral("examples - ioview"));

  platform::SECTreeCtrl* const all = instance.Grid(PaneIndex::kAll);
  if (all == nullptr) throw ioview::ProgramError("The component has opened no view");
  for (const char* const module : {"INTC", "PORT", "TIMER", "ADC"}) OpenRow(*all, {module});
  OpenRow(*all, {"INTC", "INTFLAG"});
  OpenRow(*all, {"PORT", "PDATA"});
  all->SetColumnWidth(0, 240);
  all->SetColumnWidth(1, 130);
  all->SetColumnWidth(2, 320);
  window.Target().Step();
  Save(window, out + "/registers.png");

  instance.host.ui.ActivatePage(*instance.View(), 1);
  if (platform::SECTreeCtrl* const selected = instance.Grid(PaneIndex::kSelected)) {
    for (std::size_t row = 0; row < selected->GetRowCount(); ++row) {
      selected->Expand(selected->GetItemAtRow(row), platform::TVE_EXPAND);
    }
    selected->SetColumnWidth(0, 240);
    selected->SetColumnWidth(1, 130);
    selected->SetColumnWidth(2, 150);
  }
  window.Target().Step();
  Save(window, out + "/selected.png");

  if (pvw::IQFormatViewClient2* const client = instance.Format()) {
    ioview::FormatDialog dialog(*client, &window);
    dialog.show();
    Save(dialog, out + "/format.png");
  }
  MakeDialogPictures(desktop, out);
  MakeTestPictures(desktop, out);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: make_pictures EXAMPLES OUT\n", stderr);
    return 2;
  }
  const QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("fusion"));
  try {
    MakePictures(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_pictures: %s\n", error.what());
    return 2;
  }
  return 0;
}
