#include "model/io_data.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include "model/definition_keys.h"
#include "model/io_rec_module1.h"
#include "model/io_rec_module2.h"
#include "model/io_rec_module3.h"
#include "model/selection_text.h"

namespace pvw {
namespace {

std::unique_ptr<CIORecModule> MakeModule(std::uint32_t version, std::string name, IQComponentHost* host) {
  switch (version) {
    case 2:
      return TryMakeRecord<CIORecModule2>(std::move(name), host);
    case 3:
      return TryMakeRecord<CIORecModule3>(std::move(name), host);
    default:
      return TryMakeRecord<CIORecModule1>(std::move(name), host);
  }
}

NameIndex IndexOf(const CIORec::Records& records) {
  NameIndex index;
  for (std::size_t i = 0; i < records.size(); ++i) index.Add(records[i]->GetName(), i);
  return index;
}

void EraseTaken(CIORec::Records& records) {
  std::erase(records, nullptr);
}

// What stays below `module` when the tree becomes the selection. A record that isn't selected hides what is
// selected below it.
void KeepSelected(CIORec& module) {
  std::vector<CIORec*> pending{&module};
  while (!pending.empty()) {
    CIORec* const record = pending.back();
    pending.pop_back();
    record->LeaveForSelection();
    CIORec::Records children = record->TakeChildren();
    std::erase_if(children, [](const auto& child) { return !child->IsSelected(); });
    for (const auto& child : children) pending.push_back(child.get());
    record->SetChildren(std::move(children));
  }
}

// Moves the missing children of a record of the file to a record of the selection, behind those that it has.
void ReturnMissing(CIORec& record, CIORec& selected) {
  CIORec::Records children = record.TakeChildren();
  for (auto& child : children) {
    if (child->IsMissing()) selected.AdoptMissing(std::move(child));
  }
  EraseTaken(children);
  record.SetChildren(std::move(children));
}

}  // namespace

platform::Status CIOData::LoadModules(CIODataFile* file) {
  if (!file->IsOpen()) return platform::E_FAIL;
  ReloadKeys();
  const CIODataFile::Reading reading(*file);
  std::vector<CIORecModule*> loaded;
  for (std::uint32_t n = 1;; ++n) {
    std::string name = file->GetValue(Keys().modules, NumberedKey(Keys().module, n));
    if (name.empty()) break;
    auto module = MakeModule(file->GetVersion(), std::move(name), m_pHost);
    if (module == nullptr) continue;
    loaded.push_back(module.get());
    m_modules.push_back(std::move(module));
  }
  const Watch<CIOData> watch(this);
  const bool ok = std::ranges::all_of(
      loaded, [&](CIORecModule* module) { return module->LoadDependency(file) && watch.Stands(); });
  return ok ? platform::S_OK : platform::E_FAIL;
}

CIORec* CIOData::GetModule(std::size_t index) const {
  return index < m_modules.size() ? m_modules[index].get() : nullptr;
}

platform::Status CIOData::ReadValues(IQDebugger* target) {
  const Watch<CIOData> watch(this);
  for (std::size_t i = 0; i < m_modules.size(); ++i) {
    if (!m_modules[i]->IsExpanded()) continue;
    const platform::Status status = m_modules[i]->ReadValue(target);
    if (!watch.Stands()) return platform::E_FAIL;
    if (platform::Failed(status)) return status;
  }
  return platform::S_OK;
}

void CIOData::ParseSelection(std::string_view text) {
  ParseSelectionText(text, m_pHost, m_selection);
  ForgetIndexes();
}

void CIOData::ApplySelection() {
  const NameIndex modules = IndexOf(m_modules);
  CIORec::Records missing;
  for (auto& selected : m_selection) {
    if (!selected->IsSelected()) continue;
    if (const auto place = modules.First(selected->GetName())) {
      m_modules[*place]->SetSelected(true);
    } else {
      missing.push_back(std::move(selected));
    }
  }
  EraseTaken(m_selection);
  ForgetIndexes();
  for (auto& module : missing) {
    module->MarkMissing();
    m_modules.push_back(std::move(module));
  }
}

CIORec* CIOData::FindSelected(const std::vector<std::string>& path) {
  if (path.empty() || m_selection.empty()) return nullptr;
  if (!m_selectionIndex) {
    m_selectionIndex.emplace();
    for (std::size_t i = 0; i < m_selection.size(); ++i) {
      if (m_selection[i]->IsSelected()) m_selectionIndex->Add(m_selection[i]->GetName(), i);
    }
  }
  const auto place = m_selectionIndex->First(path.back());
  if (!place) return nullptr;
  CIORec* record = m_selection[*place].get();
  for (auto name = std::next(path.rbegin()); name != path.rend(); ++name) {
    const auto [index, added] = m_childIndexes.try_emplace(record);
    if (added) index->second = IndexOf(record->GetChildren());
    const auto child = index->second.First(*name);
    if (!child) return nullptr;
    record = record->GetChildren()[*child].get();
  }
  return record;
}

void CIOData::ApplyChildSelection(CIORec* record, const std::vector<std::string>& path) {
  CIORec* const match = FindSelected(path);
  if (match == nullptr) return;
  // What an earlier attempt to open the record found missing may be there now.
  ReturnMissing(*record, *match);
  if (match->GetChildren().empty()) return;
  NameIndex index = IndexOf(record->GetChildren());
  CIORec::Records children = match->TakeChildren();
  for (auto& child : children) {
    if (!child->IsSelected()) continue;
    if (const auto place = index.First(child->GetName())) {
      record->GetChildren()[*place]->SetSelected(true);
      continue;
    }
    child->SetChildrenKnown(true);
    index.Add(child->GetName(), record->GetChildren().size());
    record->AdoptMissing(std::move(child));
  }
  EraseTaken(children);
  match->SetChildren(std::move(children));
  m_childIndexes.erase(match);
}

void CIOData::CollectSelection() {
  NameIndex templates = IndexOf(m_selection);
  for (auto& module : m_modules) {
    if (module->AreChildrenKnown() || !module->IsSelected()) continue;
    const auto place = templates.TakeFirst(module->GetName());
    if (!place) continue;
    // A module that couldn't be opened has taken over what is selected in it.
    ReturnMissing(*module, *m_selection[*place]);
    module = std::move(m_selection[*place]);
  }
  DeleteSelection();
  for (auto& module : m_modules) {
    if (!module->IsSelected()) continue;
    KeepSelected(*module);
    m_selection.push_back(std::move(module));
  }
  DeleteModules();
}

CIOData::~CIOData() {
  Watch<CIOData>::OnGone(this);
}

void CIOData::DeleteModules() {
  Watch<CIOData>::OnGone(this);
  m_modules.clear();
}

void CIOData::DeleteSelection() {
  m_selection.clear();
  ForgetIndexes();
}

void CIOData::ForgetIndexes() {
  m_selectionIndex.reset();
  m_childIndexes.clear();
}

}  // namespace pvw
