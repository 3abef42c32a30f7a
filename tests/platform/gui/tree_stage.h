// A tree grid in its owner's window on a display without a screen, and the story of what the owner was told.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "platform/gui/list_edit.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"
#include "tests/platform/gui/tree_text.h"

namespace platform {

#define CODE(name) \
  { name, #name }
inline const std::map<UINT, std::string> kNotedCodes = {
    CODE(NM_CLICK),           CODE(NM_DBLCLK),        CODE(NM_RETURN),          CODE(NM_RCLICK),
    CODE(LVN_BEGINLABELEDIT), CODE(LVN_ENDLABELEDIT), CODE(LVN_COLUMNCLICK),    CODE(TVN_SELCHANGED),
    CODE(TVN_ITEMEXPANDING),  CODE(TVN_BEGINDRAG),    CODE(TVN_BEGINLABELEDIT), CODE(TVN_ENDLABELEDIT),
    CODE(TVN_CHECKCHANGED)};
#undef CODE

inline const std::map<UINT, std::string> kNotedMessages = {
    {WM_LBUTTONDOWN, "DOWN"},  {WM_LBUTTONUP, "UP"},    {WM_LBUTTONDBLCLK, "DBLCLK"},
    {WM_RBUTTONDOWN, "RDOWN"}, {WM_RBUTTONUP, "RUP"},   {WM_KILLFOCUS, "KILLFOCUS"},
    {WM_SETFOCUS, "SETFOCUS"}, {WM_DESTROY, "DESTROY"}, {WM_CONTEXTMENU, "CONTEXTMENU"}};

class TreeStage : public testing::Test {
 public:
  // Notes messages of mouse and focus behind a name.
  template <typename Base>
  class Noted : public Base {
   public:
    Noted(std::string name, TreeStage& stage) : m_name(std::move(name)), m_stage(stage) {}
    LRESULT WindowProc(const MSG& msg) override {
      m_stage.NoteMessage(m_name, msg.message);
      return Base::WindowProc(msg);
    }

   protected:
    std::string m_name;
    TreeStage& m_stage;
  };

  class Tree : public Noted<SECTreeCtrl> {
   public:
    using Noted::Noted;
    using SECTreeCtrl::SetListEdit;

   protected:
    void OnHeaderRightClick(POINT point) override { m_stage.Note("menu at " + std::to_string(point.x)); }
  };

  // The parent of the tree: notes each notification and answers as it is told to.
  class Owner : public CWnd {
   public:
    explicit Owner(TreeStage& stage) : m_stage(stage) {}
    LRESULT WindowProc(const MSG& msg) override {
      if (msg.message == WM_CONTEXTMENU) m_stage.Note("owner CONTEXTMENU");
      if (msg.message != WM_NOTIFY) return CWnd::WindowProc(msg);
      auto& header = *reinterpret_cast<NMHDR*>(msg.lParam);
      if (const auto code = kNotedCodes.find(header.code); code != kNotedCodes.end()) {
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

   private:
    TreeStage& m_stage;
  };

  TreeStage() {
    SetDisplay(&display);
    const std::vector<std::uint32_t> pixels(16 * 16 * 4);
    images.Create(16, 16, 4, pixels, 0xFFFFFF);
    tree.SetListEdit(std::make_unique<Noted<SECListEdit>>("edit ", *this));
    owner.Create({.style = WS_POPUP | WS_VISIBLE, .rect = {0, 0, 600, 400}});
    CreateTree();
    Story();
  }

  ~TreeStage() override {
    owner.DestroyWindow();
    SetDisplay(nullptr);
  }

  // Makes the tree's window, unless it is there.
  void CreateTree() { tree.Create({.rect = {10, 10, 530, 216}, .parent = owner.GetHandle(), .id = 200}); }
  // Columns Name 200, Address 100, Value 100, Access 100 with a header, lines and boxes, in a window of 520
  // by 206 pixels: a header of 19 and 11 rows of 17.
  void MakeGrid() {
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
  // The grid with a row A that is open over B and C, then D; no edit is open, and the owner lets all happen.
  void Reset() {
    answers.clear();
    CreateTree();
    tree.EndEdit(false);
    if (tree.GetColumnCount() == 1) MakeGrid();
    Fill("-A\n  B|1000|FF|RW\n  C\nD\n");
    SetFocus(0);
    Story();
  }
  // In place of the rows before.
  void Fill(const std::string& text) {
    tree.DeleteAllItems();
    FillTree(tree, text, items);
  }
  HTREEITEM Item(const std::string& name) { return items[name]; }
  std::string NameOf(HTREEITEM item) const { return item == 0 ? "-" : tree.GetItemText(item, 0); }
  std::string Rows() const { return ShownRows(tree); }

  void Press(POINT at, UINT message = WM_LBUTTONDOWN) {
    gui::Input({tree.GetHandle(), message, 0, PointParam(at)});
  }
  POINT At(const std::string& name, UINT part) { return tree.GetPartPoint(Item(name), part); }
  void FocusTree() { SetFocus(tree.GetHandle()); }
  // What the owner does at a notification, with its `record`, and answers.
  void Answer(
      UINT code, LRESULT result, std::function<void()> act = [] {}) {
    answers[code] = {result, std::move(act)};
  }

  void Note(const std::string& line) { story += (story.empty() ? "" : ", ") + line; }
  void NoteMessage(const std::string& name, UINT message) {
    const auto known = kNotedMessages.find(message);
    if (known != kNotedMessages.end()) Note(name + known->second);
  }
  // What happened since the last call.
  std::string Story() { return std::exchange(story, {}); }

  std::string story;
  std::map<UINT, std::pair<LRESULT, std::function<void()>>> answers;
  NMHDR* record = nullptr;
  ItemsByName items;
  CImageList images;
  HeadlessDisplay display{HeadlessDisplay::Unanswered::Cancel,
                          [this](const std::string& line) { Note(line); }};
  Owner owner{*this};
  Tree tree{"", *this};
};

}  // namespace platform
