// make_pictures EXAMPLES OUT: the pictures of the README, made by the desktop that users see, on the example
// device. Needs no screen: QT_QPA_PLATFORM=offscreen.

#include <QtCore/qtemporarydir.h>
#include <QtGui/qfontinfo.h>
#include <QtGui/qpixmap.h>
#include <QtWidgets/qapplication.h>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "ioview/desktop/desktop.h"
#include "ioview/desktop/format_dialog.h"
#include "ioview/memory_file.h"
#include "ioview/program_error.h"

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
