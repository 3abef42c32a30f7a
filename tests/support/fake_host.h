// A host for tests: the root object with every service that the component asks for. Its windows, menus and
// toolbars are in fake_ui_services.h.
//
// What it is asked goes to a transcript, one line an operation, in order: "GetService IQMemoryMap",
// "GetAreaInfo 00FF0000", "ReadDirect 00FF0000-00FF0001 width 2", "WriteBlock 00FF0000-00FF0000 flag 0: 10",
// "AddCommand memory_fill ...", "GetProjectDirectory ws prj". Memory answers with the low byte of each
// address until a test writes, so that a wrong address shows itself. Texts here are in the ANSI code page.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/component_host.h"
#include "host/debug_services.h"
#include "platform/base/variant.h"

namespace pvw::test {

// A workspace that is open, with names that differ from "My Workspace", "My Project" and "Debug", which are
// shown for them. CloseWorkspace empties the names.
struct FakePaths {
  bool open = true;
  std::string workspace = "ws", project = "prj", configuration = "cfg";
  std::string configuration_directory = "c:\\ws\\prj\\cfg", install = "c:\\qbn";
};

struct FakePlaceholder {
  std::string description, name, value;
};

// What the host gives as one list of custom placeholders: four elements for each entry, the last quarter
// empty.
struct FakePlaceholderList {
  std::vector<FakePlaceholder> entries;
  std::size_t stray_elements = 0;  // added at the end, so that the count is no multiple of 4
  bool wrong_type = false;         // a list of VT_VARIANT
};

// Target memory of one byte order.
struct FakeArea {
  std::uint32_t first = 0, last = 0xFFFFFFFF;
  bool little = false;
};

class FakeUi;
namespace fakes {
struct Offered;
}

class FakeHost final : public IQComponentHost {
 public:
  FakeHost();
  ~FakeHost();

  // What it was asked since the start or the last ClearTranscript.
  const std::vector<std::string>& Transcript() const { return transcript_; }
  // The lines of it that begin with `prefix`.
  std::vector<std::string> Asked(std::string_view prefix) const;
  void ClearTranscript() { transcript_.clear(); }

  // All services that there are. At first every one is offered but IQDebugPlatform.
  std::vector<platform::GUID> Services() const;
  void Lack(const platform::GUID& service) { lacking_.insert(service); }
  void GiveNull(const platform::GUID& service) { null_.insert(service); }
  void Offer(const platform::GUID& service) {
    lacking_.erase(service);
    null_.erase(service);
  }

  // Lets the next call, or every call from now on, of the operation of that name give this status and do
  // nothing: "ReadDirect", "GetErrorText", "FormatLong". Several FailNext of one operation queue up; S_OK in
  // the queue lets a call through.
  void FailNext(const std::string& operation, platform::Status status = platform::E_FAIL) {
    fail_next_[operation].push_back(status);
  }
  void FailAll(const std::string& operation, platform::Status status = platform::E_FAIL) {
    fail_all_[operation] = status;
  }
  void FailNone() {
    fail_next_.clear();
    fail_all_.clear();
  }
  // What happens while the host is in a call of the operation: a target that drops off during a read.
  std::map<std::string, std::function<void()>, std::less<>> during;
  // What a failing operation leaves in its text output all the same; empty leaves it alone.
  std::string text_on_failure;

  // Target memory. A number written by WriteBlock is stored in the byte order of its area.
  void Poke(std::uint32_t address, const std::vector<std::uint8_t>& bytes);
  std::vector<std::uint8_t> Peek(std::uint32_t address, std::uint32_t count) const;
  // The whole space is one big-endian area until a part of it is made little-endian.
  void SetLittle(std::uint32_t first, std::uint32_t last) { little_ = {first, last, true}; }

  // Stands for the debugger, as a refresh hands it to the records.
  IQDebugger* Debugger();

  platform::Status target_running = platform::E_FAIL;  // what IsTargetRunning gives
  platform::HMODULE library = nullptr;                 // what GetLibraryHandle gives; null lets it fail
  std::map<platform::Status, std::string> error_texts;
  std::map<std::string, std::int64_t> expressions;  // what EvaluateExpression knows; it fails for any other

  bool recorder_active = false;
  std::vector<std::string> recorded;

  FakePaths paths;
  void CloseWorkspace() {
    paths.open = false;
    paths.workspace = paths.project = paths.configuration = {};
  }
  FakePlaceholderList global_placeholders, workspace_placeholders;

  std::string device_path = "c:\\device";

  std::map<std::string, std::string> session;  // by "ws prj cfg KEY"

  // Its window side.
  FakeUi& Ui() { return *ui_; }
  // The client or server that is registered under the id; null for none.
  void* Registered(const platform::GUID& id) const;

  platform::Status QueryInterface(const platform::GUID* iid, void** out) override;
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }
  platform::Status FireEvent(const QEventRecord* event) override;
  platform::Status GetService(const platform::GUID* id, void** out) override;
  platform::Status AddClient(const platform::GUID* id, void* client) override;
  platform::Status AddServer(const platform::GUID* id, void* server) override;
  platform::Status RemoveClient(const platform::GUID* id, void* client) override;
  platform::Status RemoveServer(const platform::GUID* id, void* server) override;

  // For the services: writes the line and gives the status that the call is to fail with, else 0.
  platform::Status Begin(std::string_view operation, const std::string& arguments = {});
  FakeArea AreaAt(std::uint32_t address) const;

 private:
  platform::Status Register(std::string_view operation, const platform::GUID& id, void* face);
  platform::Status Give(const platform::GUID& id, std::string_view operation, void** out);
  const fakes::Offered* Find(const platform::GUID& id) const;

  std::vector<fakes::Offered> offered_;
  std::unique_ptr<FakeUi> ui_;
  std::unordered_map<platform::GUID, void*> faces_;
  std::vector<std::string> transcript_;
  std::unordered_set<platform::GUID> lacking_, null_;
  std::map<std::string, std::vector<platform::Status>, std::less<>> fail_next_;
  std::map<std::string, platform::Status, std::less<>> fail_all_;
  std::unordered_map<std::uint32_t, std::uint8_t> memory_;
  FakeArea little_;
};

}  // namespace pvw::test
