// A pane's grid in its owner's window, on a display without a screen, before a host that keeps its state.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "frame/controls/tree_grid_ctrl.h"
#include "host/host_ptr.h"
#include "platform/headless/headless_display.h"
#include "tests/support/fake_host.h"

namespace pvw::test {

using platform::HTREEITEM;

class TreeGridStage : public testing::Test {
 protected:
  // Answers the opening and closing of rows.
  class Owner : public platform::CWnd {
   public:
    explicit Owner(TreeGridStage& stage) : m_stage(stage) {}
    platform::LRESULT WindowProc(const platform::MSG& msg) override {
      if (msg.message != platform::WM_NOTIFY) return CWnd::WindowProc(msg);
      auto& header = *reinterpret_cast<platform::NMHDR*>(msg.lParam);
      if (header.code == platform::LVN_ENDLABELEDIT) ++m_stage.edits_ended;
      if (header.code != platform::TVN_ITEMEXPANDING || !m_stage.opens) return 0;
      return m_stage.opens(reinterpret_cast<platform::NMTREEVIEW&>(header).item) ? 0 : 1;
    }

   private:
    TreeGridStage& m_stage;
  };

  // Columns Name 200, Address 100, Value 100, Access 100 and room for four rows.
  TreeGridStage()
      : display(
            platform::HeadlessDisplay::Unanswered::Cancel,
            [this](const std::string& line) { shown += line + '\n'; },
            [](const std::string& text) { ADD_FAILURE() << text; }) {
    platform::SetDisplay(&display);
    owner.Create({platform::WS_POPUP | platform::WS_VISIBLE, 0, {0, 0, 400, 90}, 0, 0, "owner", 0});
    tree.Create(
        {platform::WS_CHILD | platform::WS_VISIBLE, 0, {0, 0, 400, 90}, owner.GetHandle(), 200, {}, 0});
    tree.SetTreeStyle(platform::SECTreeCtrl::kHasButtons | platform::SECTreeCtrl::kHeaderMenu);
    tree.SetHeaderShown(true);
    tree.SetColumnTitle(0, "Name");
    tree.SetColumnWidth(0, 200);
    int column = 0;
    for (const char* title : {"Address", "Value", "Access"})
      tree.InsertColumn(++column, title, platform::TextAlign::Left, 100);
    host.ClearTranscript();
  }
  ~TreeGridStage() override {
    owner.DestroyWindow();
    platform::SetDisplay(nullptr);
  }

  static void SetWidths(CTreeGridCtrl& grid, const std::vector<int>& widths) {
    for (int i = 0; i < grid.GetColumnCount(); ++i)
      grid.SetColumnWidth(i, widths.at(static_cast<std::size_t>(i)));
  }
  std::vector<int> Widths() const {
    std::vector<int> widths;
    for (int i = 0; i < tree.GetColumnCount(); ++i) widths.push_back(tree.GetColumnWidth(i));
    return widths;
  }

  // Rows of a text: a line each, two blanks a level, cells between bars; "-" before the first opens the row.
  void Fill(const std::string& text) {
    std::istringstream lines(text);
    std::vector<HTREEITEM> above = {platform::kTreeRoot};
    std::vector<HTREEITEM> open;
    for (std::string line; std::getline(lines, line);) {
      const std::size_t level = line.find_first_not_of(' ') / 2;
      std::istringstream cells(line.substr(2 * level));
      std::string cell;
      std::getline(cells, cell, '|');
      const bool opens_it = cell.starts_with('-');
      if (opens_it) cell.erase(0, 1);
      above.resize(level + 1);
      const HTREEITEM item = tree.InsertItem(cell, -1, above.back());
      if (opens_it) open.push_back(item);
      items[cell] = item;
      above.push_back(item);
      for (int column = 1; std::getline(cells, cell, '|'); ++column) tree.SetItemText(item, column, cell);
    }
    for (const HTREEITEM item : open) tree.Expand(item, platform::TVE_EXPAND);
  }
  // The names of the rows that show, "-" before an open one.
  std::string Rows() const {
    std::string text;
    for (std::size_t row = 0; row < tree.GetRowCount(); ++row) {
      if (row > 0) text += ' ';
      if (tree.IsExpanded(tree.GetItemAtRow(row))) text += '-';
      text += tree.GetCellText(row, 0);
    }
    return text;
  }

  FakeHost host;
  IQSettings* settings = GetService<IQSettings>(&host, IID_IQSettings);
  platform::ScopedBstr no_name{""};
  CSessionStore store{GetService<IQDataManager>(&host, IID_IQDataManager),
                      no_name.Get(),
                      no_name.Get(),
                      no_name.Get(),
                      no_name.Get(),
                      ID_SessionStore};
  std::string shown;                     // what a user saw of modal things
  std::function<bool(HTREEITEM)> opens;  // empty: every row opens and closes
  int edits_ended = 0;
  std::map<std::string, HTREEITEM> items;  // by name
  platform::HeadlessDisplay display;
  Owner owner{*this};
  CTreeGridCtrl tree;
};

}  // namespace pvw::test
