#include "tests/platform/gui/tree_stage.h"

#include <cstdint>
#include <sstream>

#include "platform/headless/recording_dc.h"

namespace platform {

namespace {

const std::map<UINT, std::string> kCodes = {{NM_CLICK, "NM_CLICK"},
                                            {NM_DBLCLK, "NM_DBLCLK"},
                                            {NM_RETURN, "NM_RETURN"},
                                            {NM_RCLICK, "NM_RCLICK"},
                                            {LVN_BEGINLABELEDIT, "LVN_BEGINLABELEDIT"},
                                            {LVN_ENDLABELEDIT, "LVN_ENDLABELEDIT"},
                                            {LVN_COLUMNCLICK, "LVN_COLUMNCLICK"},
                                            {TVN_SELCHANGED, "TVN_SELCHANGED"},
                                            {TVN_ITEMEXPANDING, "TVN_ITEMEXPANDING"},
                                            {TVN_BEGINDRAG, "TVN_BEGINDRAG"},
                                            {TVN_BEGINLABELEDIT, "TVN_BEGINLABELEDIT"},
                                            {TVN_ENDLABELEDIT, "TVN_ENDLABELEDIT"},
                                            {TVN_CHECKCHANGED, "TVN_CHECKCHANGED"}};

const std::map<UINT, std::string> kMessages = {
    {WM_LBUTTONDOWN, "DOWN"},  {WM_LBUTTONUP, "UP"},    {WM_LBUTTONDBLCLK, "DBLCLK"},
    {WM_RBUTTONDOWN, "RDOWN"}, {WM_RBUTTONUP, "RUP"},   {WM_KILLFOCUS, "KILLFOCUS"},
    {WM_SETFOCUS, "SETFOCUS"}, {WM_DESTROY, "DESTROY"}, {WM_CONTEXTMENU, "CONTEXTMENU"}};

}  // namespace

LRESULT TreeStage::Owner::WindowProc(const MSG& msg) {
  if (msg.message == WM_CONTEXTMENU) m_stage.Note("owner CONTEXTMENU");
  if (msg.message != WM_NOTIFY) return CWnd::WindowProc(msg);
  auto& header = *reinterpret_cast<NMHDR*>(msg.lParam);
  const auto code = kCodes.find(header.code);
  if (code != kCodes.end()) {
    std::string line = code->second;
    if (line.find("LABELEDIT") != std::string::npos || header.code == LVN_COLUMNCLICK) {
      const LVITEM& item = reinterpret_cast<NMLVDISPINFO&>(header).item;
      line += ' ' + std::to_string(item.iItem) + ' ' + std::to_string(item.iSubItem);
      line += (item.mask & LVIF_TEXT) != 0 ? " \"" + item.pszText + '"' : "";
    } else if (line.starts_with("TVN_")) {
      const auto& record = reinterpret_cast<NMTREEVIEW&>(header);
      line += ' ' + m_stage.NameOf(record.item);
      if (record.action != 0) line += record.action == TVE_EXPAND ? " expand" : " collapse";
    }
    m_stage.Note(line);
  }
  const auto answer = m_stage.answers.find(header.code);
  if (answer == m_stage.answers.end()) return 0;
  const auto [result, act] = answer->second;
  m_stage.record = &header;
  act();
  return result;
}

TreeStage::TreeStage()
    : display(
          HeadlessDisplay::Unanswered::Cancel, [this](const std::string& line) { Note(line); },
          [](const std::string& text) { ADD_FAILURE() << text; }) {
  SetDisplay(&display);
  const std::vector<std::uint32_t> pixels(16 * 16 * 4);
  images.Create(16, 16, 4, pixels, 0xFFFFFF);
  tree.SetListEdit(std::make_unique<Noted<SECListEdit>>("edit ", *this));
  owner.Create({WS_POPUP | WS_VISIBLE, 0, {0, 0, 600, 400}, 0, 0, "owner", 0});
  CreateTree();
  story.clear();
}

TreeStage::~TreeStage() {
  owner.DestroyWindow();
  SetDisplay(nullptr);
}

void TreeStage::MakeGrid() {
  tree.SetGridStyle(SECTreeCtrl::kFullRow);
  tree.SetTreeStyle(SECTreeCtrl::kHasButtons | SECTreeCtrl::kHasLines);
  tree.SetHeaderShown(true);
  tree.SetColumnTitle(0, "Name");
  tree.SetColumnWidth(0, 200);
  tree.InsertColumn(1, "Address", TextAlign::Left, 100);
  tree.InsertColumn(2, "Value", TextAlign::Left, 100);
  tree.InsertColumn(3, "Access", TextAlign::Left, 100);
  tree.SetImageList(&images);
}

void TreeStage::Fill(const std::string& text) {
  std::istringstream lines(text);
  std::vector<HTREEITEM> above = {kTreeRoot};
  for (std::string line; std::getline(lines, line);) {
    const std::size_t level = line.find_first_not_of(' ') / 2;
    std::istringstream cells(line.substr(2 * level));
    std::string cell;
    std::getline(cells, cell, '|');
    above.resize(level + 1);
    tree.SetItemImage(above.back(), 0);
    const HTREEITEM item = tree.InsertItem(cell, 2, above.back());
    items[cell] = item;
    above.push_back(item);
    for (int column = 1; std::getline(cells, cell, '|'); ++column) tree.SetItemText(item, column, cell);
  }
}

HTREEITEM TreeStage::Item(const std::string& name) const {
  const auto item = items.find(name);
  return item != items.end() ? item->second : 0;
}

std::string TreeStage::Rows() const {
  std::string text;
  for (std::size_t row = 0; row < tree.GetRowCount(); ++row) {
    const HTREEITEM item = tree.GetItemAtRow(row);
    text.append(static_cast<std::size_t>(tree.GetItemDepth(item)) * 2, ' ');
    text += !tree.ItemHasChildren(item) ? '.' : tree.IsExpanded(item) ? '-' : '+';
    text += tree.GetItemText(item, 0);
    text += item == tree.GetSelectedItem() ? "<\n" : "\n";
  }
  return text;
}

std::string TreeStage::Painted(int top, int bottom) {
  const RECT clip{0, top, tree.GetClientRect().right, bottom};
  RecordingDC dc(clip);
  tree.Paint(dc, clip);
  std::string text;
  for (const std::string& line : dc.GetLines()) text += line + '\n';
  return text;
}

POINT TreeStage::Cell(const std::string& name, int column) const {
  const RECT cell = tree.GetCellRect(Item(name), column);
  return {cell.left + cell.Width() / 2, cell.top + cell.Height() / 2};
}

void TreeStage::NoteMessage(const std::string& name, UINT message) {
  const auto known = kMessages.find(message);
  if (known != kMessages.end()) Note(name + known->second);
}

std::string TreeStage::Story() {
  std::string text;
  for (const std::string& line : story) text += (text.empty() ? "" : ", ") + line;
  story.clear();
  return text;
}

}  // namespace platform
