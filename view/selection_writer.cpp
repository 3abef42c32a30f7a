#include "view/selection_writer.h"

#include <utility>
#include <vector>

#include "model/name_compare.h"
#include "view/pane_ids.h"

namespace pvw {

namespace {

constexpr char kOpen = '{';
constexpr char kClose = '}';
constexpr char kNameEnd = '?';

using RecordList = std::vector<const CIORec*>;

void AddSelected(const CIORec::Records& records, RecordList& list) {
  for (const auto& record : records) {
    if (record->IsSelected()) list.push_back(record.get());
  }
}

RecordList SelectedChildren(const CIORec& record) {
  RecordList list;
  AddSelected(record.GetChildren(), list);
  return list;
}

// A module that couldn't be opened has taken over the missing ones of what is selected in it.
RecordList ChildrenOfUnread(const CIORec& module, const CIORec& selected) {
  RecordList list = SelectedChildren(selected);
  for (const auto& child : module.GetChildren()) {
    if (child->IsMissing() && child->IsSelected()) list.push_back(child.get());
  }
  return list;
}

}  // namespace

std::string SelectionTextOfRows(const CTreeGridCtrl& tree) {
  std::string text;
  platform::HTREEITEM item = tree.GetRootItem();
  if (item == 0) return text;
  text += kOpen;
  while (item != 0) {
    text += tree.GetItemText(item, kNameColumn);
    text += kNameEnd;
    if (const platform::HTREEITEM child = tree.GetChildItem(item)) {
      text += kOpen;
      item = child;
      continue;
    }
    platform::HTREEITEM next = tree.GetNextSiblingItem(item);
    while (next == 0) {
      text += kClose;
      item = tree.GetParentItem(item);
      if (item == 0) break;
      next = tree.GetNextSiblingItem(item);
    }
    item = next;
  }
  return text;
}

std::string SelectionTextOfRecords(const CIOData& data) {
  NameIndex saved;
  for (std::size_t i = 0; i < data.GetSelection().size(); ++i)
    saved.Add(data.GetSelection()[i]->GetName(), i);

  RecordList modules;
  AddSelected(data.GetModules(), modules);
  std::string text;
  if (modules.empty()) return text;
  struct Level {
    RecordList records;
    std::size_t next = 0;
  };
  std::vector<Level> levels;
  levels.push_back({std::move(modules)});
  text += kOpen;
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.next == level.records.size()) {
      text += kClose;
      levels.pop_back();
      continue;
    }
    const CIORec& record = *level.records[level.next++];
    text += record.GetName();
    text += kNameEnd;
    const bool unread = levels.size() == 1 && !record.AreChildrenKnown();
    const auto place = unread ? saved.TakeFirst(record.GetName()) : std::nullopt;
    RecordList children =
        place ? ChildrenOfUnread(record, *data.GetSelection()[*place]) : SelectedChildren(record);
    if (children.empty()) continue;
    text += kOpen;
    levels.push_back({std::move(children)});
  }
  return text;
}

}  // namespace pvw
