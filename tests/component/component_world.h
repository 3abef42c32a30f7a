// A host that has loaded the built component, with a device of two modules, on the display without a screen.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/component_clients.h"
#include "host/format_view_client.h"
#include "host/ids.h"
#include "host/workspace_client.h"
#include "platform/base/module.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/headless/headless_display.h"
#include "tests/support/fake_ui_services.h"
#include "tests/support/temp_dir.h"

namespace pvw::test {

// The loaded file with its five functions, until the end of its lifetime.
class ComponentFile {
 public:
  // By native path.
  explicit ComponentFile(const std::string& native = BINARY_DIR "/bin/PvwIO.dll");
  ComponentFile(const ComponentFile&) = delete;
  ComponentFile& operator=(const ComponentFile&) = delete;
  ~ComponentFile();

  platform::HMODULE module = nullptr;
  platform::Status (*LibraryRegister2)(IQLibraryRegistrar*) = nullptr;
  platform::Status (*QueryInterface2)(void*, const platform::GUID*, void**) = nullptr;
  platform::Status (*CreateInstance)(void*) = nullptr;
  platform::Status (*DestroyInstance)(void*) = nullptr;
  platform::Status (*GetComponentVersion)(std::uint32_t*, std::uint32_t*) = nullptr;
};

// One instance, from its creation to its end. A host's verbs are its operations.
class Instance {
 public:
  explicit Instance(const ComponentFile& loaded) : file(loaded) { file.CreateInstance(this); }
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;
  ~Instance() { Destroy(); }

  // Null for a face that it doesn't have.
  template <typename Interface>
  Interface* Face(const platform::GUID& id) {
    void* face = nullptr;
    file.QueryInterface2(this, &id, &face);
    return static_cast<Interface*>(face);
  }
  IQComponent& Component() { return *Face<IQComponent>(IID_IQComponent); }
  platform::Status Connect(IQComponentHost& host) { return Component().Connect(&host, 1); }
  platform::Status Disconnect() { return Component().Disconnect(1); }
  void Fire(const platform::GUID& event);
  void Destroy() { file.DestroyInstance(this); }

 private:
  const ComponentFile& file;
};

// A host with a definition file of its own. Its two modules are PORT, with bytes at FF0000 and FF0001, and
// TIMER, with a word at FF0010.
class World {
 public:
  World();

  // What the frame has registered; null while there is none.
  IQWorkSpaceClient2* Sessions() const { return Registered<IQWorkSpaceClient2>(IID_IQWorkSpaceClient2); }
  IQFormatViewClient2* Format() const { return Registered<IQFormatViewClient2>(IID_IQFormatViewClient2); }
  IQUpdateWindowClient* Update() const { return Registered<IQUpdateWindowClient>(IID_IQUpdateWindowClient); }
  IQIOServer* Server() const { return Registered<IQIOServer>(IID_IQIOServer); }
  IQSteppingClient* Stepping() const { return Registered<IQSteppingClient>(IID_IQSteppingClient); }

  void LoadSession(const char* project = "prj", const char* configuration = "cfg");
  void SaveSession();
  // A value of the session by the key that the view gives.
  void Keep(const std::string& key, const std::string& value) { host.session[kSession + key] = value; }

  // Command 32770, where the host sends it.
  void OpenView();
  FakeDockWindow* Dock() { return host.Ui().Dock(kIdentity); }
  std::size_t PaneCount();
  // Null for a pane that isn't there.
  platform::HWND Pane(std::size_t pane);
  platform::SECTreeCtrl* Grid(std::size_t pane);
  // Sends what the host tells of a pane.
  platform::LRESULT TellSink(platform::UINT message, platform::HWND pane);
  // The rows that aren't under a closed one: "PDATA 10", with the value where there is one.
  std::vector<std::string> Rows(std::size_t pane);
  // Opens the pane's row at that index.
  void Expand(std::size_t pane, std::size_t row);
  // Target reads of the first register since the last call.
  std::size_t TakeReads();

  static inline const std::string kSession = "ws prj cfg {F866DB60-6186-11D5-8BBE-0004E2013C71}";
  static inline const std::string kIdentity = "{WK_00000001_IO}key of ws prjkey of ws prj cfg";

  TempDir dir;
  FakeHost host;

 private:
  template <typename Interface>
  Interface* Registered(const platform::GUID& id) const {
    return static_cast<Interface*>(host.Registered(id));
  }
};

// A display and a main window, on which nothing modal is expected.
class ComponentTest : public testing::Test {
 protected:
  ComponentTest();
  ~ComponentTest() override;

  std::function<void()> meanwhile;  // happens once, while the user sees the next line
  std::vector<std::string> user;    // what the user saw and heard, line by line
  platform::HeadlessDisplay display{platform::HeadlessDisplay::Unanswered::Cancel,
                                    [this](const std::string& line) {
                                      user.push_back(line);
                                      if (meanwhile) std::exchange(meanwhile, {})();
                                    }};
  platform::CWnd main;
  ComponentFile file;
};

// Connected, with the target connected and the session loaded.
class ConnectedTest : public ComponentTest {
 protected:
  ConnectedTest();

  World world;
  Instance instance{file};
};

}  // namespace pvw::test
