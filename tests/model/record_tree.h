// A host whose target is connected, a definition file in a directory of its own, and the records over it,
// opened the way a pane opens its rows.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/io_data.h"
#include "target/debugger_binding.h"
#include "tests/support/fake_host.h"
#include "tests/support/recording_presenter.h"
#include "tests/support/temp_dir.h"

namespace pvw::test {

// One module PORT, whose sections follow. The file base is FF0000.
inline std::string Definition(int version, const std::string& sections) {
  return "[Modules]\nBaseAddress=0xFF0000\nFileVersion=" + std::to_string(version) + "\nModule1=PORT\n" +
         sections;
}

class RecordTree {
 public:
  RecordTree() {
    data.SetHost(&host);
    BindDebuggerFunctions(&host, 1);
    host.ClearTranscript();
  }
  ~RecordTree() { UnbindDebuggerFunctions(&host); }

  // The first load, or a reload.
  platform::Status Load(std::string_view definition, std::uint32_t base = 0) {
    if (file.IsOpen()) {
      data.CollectSelection();
      data.DeleteModules();
      file.Close();
    }
    file.Open(dir.Write("device.io", definition), base);
    const platform::Status status = data.LoadModules(&file);
    data.ApplySelection();
    return status;
  }

  // Opens a module's row: its registers and bit fields are made and listed when it is opened first.
  bool Open(const std::string& name, bool target = true) { return Open(Record(name), target); }
  bool Open(CIORec& module, bool target = true) {
    bool loaded = true;
    if (module.AreChildrenKnown()) {
      module.ReadValue(target ? host.Debugger() : nullptr);
    } else {
      loaded = module.LoadChildren(&file, target ? host.Debugger() : nullptr);
      data.ApplyChildSelection(&module, {module.GetName()});
    }
    module.SetExpanded(true);
    if (!loaded) return false;
    module.SetChildrenKnown(true);
    for (const auto& reg : module.GetChildren()) {
      reg->UpdateEnabled();
      if (reg->AreChildrenKnown()) continue;
      reg->LoadChildren(&file, nullptr);
      data.ApplyChildSelection(reg.get(), {reg->GetName(), module.GetName()});
      reg->SetChildrenKnown(true);
    }
    return true;
  }
  platform::Status Refresh() { return data.ReadValues(host.Debugger()); }

  // "PORT", "PORT/PDATA": the first record of each name.
  CIORec& Record(const std::string& path) {
    std::istringstream names(path);
    const CIORec::Records* records = &data.GetModules();
    CIORec* record = nullptr;
    for (std::string name; std::getline(names, name, '/'); records = &record->GetChildren()) {
      const auto found = std::ranges::find(*records, name, [](const auto& each) { return each->GetName(); });
      if (found == records->end()) throw std::runtime_error("no record " + path);
      record = found->get();
    }
    return *record;
  }

  // Records with all below them, a line each: the four columns up to their last text, "+" for a selected
  // record, "!" for a missing one, which shows its name alone.
  static std::string Rows(const CIORec::Records& records, const std::string& indent = "") {
    std::string rows;
    for (const auto& record : records) {
      std::string row = indent + record->GetName();
      if (!record->IsMissing()) {
        row += " | " + record->GetAddressText(0) + " | " + record->GetValueText() + " | " +
               record->GetAccessText();
      }
      row.erase(row.find_last_not_of(" |") + 1);
      row += record->IsMissing() ? (record->IsSelected() ? " +!" : " !") : (record->IsSelected() ? " +" : "");
      rows += row + "\n" + Rows(record->GetChildren(), indent + "  ");
    }
    return rows;
  }
  std::string Rows() const { return Rows(data.GetModules()); }
  std::string RowsOf(const std::string& path) { return Rows(Record(path).GetChildren()); }

  RecordingPresenter messages;
  FakeHost host;
  TempDir dir;
  CIODataFile file;
  CIOData data;
};

class RecordTreeTest : public testing::Test, public RecordTree {};

}  // namespace pvw::test
