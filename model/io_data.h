// The record tree of one definition file, and beside it the user's selection as it was saved.
//
// The two meet by name: a module or register that the selection names is marked when the file has it, and
// appears as a missing record when it hasn't, so that a choice outlives a file that lacks what was chosen.
//
//   first load   ParseSelection, LoadModules, ApplySelection
//   reload       CollectSelection, DeleteModules, closing and opening the file, LoadModules, ApplySelection
//   each open    CIORec::LoadChildren, then ApplyChildSelection
//
// A load and a read let the host go on: they fail when the modules are deleted meanwhile, which a
// Watch<CIOData> tells.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/io_data_file.h"
#include "model/io_rec.h"
#include "model/name_compare.h"

namespace pvw {

class CIOData {
 public:
  CIOData() = default;
  CIOData(const CIOData&) = delete;
  CIOData& operator=(const CIOData&) = delete;
  virtual ~CIOData();

  // The host of the records that are made from now on; not owned.
  void SetHost(IQComponentHost* host) { m_pHost = host; }

  // Appends the modules of the file, then reads their dependencies. E_FAIL when the file isn't open, and when
  // a dependency has a fault: the modules stay, and those behind it have no dependency.
  platform::Status LoadModules(CIODataFile* file);
  // The top-level records: the file's modules, then missing ones. Null at or past the end.
  CIORec* GetModule(std::size_t index) const;
  std::size_t GetModuleCount() const { return m_modules.size(); }
  const CIORec::Records& GetModules() const { return m_modules; }
  // Reads the modules that a pane has open. Ends at the first negative status.
  platform::Status ReadValues(IQDebugger* target);

  // Appends the records of a saved selection: see model/selection_text.h.
  void ParseSelection(std::string_view text);
  // Marks the modules that the selection names; those that the file lacks move to the modules, missing.
  void ApplySelection();
  // The same for the children of `record`, right after they were made. `path` holds the display names from
  // the record up to its module.
  void ApplyChildSelection(CIORec* record, const std::vector<std::string>& path);
  // Makes the selection anew from what is selected in the tree, which is empty then. A selected module that
  // was never opened keeps what the old selection has below it.
  void CollectSelection();
  const CIORec::Records& GetSelection() const { return m_selection; }

  void DeleteModules();
  void DeleteSelection();

 private:
  // The selection record that `path` leads to; null when there is none.
  CIORec* FindSelected(const std::vector<std::string>& path);
  // Behind every change of m_selection.
  void ForgetIndexes();

  CIORec::Records m_modules;
  CIORec::Records m_selection;
  IQComponentHost* m_pHost = nullptr;

  // Places by name, made when they are first needed: of the selected records of m_selection, and of the
  // children of a record in it.
  std::optional<NameIndex> m_selectionIndex;
  std::unordered_map<const CIORec*, NameIndex> m_childIndexes;
};

}  // namespace pvw
