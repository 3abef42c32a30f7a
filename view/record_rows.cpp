#include "view/record_rows.h"

#include <cstddef>
#include <string>
#include <tuple>
#include <vector>

#include "platform/base/resources.h"
#include "resources/ids.h"
#include "view/pane_ids.h"

namespace pvw {

using platform::HTREEITEM;

namespace {

constexpr int kImageWidth = 16;
constexpr int kImageCount = 4;
constexpr platform::COLORREF kWhite = 0xFFFFFF;

}  // namespace

void LoadRowImages(platform::CImageList& images) {
  const platform::PictureResource* strip = platform::LoadBitmap(IDB_ROW_IMAGES);
  if (strip != nullptr) images.Create(kImageWidth, strip->height, kImageCount, strip->pixels, kWhite);
}

bool HasNoChildren(const CIORec& record) {
  return record.GetChildren().empty();
}

int LeafImage(const CIORec& record) {
  return record.IsMissing() ? kCrossedOutPage : kPage;
}

int FirstImage(const CIORec& record) {
  if (record.IsMissing()) return kCrossedOutPage;
  return record.AreChildrenKnown() && HasNoChildren(record) ? kPage : kClosedFolder;
}

bool RecordRows::AddBelow(CIORec& record, HTREEITEM parent, const AddRow& add_row) const {
  // The rows of a module are made in one go, against one state of the file. Selections nest as deep as their
  // text says, so the walk keeps its own stack.
  const CIODataFile::Reading reading(file);
  const platform::HWND window = tree.GetHandle();
  struct Level {
    CIORec* record;
    HTREEITEM row;
    std::size_t next;
  };
  record.SetChildrenKnown(true);
  std::vector<Level> levels{{&record, parent, 0}};
  bool added = false;
  while (!levels.empty()) {
    Level& level = levels.back();
    const CIORec::Records& children = level.record->GetChildren();
    if (level.next >= children.size()) {
      levels.pop_back();
      continue;
    }
    CIORec& child = *children[level.next++];
    const HTREEITEM row = add_row(child, level.row);
    if (row == kRowsGone) return added;
    if (row == 0) continue;
    added = true;
    if (!child.AreChildrenKnown()) {
      // What could be read shows, whether or not the file has a fault.
      std::ignore = child.LoadChildren(&file, nullptr);
      // 0 is a tree that had no window to begin with.
      if ((window != 0 && !platform::IsWindow(window)) || !tree.HasItem(row)) return added;
      ApplySelection(row, child);
      if (HasNoChildren(child)) {
        tree.SetItemImage(row, LeafImage(child));
        continue;
      }
    }
    child.SetChildrenKnown(true);
    levels.push_back({&child, row, 0});
  }
  return added;
}

void RecordRows::ApplySelection(HTREEITEM item, CIORec& record) const {
  std::vector<std::string> path;
  for (HTREEITEM row = item; row != 0; row = tree.GetParentItem(row)) {
    path.push_back(tree.GetItemText(row, kNameColumn));
  }
  data.ApplyChildSelection(&record, path);
}

}  // namespace pvw
