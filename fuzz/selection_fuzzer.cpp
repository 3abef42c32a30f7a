// Reads any bytes as a selection text and two definition files, and goes through a session with them: load
// with the selection, open everything, edit, collect the selection, load the other file, open that.
//
// An input is up to three parts, each but the last ended by a line "===": selection, definition, and the one
// that is loaded after it. A part that is missing stands empty.

#include <cstdint>
#include <string_view>
#include <vector>

#include "fuzz/memory_file.h"
#include "model/io_data.h"

namespace {

using namespace pvw;
using fuzz::MemoryFile;
using fuzz::Require;

std::string_view TakePart(std::string_view& rest) {
  constexpr std::string_view kSeparator = "===\n";
  const std::size_t end = rest.find(kSeparator);
  const std::string_view part = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + kSeparator.size());
  return part;
}

// What every record of the tree or the selection must bear.
void Touch(CIORec& top) {
  std::vector<CIORec*> pending{&top};
  while (!pending.empty()) {
    CIORec& record = *pending.back();
    pending.pop_back();
    record.UpdateEnabled();
    record.GetAddressText(1);
    record.GetValueText();
    record.GetAccessText();
    record.SetValue(nullptr, record.GetName().size());
    for (const auto& child : record.GetChildren()) {
      Require(child->GetParent() == &record);
      Require(child->IsMissing() || !record.IsMissing());
      pending.push_back(child.get());
    }
  }
}

void OpenAll(CIOData& data, CIODataFile& file) {
  const CIODataFile::Reading reading(file);
  for (std::size_t i = 0; CIORec* module = data.GetModule(i); ++i) {
    if (!module->AreChildrenKnown()) {
      module->LoadChildren(&file, nullptr);
      data.ApplyChildSelection(module, {module->GetName()});
      module->SetChildrenKnown(true);
      for (std::size_t child = 0; child < module->GetChildren().size(); ++child) {
        CIORec& reg = *module->GetChildren()[child];
        if (!reg.AreChildrenKnown()) reg.LoadChildren(&file, nullptr);
        data.ApplyChildSelection(&reg, {reg.GetName(), module->GetName()});
      }
    }
    module->SetExpanded(true);
    Touch(*module);
  }
  data.ReadValues(nullptr);
}

void Load(CIOData& data, CIODataFile& file, const MemoryFile& memory, std::string_view definition) {
  memory.Write(definition);
  file.Open(memory.Path(), 0);
  data.LoadModules(&file);
  data.ApplySelection();
  OpenAll(data, file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile memory;
  // Small, so that an input that asks for too many records is soon done with.
  CIORec::SetMaxBytes(std::size_t{1} << 21);
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  const std::string_view selection = TakePart(rest);
  const std::string_view first = TakePart(rest);

  CIODataFile file;
  CIOData tree;
  tree.ParseSelection(selection);
  for (const auto& module : tree.GetSelection()) {
    Require(module->IsMissing() && module->IsSelected() && module->AreChildrenKnown());
    Touch(*module);
  }
  Load(tree, file, memory, first);
  tree.CollectSelection();
  Require(tree.GetModule(0) == nullptr);
  for (const auto& module : tree.GetSelection()) Require(module->IsSelected() && !module->IsExpanded());
  tree.DeleteModules();
  file.Close();
  Load(tree, file, memory, rest);
  return 0;
}
