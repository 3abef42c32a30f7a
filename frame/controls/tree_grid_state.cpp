#include "frame/controls/tree_grid_state.h"

#include <string>

#include "frame/controls/tree_grid_ctrl.h"
#include "platform/base/bstr.h"

namespace pvw {

using platform::HTREEITEM;
using platform::SECTreeCtrl;
using platform::Status;

namespace {

std::string Numbered(std::string_view key, std::string_view part, std::size_t number) {
  std::string name(key);
  name += part;
  return name += std::to_string(number);
}

std::string WidthKey(std::string_view key, int column) {
  return Numbered(key, "ColWidth", static_cast<std::size_t>(column));
}

// The lowest number stands for itself, so that it survives both ways.
std::uint32_t Negated(std::int32_t number) {
  return 0u - static_cast<std::uint32_t>(number);
}

}  // namespace

HTREEITEM NextRow(const SECTreeCtrl& tree, HTREEITEM item, bool descend) {
  HTREEITEM next = descend ? tree.GetChildItem(item) : 0;
  while (next == 0 && item != 0) {
    next = tree.GetNextSiblingItem(item);
    item = tree.GetParentItem(item);
  }
  return next;
}

void SaveOpenRows(const SECTreeCtrl& tree, CSessionStore& store, std::string_view key) {
  std::size_t number = 0;
  bool open = false;
  for (HTREEITEM item = tree.GetRootItem(); item != 0; item = NextRow(tree, item, open)) {
    open = tree.IsExpanded(item);
    store.WriteInt(Numbered(key, "Exp", number++), open ? 1 : 0);
  }
}

bool LoadOpenRows(SECTreeCtrl& tree, CSessionStore& store, std::string_view key) {
  const platform::HWND self = tree.GetHandle();
  std::size_t number = 0;
  bool open = false;
  for (HTREEITEM item = tree.GetRootItem(); item != 0; item = NextRow(tree, item, open)) {
    std::int32_t value = 0;
    store.ReadInt(Numbered(key, "Exp", number++), 0, &value);
    open = value != 0;
    tree.Expand(item, open ? platform::TVE_EXPAND : platform::TVE_COLLAPSE);
    if (self != 0 && !platform::IsWindow(self)) return false;
  }
  return true;
}

// Widths -------------------------------------------------------------------------------------------------

std::int32_t CTreeGridCtrl::StoredWidth(int column) const {
  const int width = GetColumnWidth(column);
  return width != 0 ? width : static_cast<std::int32_t>(0u - HiddenWidth(column));
}

void CTreeGridCtrl::HideColumn(int column, std::int32_t number) {
  SetColumnWidth(column, 0);
  SetHiddenWidth(column, Negated(number));
}

Status CTreeGridCtrl::SaveColumnWidths(IQSettings* settings, std::string_view section) const {
  if (settings == nullptr || GetColumnCount() <= 1) return platform::S_OK;
  const platform::ScopedBstr section_name(section);
  for (int column = 0; column < GetColumnCount(); ++column) {
    const platform::ScopedBstr key(WidthKey({}, column));
    settings->WriteSectionInt(section_name.Get(), key.Get(), StoredWidth(column));
  }
  return platform::S_OK;
}

Status CTreeGridCtrl::LoadColumnWidths(IQSettings* settings, std::string_view section) {
  if (settings == nullptr || GetColumnCount() <= 1) return platform::S_OK;
  const platform::ScopedBstr section_name(section);
  const platform::HWND self = GetHandle();
  for (int column = 0; column < GetColumnCount(); ++column) {
    const platform::ScopedBstr key(WidthKey({}, column));
    std::int32_t width = 0;
    const Status status = settings->ReadSectionInt(section_name.Get(), key.Get(), &width);
    if (self != 0 && !platform::IsWindow(self)) return platform::E_FAIL;
    if (platform::Failed(status)) width = StoredWidth(column);
    if (width > 0) {
      SetColumnWidth(column, width);
      SetHiddenWidth(column, static_cast<std::uint32_t>(width));
    } else {
      HideColumn(column, width);
    }
  }
  return platform::S_OK;
}

// Session ------------------------------------------------------------------------------------------------

Status CTreeGridCtrl::SaveState(CSessionStore& store, std::string_view key) const {
  if (GetColumnCount() > 1) {
    for (int column = 0; column < GetColumnCount(); ++column) {
      store.WriteInt(WidthKey(key, column), StoredWidth(column));
    }
  }
  SaveOpenRows(*this, store, key);
  store.WriteInt(std::string(key) + "ScrollHorz", GetScrollPos(false));
  store.WriteInt(std::string(key) + "ScrollVert", GetScrollPos(true));
  return platform::S_OK;
}

Status CTreeGridCtrl::LoadState(CSessionStore& store, std::string_view key) {
  if (GetColumnCount() > 1) {
    for (int column = 0; column < GetColumnCount(); ++column) {
      std::int32_t width = -1;
      store.ReadInt(WidthKey(key, column), -1, &width);
      if (width > 0) {
        SetColumnWidth(column, width);
      } else {
        HideColumn(column, width);
      }
    }
  }
  if (!LoadOpenRows(*this, store, key)) return platform::S_OK;
  std::int32_t position = 0;
  store.ReadInt(std::string(key) + "ScrollHorz", 0, &position);
  SetScrollPos(false, position);
  store.ReadInt(std::string(key) + "ScrollVert", 0, &position);
  SetScrollPos(true, position);
  return platform::S_OK;
}

}  // namespace pvw
