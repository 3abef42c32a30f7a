// The two panes over one definition, in a dockable window of a host whose target is connected, on a display
// without a screen.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "component/services/session_store.h"
#include "component/services/ui_registrar.h"
#include "model/io_data.h"
#include "platform/headless/headless_display.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_ui_services.h"
#include "tests/support/temp_dir.h"
#include "view/io_instance_ctrl.h"

namespace pvw::test {

using platform::HTREEITEM;

// What the panes see of the frame, as plain values.
class FakeFrame final : public CPaneFrame {
 public:
  std::vector<CPvwIOInstanceCtrl*> panes;
  bool locked = false, target_update = false, dirty = false, save_path = false;
  std::string path, save_dir, save_name;
  std::uint64_t write_time = 0;

  bool IsRefreshLocked() const override { return locked; }
  void ToggleRefreshLock() override { locked = !locked; }
  bool IsTargetUpdate() const override { return target_update; }
  void UpdatePanes() override {
    for (CPvwIOInstanceCtrl* pane : panes) pane->RefreshData();
  }
  void SetSessionDirty() override { dirty = true; }
  std::string GetPaneTitle(std::size_t index) const override {
    return index == 0 ? "All Register" : "Selected Register";
  }
  std::string GetIOFilePath() const override { return path; }
  void SetIOFilePath(const std::string& text) override { path = text; }
  std::uint64_t GetIOFileWriteTime() const override { return write_time; }
  void SetIOFileWriteTime(std::uint64_t time) override { write_time = time; }
  bool GetSavePathName() const override { return save_path; }
  void SetSavePathName(bool save) override { save_path = save; }
  std::string GetSaveFileDir() const override { return save_dir; }
  void SetSaveFileDir(const std::string& directory) override { save_dir = directory; }
  std::string GetSaveFileName() const override { return save_name; }
  void SetSaveFileName(const std::string& name) override { save_name = name; }
};

class PaneStage : public testing::Test {
 protected:
  PaneStage();
  ~PaneStage() override;

  // Opens the view over device.io, with a selection from the session.
  void OpenView(std::string_view selection = {});
  void MakeDock();
  void ClosePane(std::size_t index);
  CPvwIOInstanceCtrl& Pane(std::size_t index) { return *panes[index]; }
  CTreeGridCtrl& Tree(std::size_t index);

  // By names from the module down, "PORT/PDATA".
  HTREEITEM Row(std::size_t pane, const std::string& path);
  bool Open(std::size_t pane, const std::string& path) {
    return Tree(pane).Expand(Row(pane, path), platform::TVE_EXPAND);
  }
  bool Close(std::size_t pane, const std::string& path) {
    return Tree(pane).Expand(Row(pane, path), platform::TVE_COLLAPSE);
  }
  // The target stops: read, then a new generation of marks.
  void Stop();
  CIORec& Record(const std::string& module);

  std::function<void()> meanwhile;  // happens once, while the user sees the next line
  std::string shown;                // what the user sees open, line by line
  platform::HeadlessDisplay display;
  FakeHost host;
  TempDir dir;
  CIODataFile file;
  CIOData data;
  CUiRegistrar registrar{&host};
  FakeFrame frame;
  FakeDockWindow* dock = nullptr;
  std::unique_ptr<CPvwIOInstanceCtrl> panes[2];
  CSessionStore store;
};

inline constexpr std::string_view kDevice =
    "[Modules]\nBaseAddress=0xFF0000\nFileVersion=3\nModule1=PORT\nModule2=TIMER\n"
    "[PORT]\nreg0=P0\nreg1=P1\n[P0]\nname=PDATA\nreladdr=FF0010\nbitfield0=F0\nbitfield1=F1\n"
    "[F0]\nname=LOW\nbit=0\n[F1]\nname=TOP\nbit=7\n[P1]\nname=null\nreladdr=FF0011\n"
    "[TIMER]\nreg0=T0\n[T0]\nname=TCNT\nreladdr=FF0020\n";

}  // namespace pvw::test
