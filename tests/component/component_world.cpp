#include "tests/component/component_world.h"

#include "host/events.h"
#include "platform/base/app.h"
#include "platform/base/paths.h"

namespace pvw::test {

using platform::ScopedBstr;

namespace {

constexpr std::uint32_t kOpenView = 32770;
constexpr std::uint32_t kProgressDialog = 11007;

constexpr const char* kDefinition =
    "[Modules]\nFileVersion=1\nModule1=PORT\nModule2=TIMER\n"
    "[PORT]\nPDATA=FF0000 B A\nPDIR=FF0001 B A\n"
    "[TIMER]\nTCNT=FF0010 W A\n";

}  // namespace

ComponentFile::ComponentFile(const std::string& native)
    : module(platform::LoadLibrary(platform::FromNativePath(native).value())) {
  EXPECT_NE(module, nullptr) << native;
  const auto find = [&](auto*& function, const char* name) {
    function = platform::GetProc<std::remove_reference_t<decltype(*function)>>(module, name);
  };
  find(LibraryRegister2, "LibraryRegister2");
  find(QueryInterface2, "QueryInterface2");
  find(CreateInstance, "CreateInstance");
  find(DestroyInstance, "DestroyInstance");
  find(GetComponentVersion, "GetComponentVersion");
}

ComponentFile::~ComponentFile() {
  platform::FreeLibrary(module);
}

void Instance::Fire(const platform::GUID& event) {
  const QEventRecord record{event, 77};
  EXPECT_EQ(Component().OnEvent(&record), platform::S_OK);
}

World::World() {
  dir.Write("device.io", kDefinition);
  host.device_path = dir.Path("device");
  host.paths.configuration_directory = dir.Path();
}

void World::LoadSession(const char* project, const char* configuration) {
  if (Sessions() == nullptr) return;
  EXPECT_EQ(Sessions()->LoadSessionData(ScopedBstr("ws").Get(), ScopedBstr(project).Get(),
                                        ScopedBstr("night").Get(), ScopedBstr(configuration).Get()),
            0);
}

void World::SaveSession() {
  if (Sessions() == nullptr) return;
  EXPECT_EQ(
      Sessions()->SaveSessionData(ScopedBstr("ws").Get(), ScopedBstr("prj").Get(), ScopedBstr("cfg").Get()),
      0);
}

void World::OpenView() {
  platform::SendMessage(host.Ui().SinkOf(kOpenView), platform::WM_COMMAND, kOpenView);
}

std::size_t World::PaneCount() {
  return Dock() != nullptr ? host.Ui().Pages(Dock()->window->GetHandle()).size() : 0;
}

platform::HWND World::Pane(std::size_t pane) {
  return pane < PaneCount() ? host.Ui().Pages(Dock()->window->GetHandle())[pane] : 0;
}

platform::SECTreeCtrl* World::Grid(std::size_t pane) {
  const platform::CWnd* const window = platform::CWnd::FromHandle(Pane(pane));
  if (window == nullptr || window->GetChildren().empty()) return nullptr;
  return dynamic_cast<platform::SECTreeCtrl*>(window->GetChildren().front());
}

platform::LRESULT World::TellSink(platform::UINT message, platform::HWND pane) {
  return platform::SendMessage(host.Ui().SinkOf(kOpenView), message, pane);
}

std::vector<std::string> World::Rows(std::size_t pane) {
  std::vector<std::string> rows;
  const platform::SECTreeCtrl* const grid = Grid(pane);
  if (grid == nullptr) return {"no such pane"};
  for (std::size_t row = 0; row < grid->GetRowCount(); ++row) {
    const platform::HTREEITEM item = grid->GetItemAtRow(row);
    const std::string& value = grid->GetItemText(item, 2);
    rows.push_back(grid->GetItemText(item, 0) + (value.empty() ? "" : " " + value));
  }
  return rows;
}

void World::Expand(std::size_t pane, std::size_t row) {
  platform::SECTreeCtrl* const grid = Grid(pane);
  if (grid != nullptr) grid->Expand(grid->GetItemAtRow(row), platform::TVE_EXPAND);
}

std::size_t World::TakeReads() {
  const std::size_t reads = host.Asked("ReadDirect 00FF0000").size();
  host.ClearTranscript();
  return reads;
}

ComponentTest::ComponentTest() {
  display.SetRunningByThemselves({kProgressDialog});
  platform::SetDisplay(&display);
  main.Create({});
  platform::SetMainWindow(main.GetHandle());
}

ComponentTest::~ComponentTest() {
  platform::SetMainWindow(0);
  main.DestroyWindow();
  platform::SetDisplay(nullptr);
}

ConnectedTest::ConnectedTest() {
  EXPECT_EQ(instance.Connect(world.host), platform::S_OK);
  instance.Fire(EVENT_TARGET_CONNECTED);
  world.LoadSession();
  world.host.ClearTranscript();
}

}  // namespace pvw::test
