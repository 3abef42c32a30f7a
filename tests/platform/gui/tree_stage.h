// A tree grid in its owner's window on a display without a screen, and the story of what the owner was told.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/gui/list_edit.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/headless/headless_display.h"
#include "platform/headless/user.h"

namespace platform {

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

   private:
    std::string m_name;
    TreeStage& m_stage;
  };

  class Tree : public Noted<SECTreeCtrl> {
   public:
    using Noted::Noted;
    using SECTreeCtrl::SetListEdit;
    HTREEITEM red = 0;
    std::vector<POINT> header_menus;

   protected:
    COLORREF GetRowTextColour(HTREEITEM item, COLORREF normal) const override {
      return item == red ? 0x0000FF : normal;
    }
    void OnHeaderRightClick(POINT point) override { header_menus.push_back(point); }
  };

  // The parent of the tree: notes each notification and answers as it is told to.
  class Owner : public CWnd {
   public:
    explicit Owner(TreeStage& stage) : m_stage(stage) {}
    LRESULT WindowProc(const MSG& msg) override;

   private:
    TreeStage& m_stage;
  };

  TreeStage();
  ~TreeStage() override;

  // Makes the tree's window, unless it is there.
  void CreateTree() {
    tree.Create({WS_CHILD | WS_VISIBLE, 0, {10, 10, 530, 216}, owner.GetHandle(), 200, {}, 0});
  }
  // Columns Name 200, Address 100, Value 100, Access 100 with a header, lines and boxes, in a window of 520
  // by 206 pixels: a header of 19 and 11 rows of 17.
  void MakeGrid();
  // Rows of a text: a line each, two blanks a level, a name and behind a bar further cells; in the order of
  // the text and closed. A row with children has image 0, others have image 2.
  void Fill(const std::string& text);
  HTREEITEM Item(const std::string& name) const;
  std::string NameOf(HTREEITEM item) const { return item == 0 ? "-" : tree.GetItemText(item, 0); }
  // The rows that aren't under a closed one: two blanks a level, "-", "+" or ".", the name, and "<" when
  // selected.
  std::string Rows() const;
  // What is drawn between the two rows of pixels, a line each operation.
  std::string Painted(int top, int bottom);

  void Press(POINT at, UINT message = WM_LBUTTONDOWN) {
    gui::Input({tree.GetHandle(), message, 0, PointParam(at)});
  }
  POINT At(const std::string& name, UINT part) const { return tree.GetPartPoint(Item(name), part); }
  // The middle of a cell.
  POINT Cell(const std::string& name, int column) const;
  void FocusTree() { SetFocus(tree.GetHandle()); }
  // What the owner does at a notification, with its `record`, and answers.
  void Answer(
      UINT code, LRESULT result, std::function<void()> act = [] {}) {
    answers[code] = {result, std::move(act)};
  }

  void Note(std::string line) { story.push_back(std::move(line)); }
  void NoteMessage(const std::string& name, UINT message);
  // What happened since the last call, joined by ", ".
  std::string Story();

  std::vector<std::string> story;
  std::map<UINT, std::pair<LRESULT, std::function<void()>>> answers;
  NMHDR* record = nullptr;
  std::map<std::string, HTREEITEM> items;  // by name
  CImageList images;
  HeadlessDisplay display;
  Owner owner{*this};
  Tree tree{"", *this};
};

}  // namespace platform
