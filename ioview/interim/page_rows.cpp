#include "ioview/interim/page_rows.h"

#include <string>

namespace ioview::interim {

PageRows::PageRows(Page page, pvw::CIODataFile& file, pvw::CIOData& data, pvw::IQDebugger* target)
    : page_(page), file_(file), data_(data), target_(target), nodes_(1) {}

void PageRows::Fill() {
  for (std::size_t i = 0; pvw::CIORec* module = data_.GetModule(i); ++i) {
    if (!IsShown(*module)) continue;
    const Row row = Append(kRoot, module);
    if (page_ == Page::kAll) Append(row, nullptr);
  }
  if (page_ == Page::kSelected) OpenSelectedRows();
}

void PageRows::Open(OpenRows which) {
  if (which == OpenRows::kNone) return;
  for (Step step = FirstShown(); step.row != kRoot; step = NextShown(step)) {
    if (step.level == 0 || which == OpenRows::kAll) OpenRow(step.row);
  }
}

PageRows::Step PageRows::NextShown(Step step) const {
  const Node& node = nodes_[step.row];
  if (node.open && node.first_child != kRoot) return {node.first_child, step.level + 1};
  while (step.row != kRoot && nodes_[step.row].next == kRoot) {
    step.row = nodes_[step.row].parent;
    --step.level;
  }
  if (step.row == kRoot) return {};
  return {nodes_[step.row].next, step.level};
}

bool PageRows::IsShown(const pvw::CIORec& record) const {
  return page_ == Page::kAll ? !record.IsMissing() : record.IsSelected();
}

PageRows::Row PageRows::Append(Row parent, pvw::CIORec* record) {
  const auto row = static_cast<Row>(nodes_.size());
  nodes_.push_back({record, parent});
  const Row before = nodes_[parent].last_child;
  (before == kRoot ? nodes_[parent].first_child : nodes_[before].next) = row;
  nodes_[parent].last_child = row;
  return row;
}

bool PageRows::HasRealChildren(Row row) const {
  const Row child = nodes_[row].first_child;
  return child == kRoot || nodes_[child].record != nullptr;
}

bool PageRows::AddChildRows(pvw::CIORec& record, Row row) {
  struct Level {
    pvw::CIORec* record;
    Row row;
    std::size_t next_child = 0;
  };
  bool added = false;
  record.SetChildrenKnown(true);
  // A selection can nest without limit, so levels wait here and not on the stack.
  std::vector<Level> levels = {{&record, row}};
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.next_child == level.record->GetChildren().size()) {
      levels.pop_back();
      continue;
    }
    pvw::CIORec& child = *level.record->GetChildren()[level.next_child++];
    if (!IsShown(child)) continue;
    const Row child_row = Append(level.row, &child);
    added = true;
    if (!child.AreChildrenKnown()) {
      child.LoadChildren(&file_, nullptr);
      ApplySelectionToRow(child_row, child);
      if (child.GetChildren().empty()) continue;
    }
    child.SetChildrenKnown(true);
    levels.push_back({&child, child_row});
  }
  return added;
}

void PageRows::ApplySelectionToRow(Row row, pvw::CIORec& record) {
  std::vector<std::string> path;
  for (; row != kRoot; row = nodes_[row].parent) path.push_back(nodes_[row].record->GetName());
  data_.ApplyChildSelection(&record, path);
}

void PageRows::OpenSelectedRows() {
  Row before = kRoot;
  for (Row row = nodes_[kRoot].first_child; row != kRoot; row = nodes_[row].next) {
    pvw::CIORec& record = *nodes_[row].record;
    if (!record.AreChildrenKnown()) {
      if (record.LoadChildren(&file_, nullptr)) {
        ApplySelectionToRow(row, record);
        AddChildRows(record, row);
      }
    } else if (!AddChildRows(record, row)) {
      // Nothing that was selected in the module remains: it leaves the page and the selection.
      (before == kRoot ? nodes_[kRoot].first_child : nodes_[before].next) = nodes_[row].next;
      record.SetSelected(false);
      continue;
    }
    before = row;
  }
  nodes_[kRoot].last_child = before;
}

void PageRows::OpenRow(Row row) {
  if (!HasChildren(row) || nodes_[row].open) return;
  nodes_[row].open = true;
  pvw::CIORec& record = *nodes_[row].record;
  if (record.AreChildrenKnown() && HasRealChildren(row)) {
    record.SetExpanded(true);
    record.ReadValue(target_);
    return;
  }
  nodes_[row].first_child = nodes_[row].last_child = kRoot;
  bool loaded = true;
  if (record.AreChildrenKnown()) {
    record.ReadValue(target_);
  } else {
    loaded = record.LoadChildren(&file_, target_);
    ApplySelectionToRow(row, record);
  }
  record.SetExpanded(true);
  if (loaded) AddChildRows(record, row);
}

}  // namespace ioview::interim
