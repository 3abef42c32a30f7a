#include "ioview/script/row_path.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "platform/base/text.h"

namespace ioview {

namespace {

using platform::HTREEITEM;
using platform::SECTreeCtrl;

HTREEITEM FindAmong(const SECTreeCtrl& grid, HTREEITEM first, std::span<const std::string> names) {
  for (HTREEITEM item = first; item != 0; item = grid.GetNextSiblingItem(item)) {
    if (grid.GetItemText(item, 0) != names.front()) continue;
    if (names.size() == 1) return item;
    const HTREEITEM found = FindAmong(grid, grid.GetChildItem(item), names.subspan(1));
    if (found != 0) return found;
  }
  return 0;
}

std::string Escaped(const std::string& name) {
  std::string escaped;
  for (std::size_t at = 0; at < name.size();) {
    const std::size_t bytes = platform::CharBytes(name, at);
    if (bytes == 1 && (name[at] == '/' || name[at] == '\\')) escaped += '\\';
    escaped += name.substr(at, bytes);
    at += bytes;
  }
  return escaped;
}

}  // namespace

std::vector<std::string> SplitRowPath(std::string_view path) {
  std::vector<std::string> names(1);
  for (std::size_t at = 0; at < path.size();) {
    std::size_t bytes = platform::CharBytes(path, at);
    const char c = bytes == 1 ? path[at] : '\0';
    if (c == '/') {
      names.emplace_back();
      ++at;
      continue;
    }
    if (c == '\\' && at + 1 < path.size() && (path[at + 1] == '/' || path[at + 1] == '\\')) {
      ++at;
      bytes = 1;
    }
    names.back() += path.substr(at, bytes);
    at += bytes;
  }
  return names;
}

HTREEITEM FindRow(const SECTreeCtrl& grid, const std::vector<std::string>& names) {
  // No tree here is deeper than a few levels; a longer path leads nowhere.
  return FindAmong(grid, grid.GetRootItem(), names);
}

std::string RowPath(const SECTreeCtrl& grid, HTREEITEM item) {
  std::vector<std::string> names;
  for (; grid.HasItem(item); item = grid.GetParentItem(item)) {
    names.push_back(Escaped(grid.GetItemText(item, 0)));
  }
  std::ranges::reverse(names);
  std::string path;
  for (std::size_t i = 0; i < names.size(); ++i) path += (i == 0 ? "" : "/") + names[i];
  return path;
}

}  // namespace ioview
