// The tree grid on a screen: what it looks like, and what a real mouse and real keys do to it.

#include <QtCore/qtemporarydir.h>
#include <QtGui/qfontinfo.h>
#include <QtGui/qimage.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qscrollbar.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "platform/gui/list_edit.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/qt/convert.h"
#include "platform/qt/picture.h"
#include "tests/platform/qt/qt_user.h"

namespace platform {
namespace {

constexpr COLORREF kRed = 0x0000FF;

class Grid : public SECTreeCtrl {
 public:
  HTREEITEM red = 0;
  COLORREF GetRowTextColour(HTREEITEM item, COLORREF normal) const override {
    return item == red ? kRed : normal;
  }
};

// Notes what it is told, and lets cells be edited.
class Owner : public CWnd {
 public:
  LRESULT WindowProc(const MSG& msg) override {
    if (msg.message == WM_CONTEXTMENU) story.push_back("menu");
    if (msg.message != WM_NOTIFY) return CWnd::WindowProc(msg);
    const auto& header = *reinterpret_cast<const NMHDR*>(msg.lParam);
    switch (header.code) {
      case NM_CLICK:
        story.push_back(GetFocus() == header.hwndFrom ? "click" : "click before the focus");
        return 0;
      case NM_DBLCLK:
        story.push_back("double click");
        return 1;
      case TVN_BEGINDRAG:
        story.push_back("drag");
        return 0;
      case LVN_BEGINLABELEDIT:
        story.push_back("edit");
        return 0;
      case LVN_ENDLABELEDIT: {
        const LVITEM& item = reinterpret_cast<const NMLVDISPINFO&>(header).item;
        story.push_back((item.mask & LVIF_TEXT) != 0 ? "text " + item.pszText : "no text");
        return 1;
      }
      default:
        return 0;
    }
  }
  std::vector<std::string> story;
};

class QtGrid : public testing::Test {
 protected:
  QtGrid() {
    SetDisplay(&display);
    std::vector<std::uint32_t> pixels(48 * 16, 0xFFFFFFFF);
    for (std::size_t y = 2; y < 14; ++y) {
      for (std::size_t x = 2; x < 14; ++x) {
        pixels[y * 48 + x] = 0xFFE0B040;
        pixels[y * 48 + 16 + x] = 0xFF5080D0;
        pixels[y * 48 + 32 + x] = 0xFF60A860;
      }
    }
    images.Create(16, 16, 3, pixels, 0xFFFFFF);
    owner.Create({.style = WS_POPUP | WS_VISIBLE, .rect = {0, 0, 560, 320}, .text = "Registers"});
    grid.SetGridStyle(SECTreeCtrl::kFullRow);
    grid.SetTreeStyle(SECTreeCtrl::kHasButtons | SECTreeCtrl::kHasLines | SECTreeCtrl::kLinesAtRoot);
    grid.SetRowFont({0, 0, 90, "Courier New"});
    grid.SetImageList(&images);
    grid.Create(
        {.ex_style = WS_EX_CLIENTEDGE, .rect = {0, 0, 560, 320}, .parent = owner.GetHandle(), .id = 5});
    grid.SetHeaderShown(true);
    grid.SetColumnTitle(0, "Name");
    grid.SetColumnWidth(0, 200);
    grid.InsertColumn(1, "Address", TextAlign::Left, 110);
    grid.InsertColumn(2, "Value", TextAlign::Right, 90);
    grid.InsertColumn(3, "Access", TextAlign::Left, 90);
    port = Row(kTreeRoot, "PORT", 0, "H'00FF0000", "", "");
    data = Row(port, "PDATA", 1, "H'00FF0000", "1F", "RW");
    Row(data, "P7", 2, "Bit 7", "0", "RW");
    Row(data, "P6 to P4: direction of the upper lines", 2, "Bits 6-4", "1", "RW");
    Row(data, "P3 to P0", 2, "Bits 3-0", "F", "RW");
    grid.red = Row(port, "PDIR", 1, "H'00FF0001", "80", "W");
    Row(Row(kTreeRoot, "TIMER", 0, "H'00FF0100", "", ""), "TCNT", 1, "H'00FF0100", "03E8", "R");
    grid.Expand(port, TVE_EXPAND);
    grid.Expand(data, TVE_EXPAND);
    QtDisplay::WidgetOf(owner)->activateWindow();
    user::Settle();
  }
  ~QtGrid() override {
    owner.DestroyWindow();
    user::Settle();
    SetDisplay(nullptr);
  }

