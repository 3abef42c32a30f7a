// One record of the tree that a definition file yields: a module, a register or a bit field.
//
// The view, the edit commands and the test client treat a record through these operations without knowing its
// kind. A record owns its children. Nesting can be deep where a selection text says so: nothing here walks
// down or up by recursion, but for reads and writes, which stop at missing records, and Relocate, which stops
// at registers. User-interface thread only.
//
// Reads, writes, dialogs and messages let the host go on, and the record may leave the tree or be destroyed
// meanwhile. Each operation that has one in it fails then, and touches nothing of the record any more;
// Watch<CIORec> tells a caller.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "host/component_host.h"
#include "host/debug_services.h"
#include "host/format_services.h"
#include "model/io_data_file.h"
#include "model/io_register_id.h"
#include "model/watch.h"

namespace pvw {

class CIORec {
 public:
  using Records = std::vector<std::unique_ptr<CIORec>>;

  // Both ask the host, which may be null, for IQNumberFormat.
  CIORec(std::string name, IQComponentHost* host);
  // With the parent's host. The parent isn't told: AddChild puts the record into its list.
  CIORec(std::string name, CIORec* parent);
  CIORec(const CIORec&) = delete;
  CIORec& operator=(const CIORec&) = delete;
  virtual ~CIORec();

  // Sections can be named by any number of modules and registers, so a small file can ask for more records
  // than any memory holds. When all records together have grown to a limit, no more are made from files.
  static bool HasRoom() { return s_bytes < s_maxBytes; }
  // Another limit than 2 GiB. Gives the one before.
  static std::size_t SetMaxBytes(std::size_t bytes) { return std::exchange(s_maxBytes, bytes); }

  // The definition has moved by `delta`.
  virtual void Relocate(std::uint32_t delta);
  // Takes over from the top-level record whether values may be edited.
  void UpdateEnabled();
  virtual bool IsEditable() const { return false; }
  // Writes a value to the target; true when a changed value has reached it. A value that is too big, and a
  // write that fails, are told to the user.
  virtual bool SetValue(IQDebugger* target, std::uint64_t value);
  // The same with a value from the edit dialog, which gets the other two arguments. False as well when the
  // user cancels.
  virtual bool EditValue(IQDebugger* target, IQNumberFormat* numberFormat, IQComponentHost* host);
  // Whether there are children as far as is known, or may be.
  virtual bool HasChildren() const { return false; }
  // Makes the children from the file, which is open, and reads their values, which fails silently with a null
  // `target`. False when the file's fault leaves the list unusable; the user has been told.
  virtual bool LoadChildren(CIODataFile* file, IQDebugger* target);
  // Negative on failure, which is silent. Missing children are left out.
  virtual platform::Status ReadValue(IQDebugger* target);
  // Writes the cached values.
  virtual platform::Status WriteValue(IQDebugger* target);

  // The four columns of the view.
  virtual const std::string& GetName() const;
  virtual std::string GetAddressText(std::uint32_t offset) const;
  virtual std::string GetValueText() const;
  virtual std::string GetAccessText() const;

  // Begins to fetch from memory what a read and the texts look at. Records lie anywhere, and those of a large
  // device outgrow the processor's caches: who walks over them asks for each some steps before its turn.
  void Prefetch() const {
    constexpr std::size_t kLine = 64, kLines = 3;
    const char* const begin = reinterpret_cast<const char*>(this);
    for (std::size_t line = 0; line < kLines; ++line) __builtin_prefetch(begin + line * kLine);
  }
  static constexpr std::size_t kPrefetchSteps = 6;

  // The register that the value lies in; null for a record without a value.
  virtual CIORegisterID* GetRegister() { return nullptr; }

  CIORec* GetParent() const { return m_pParent; }
  // False while a dependency of the module says that values can't be edited, as of the last UpdateEnabled.
  bool IsEnabled() const { return m_bEnabled; }

  // Whether the list of children is final.
  bool AreChildrenKnown() const { return m_bChildrenKnown; }
  void SetChildrenKnown(bool known) { m_bChildrenKnown = known; }

  // Open in at least one pane. Two panes share the record, so each open counts one up and each close one
  // down.
  bool IsExpanded() const { return m_bExpanded; }
  void SetExpanded(bool expanded);

  // Part of the user's selection. The setter gives the old value.
  bool IsSelected() const { return m_bSelected; }
  bool SetSelected(bool selected) { return std::exchange(m_bSelected, selected); }

  // Stands for a selected name that the file doesn't define; never read from or written to the target. The
  // setter gives the old value.
  bool IsMissing() const { return m_bMissing; }
  bool SetMissing(bool missing) { return std::exchange(m_bMissing, missing); }
  // The record and all below it.
  void MarkMissing();

  // Leaves the tree to be a record of the selection: its children are final, no pane has it open, and who is
  // in the midst of it has lost it.
  void LeaveForSelection();

  const Records& GetChildren() const { return m_children; }
  void AddChild(std::unique_ptr<CIORec> child);
  // Takes the child out of the list; null, and no change, for an index at or past the end.
  std::unique_ptr<CIORec> RemoveChild(std::size_t index);
  // Takes all children out of the list, and puts a list in its place.
  Records TakeChildren() { return std::exchange(m_children, {}); }
  void SetChildren(Records children) { m_children = std::move(children); }
  // Appends a record of another owner, which becomes a missing child of this one with all below it.
  void AdoptMissing(std::unique_ptr<CIORec> child);

 protected:
  // Whether the record's own condition lets values below it be edited; only that of a top-level record
  // counts.
  virtual bool IsConditionMet() const { return true; }
  // The record has come under another parent.
  virtual void OnAdopted() {}
  // The top-level record above this one, or itself.
  const CIORec* GetTop() const { return m_pTop; }

  // Hexadecimal digits by the host: see model/number_text.h.
  std::string GetNumberText(std::uint64_t value, std::uint32_t bits) const;
  // Tells the user the greatest value that there is room for.
  void ShowTooBig(std::uint64_t limit) const;
  // Runs the edit dialog for this record, whose register is at `addressText`. False when it is cancelled, and
  // when the record has left the tree by its end.
  [[nodiscard]] bool RunEditDialog(IQNumberFormat* numberFormat, IQComponentHost* host, std::uint64_t& value,
                                   std::uint32_t bits, const std::string& addressText);

  // Counts what the record holds beside its own size, a name above all.
  void Charge(std::size_t bytes);

  // What a refresh looks at comes first: it passes over every record there is, and they outgrow the
  // processor's caches.
  CIORec* m_pTop;
  CIORec* m_pParent;
  std::int32_t m_expandCount = 0;
  bool m_bEnabled = true;
  bool m_bChildrenKnown = false;
  bool m_bExpanded = false;
  bool m_bSelected = false;
  bool m_bMissing = false;
  std::uint32_t m_chargedBytes = 0;
  Records m_children;
  IQNumberFormat* m_pNumberFormat;  // not owned; null when the host has none
  IQComponentHost* m_pHost;
  std::string m_name;  // in the file: the module's, or that of a key or section

 private:
  // Calls `visit` with this record and each one below it, parents first.
  template <typename Visit>
  void ForAll(Visit visit);

  static inline std::size_t s_bytes = 0;
  static inline std::size_t s_maxBytes = std::size_t{2} << 30;
};

// A new record; null when there is no room or no memory for it.
template <typename Record, typename... Args>
std::unique_ptr<Record> TryMakeRecord(Args&&... args) {
  if (!CIORec::HasRoom()) return nullptr;
  try {
    return std::make_unique<Record>(std::forward<Args>(args)...);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace pvw
