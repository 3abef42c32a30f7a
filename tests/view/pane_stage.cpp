#include "tests/view/pane_stage.h"

#include <sstream>
#include <utility>

#include "host/host_ptr.h"
#include "host/ids.h"
#include "resources/ids.h"
#include "target/debugger_binding.h"

namespace pvw::test {

namespace {

const platform::GUID kIdentity = platform::MakeGuid("{F866DB60-6186-11D5-8BBE-0004E2013C71}");

}  // namespace

PaneStage::PaneStage()
    : display(
          platform::HeadlessDisplay::Unanswered::Fail,
          [this](const std::string& line) {
            shown += line + '\n';
            if (meanwhile) std::exchange(meanwhile, {})();
          },
          [](const std::string& text) { ADD_FAILURE() << text; }),
      store(GetService<IQDataManager>(&host, IID_IQDataManager), platform::ScopedBstr("ws").Get(),
            platform::ScopedBstr("prj").Get(), platform::ScopedBstr("name").Get(),
            platform::ScopedBstr("cfg").Get(), kIdentity) {
  display.SetRunningByThemselves({IDD_PROGRESS});
  platform::SetDisplay(&display);
  BindDebuggerFunctions(&host, 1);
  frame.path = dir.Write("device.io", kDevice);
  MakeDock();
  host.ClearTranscript();
}

PaneStage::~PaneStage() {
  for (const std::size_t i : {0u, 1u}) ClosePane(i);
  if (host.Ui().Dock("{ID}") != nullptr) host.Ui().DestroyDock(dock->window->GetHandle());
  UnbindDebuggerFunctions(&host);
  platform::SetDisplay(nullptr);
}

void PaneStage::MakeDock() {
  platform::HWND window = 0;
  registrar.FindDockableWindow("{ID}", "IO", nullptr, 0x1086, 0xE81E, &window, nullptr);
  dock = host.Ui().Dock("{ID}");
  dock->window->MoveWindow({0, 0, 500, 300});
}

void PaneStage::OpenView(std::string_view selection) {
  // The host's window goes with its last page.
  if (host.Ui().Dock("{ID}") == nullptr) MakeDock();
  file.Open(frame.path, 0);
  data.SetHost(&host);
  data.ParseSelection(selection);
  std::ignore = data.LoadModules(&file);
  data.ApplySelection();
  for (const std::size_t i : {0u, 1u}) {
    panes[i] = std::make_unique<CPvwIOInstanceCtrl>(&file, &data, i, &host, &registrar, 0);
    panes[i]->SetFrame(&frame);
    ASSERT_TRUE(panes[i]->CreatePane(dock->window->GetHandle(), 0));
    if (i == 1) panes[0]->LinkOtherPane(panes[1].get()), panes[1]->LinkOtherPane(panes[0].get());
    panes[i]->SetFont("Courier New", 11);
    panes[i]->SetItemColours("Text", 17, 17);
    panes[i]->MoveWindow(dock->window->GetClientRect());
    panes[i]->RefreshData();
    frame.panes.push_back(panes[i].get());
  }
  frame.dirty = false;
}

void PaneStage::ClosePane(std::size_t index) {
  if (panes[index] == nullptr) return;
  std::erase(frame.panes, panes[index].get());
  panes[index]->ReleaseHostUi();
  panes[index]->DestroyPane();
  panes[index].reset();
}

CTreeGridCtrl& PaneStage::Tree(std::size_t index) {
  return *static_cast<CTreeGridCtrl*>(platform::CWnd::FromHandle(Pane(index).GetTreeWindow()));
}

HTREEITEM PaneStage::Row(std::size_t pane, const std::string& path) {
  const CTreeGridCtrl& tree = Tree(pane);
  std::istringstream names(path);
  HTREEITEM item = 0;
  for (std::string name; std::getline(names, name, '/');) {
    item = item == 0 ? tree.GetRootItem() : tree.GetChildItem(item);
    while (item != 0 && tree.GetItemText(item, 0) != name) item = tree.GetNextSiblingItem(item);
    if (item == 0) break;
  }
  EXPECT_NE(item, 0u) << path;
  return item;
}

void PaneStage::Stop() {
  std::ignore = data.ReadValues(host.Debugger());
  frame.target_update = true;
  frame.UpdatePanes();
  frame.target_update = false;
}

CIORec& PaneStage::Record(const std::string& module) {
  for (const auto& record : data.GetModules()) {
    if (record->GetName() == module) return *record;
  }
  throw std::runtime_error("no module " + module);
}

}  // namespace pvw::test