  HTREEITEM Row(HTREEITEM above, const char* name, int image, const char* address, const char* value,
                const char* access) {
    const HTREEITEM row = grid.InsertItem(name, image, above);
    grid.SetItemText(row, 1, address);
    grid.SetItemText(row, 2, value);
    grid.SetItemText(row, 3, access);
    return row;
  }
  POINT Cell(HTREEITEM item, int column) const {
    const RECT cell = grid.GetCellRect(item, column);
    return {cell.left + cell.Width() / 2, cell.top + cell.Height() / 2};
  }
  QScrollBar* Bar(Qt::Orientation way) const {
    for (QScrollBar* bar : QtDisplay::WidgetOf(grid)->parentWidget()->findChildren<QScrollBar*>()) {
      if (bar->orientation() == way) return bar;
    }
    return nullptr;
  }

  QtDisplay display;
  CImageList images;
  Owner owner;
  Grid grid;
  HTREEITEM port = 0;
  HTREEITEM data = 0;
};

// Whether a pixel of about this colour lies in the rectangle.
bool Shows(const QImage& image, const RECT& rect, const QColor& colour) {
  for (int y = rect.top; y < rect.bottom; ++y) {
    for (int x = rect.left; x < rect.right; ++x) {
      const QColor pixel = image.pixelColor(x, y);
      if (std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
              std::abs(pixel.blue() - colour.blue()) <
          60) {
        return true;
      }
    }
  }
  return false;
}

TEST_F(QtGrid, LooksLikeATableWithLinesBoxesAndARedRow) {
  ASSERT_EQ(QFontInfo(qt::FontOf({0, 0, 90, "Courier New"})).family(), "Liberation Mono");
  grid.SelectItem(data);
  SetFocus(grid.GetHandle());
  user::Settle();
  const QTemporaryDir scratch;
  const std::string path = scratch.filePath("grid.png").toStdString();
  ASSERT_TRUE(SavePicture(grid, path));
  EXPECT_FALSE(SavePicture(grid, "/nonexistent/grid.png"));
  const QImage image(QString::fromStdString(path));
  ASSERT_EQ(image.size(), QSize(560, 320));
  if (const char* kept = std::getenv("PVW_KEEP_PICTURES")) image.save(QString(kept) + "/grid.png");

  // The picture has the frame around the client area.
  const auto in_picture = [](RECT rect) {
    return RECT{rect.left + 1, rect.top + 1, rect.right, rect.bottom};
  };
  const RECT red = in_picture(grid.GetCellRect(grid.red, 2));
  EXPECT_TRUE(Shows(image, red, QColor(255, 0, 0)));
  EXPECT_FALSE(Shows(image, red, Qt::black));
  EXPECT_FALSE(Shows(image, in_picture(grid.GetCellRect(port, 2)), QColor(255, 0, 0)));
  EXPECT_TRUE(Shows(image, in_picture(grid.GetCellRect(data, 3)),
                    QApplication::palette().color(QPalette::Highlight)));
  const POINT box = grid.GetPartPoint(port, TVHT_ONITEMBUTTON);
  EXPECT_TRUE(Shows(image, in_picture({box.x - 3, box.y - 2, box.x + 3, box.y + 2}), Qt::black))
      << "the minus";
}

TEST_F(QtGrid, AWindowWithoutAWidgetIsDrawnTheSameWay) {
  struct Bare : QtDisplay {
    Peer* CreatePeer(CWnd&) override { return nullptr; }
  } bare;
  SetDisplay(nullptr);
  SetDisplay(&bare);
  CWnd frame;
  CEdit edit;
  Grid plain;
  frame.Create({.style = WS_POPUP | WS_VISIBLE, .rect = {0, 0, 300, 100}});
  plain.Create({.rect = {0, 0, 300, 60}, .parent = frame.GetHandle()});
  edit.Create({.rect = {0, 60, 300, 84}, .parent = frame.GetHandle(), .text = "1F"});
  plain.red = plain.InsertItem("PDIR", -1);
  const QTemporaryDir scratch;
  const QString path = scratch.filePath("frame.png");
  ASSERT_TRUE(SavePicture(frame, path.toStdString()));
  const QImage image(path);
  EXPECT_EQ(image.size(), QSize(300, 100));
  EXPECT_TRUE(Shows(image, {0, 0, 300, 60}, QColor(255, 0, 0)));
  EXPECT_TRUE(Shows(image, {0, 61, 300, 83}, Qt::black)) << "the edit's text";
  frame.DestroyWindow();
  SetDisplay(nullptr);
  SetDisplay(&display);
}

TEST_F(QtGrid, APressTellsTheOwnerBeforeItTakesTheFocusAndACellIsEditedAfterTheDoubleClickTime) {
  user::Click(grid, Cell(data, 2));
  EXPECT_THAT(owner.story, testing::ElementsAre("click before the focus"));
  EXPECT_FALSE(grid.IsEditing());
  user::Wait(120);
  ASSERT_TRUE(grid.IsEditing());
  auto* line = qobject_cast<QLineEdit*>(QtDisplay::WidgetOf(*grid.GetListEdit()));
  ASSERT_EQ(QApplication::focusWidget(), line);
  EXPECT_EQ(line->selectedText(), "1F");
  EXPECT_EQ(line->fontInfo().family(), "Liberation Mono");
  user::Type("2A");
  EXPECT_EQ(grid.GetListEdit()->GetText(), "2A");
  user::Key(VK_RETURN);
  EXPECT_EQ(grid.GetItemText(data, 2), "2A");
  EXPECT_EQ(QApplication::focusWidget(), QtDisplay::WidgetOf(grid));

  owner.story.clear();
  ASSERT_TRUE(grid.EditCell(data, 2));
  user::Type("3");
  user::Key(VK_ESCAPE);
  ASSERT_TRUE(grid.EditCell(data, 2));
  user::Type("B");
  user::Click(grid, Cell(grid.red, 0));
  EXPECT_THAT(owner.story,
              testing::ElementsAre("edit", "no text", "edit", "click before the focus", "text B"));
}

TEST_F(QtGrid, ADoubleClickEditsNothing) {
  user::DoubleClick(grid, Cell(data, 2));
  user::Wait(120);
  EXPECT_THAT(owner.story, testing::ElementsAre("click before the focus", "double click"));
  EXPECT_FALSE(grid.IsEditing());
}

TEST_F(QtGrid, KeysMoveOpenCloseAndFindRows) {
  grid.SelectItem(port);
  SetFocus(grid.GetHandle());
  user::Settle();
  const auto selected = [&] { return grid.GetItemText(grid.GetSelectedItem(), 0); };
  user::Key(VK_DOWN);
  EXPECT_EQ(selected(), "PDATA");
  user::Key(VK_SUBTRACT);
  EXPECT_FALSE(grid.IsExpanded(data));
  user::Key(VK_ADD);
  EXPECT_TRUE(grid.IsExpanded(data));
  user::Key(VK_END);
  EXPECT_EQ(selected(), "TIMER");
  user::Type("pd");
  EXPECT_EQ(selected(), "PDATA");
  user::Key(VK_TAB);
  EXPECT_EQ(GetFocus(), grid.GetHandle()) << "outside of a dialog Tab leads nowhere";
}

TEST_F(QtGrid, ScrollBarsComeAndGoWithTheRowsAndTheColumns) {
  EXPECT_FALSE(Bar(Qt::Vertical)->isVisible());
  const int width = grid.GetClientRect().Width();
  for (int i = 0; i < 200; ++i) grid.InsertItem("R" + std::to_string(i), 1);
  user::Settle();
  ASSERT_TRUE(Bar(Qt::Vertical)->isVisible());
  EXPECT_FALSE(Bar(Qt::Horizontal)->isVisible());
  EXPECT_LT(grid.GetClientRect().Width(), width) << "the client area ends at the bar";
  EXPECT_EQ(Bar(Qt::Vertical)->maximum(), grid.GetScrollMax(true));
  Bar(Qt::Vertical)->setValue(7);
  EXPECT_EQ(grid.GetScrollPos(true), 7);
  user::Wheel(grid, {50, 50}, -3);
  EXPECT_EQ(grid.GetScrollPos(true), 10);
  grid.SetColumnWidth(1, 600);
  user::Settle();
  ASSERT_TRUE(Bar(Qt::Horizontal)->isVisible());
  EXPECT_EQ(Bar(Qt::Vertical)->value(), 10);
  EXPECT_EQ(Bar(Qt::Horizontal)->maximum(), grid.GetScrollMax(false));
  grid.DeleteAllItems();
  grid.SetColumnWidth(1, 60);
  user::Settle();
  EXPECT_FALSE(Bar(Qt::Vertical)->isVisible());
  EXPECT_EQ(grid.GetClientRect().Width(), width);
}

TEST_F(QtGrid, TheRightButtonAsksForAMenuAndAPulledRowDrags) {
  user::Click(grid, Cell(data, 0), true);
  EXPECT_THAT(owner.story, testing::ElementsAre("menu"));
  owner.story.clear();
  user::Drag(grid, Cell(grid.red, 0), Cell(port, 0));
  EXPECT_THAT(owner.story, testing::ElementsAre(testing::StartsWith("click"), "drag"));
}

}  // namespace
}  // namespace platform
