// The tree grid on a screen: what it looks like, and what a real mouse and real keys do to it.

#include <QtCore/qtemporarydir.h>
#include <QtGui/qfontinfo.h>
#include <QtGui/qimage.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qscrollbar.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "platform/gui/list_edit.h"
#include "platform/gui/tree_ctrl.h"
#include "platform/qt/picture.h"
#include "tests/platform/qt/qt_user.h"

namespace platform {
namespace {

class Grid : public SECTreeCtrl {
 public:
  HTREEITEM red = 0;
  COLORREF GetRowTextColour(HTREEITEM item, COLORREF normal) const override {
    return item == red ? 0x0000FF : normal;
  }
};

// Notes what it is told, and lets cells be edited.
class Owner : public CWnd {
 public:
  LRESULT WindowProc(const MSG& msg) override {
    if (msg.message == WM_CONTEXTMENU) story += "menu;";
    if (msg.message != WM_NOTIFY) return CWnd::WindowProc(msg);
    const UINT code = reinterpret_cast<const NMHDR*>(msg.lParam)->code;
    if (code == NM_CLICK) story += "click;";
    if (code == NM_DBLCLK) story += "double click;";
    if (code == TVN_BEGINDRAG) story += "drag;";
    return code == LVN_ENDLABELEDIT || code == NM_DBLCLK;
  }
  std::string story;
};

class QtGrid : public testing::Test {
 protected:
  QtGrid() {
    SetDisplay(&display);
    const std::vector<std::uint32_t> pixels(48 * 16, 0xFF5080D0);
    images.Create(16, 16, 3, pixels, 0xFFFFFF);
    owner.Create({.style = WS_POPUP | WS_VISIBLE, .rect = {0, 0, 560, 320}, .text = "Registers"});
    grid.SetGridStyle(SECTreeCtrl::kFullRow);
    grid.SetTreeStyle(SECTreeCtrl::kHasButtons | SECTreeCtrl::kHasLines | SECTreeCtrl::kLinesAtRoot);
    grid.SetRowFont({0, 0, 90, "Courier New"});
    grid.SetImageList(&images);
    grid.Create(
        {.ex_style = WS_EX_CLIENTEDGE, .rect = {0, 0, 560, 320}, .parent = owner.GetHandle(), .id = 5});
    grid.SetHeaderShown(true);
    grid.SetColumnWidth(0, 200);
    grid.InsertColumn(1, "Address", TextAlign::Left, 110);
    grid.InsertColumn(2, "Value", TextAlign::Right, 90);
    port = Row(kTreeRoot, "PORT", "");
    data = Row(port, "PDATA", "1F");
    Row(data, "P7 to P4: direction of the upper lines", "1");
    grid.red = Row(port, "PDIR", "80");
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

  HTREEITEM Row(HTREEITEM above, const char* name, const char* value) {
    const HTREEITEM row = grid.InsertItem(name, 1, above);
    grid.SetItemText(row, 2, value);
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
      const int distance = std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                           std::abs(pixel.blue() - colour.blue());
      if (distance < 60) return true;
    }
  }
  return false;
}

TEST_F(QtGrid, LooksLikeATableWithBoxesAndARedRow) {
  grid.SelectItem(data);
  SetFocus(grid.GetHandle());
  user::Settle();
  const QTemporaryDir scratch;
  const std::string path = scratch.filePath("grid.png").toStdString();
  ASSERT_TRUE(SavePicture(grid, path));
  EXPECT_FALSE(SavePicture(grid, "/nonexistent/grid.png"));
  const QImage image(QString::fromStdString(path));

  // The picture has the frame around the client area.
  const auto shows = [&](const RECT& r, const QColor& colour) {
    return Shows(image, {r.left + 1, r.top + 1, r.right, r.bottom}, colour);
  };
  const RECT red = grid.GetCellRect(grid.red, 2);
  EXPECT_TRUE(shows(red, Qt::red));
  EXPECT_FALSE(shows(red, Qt::black));
  EXPECT_TRUE(shows(grid.GetCellRect(data, 1), QApplication::palette().color(QPalette::Highlight)));
  EXPECT_TRUE(shows(grid.GetCellRect(port, 0), QColor(0x50, 0x80, 0xD0))) << "the row's image";
}

TEST_F(QtGrid, ACellIsEditedAfterTheDoubleClickTimeInAFieldOfItsFont) {
  user::Click(grid, Cell(data, 2));
  EXPECT_FALSE(grid.IsEditing());
  user::Wait(120);
  ASSERT_TRUE(grid.IsEditing());
  auto* line = qobject_cast<QLineEdit*>(QtDisplay::WidgetOf(*grid.GetListEdit()));
  ASSERT_EQ(QApplication::focusWidget(), line);
  EXPECT_EQ(line->fontInfo().family(), "Liberation Mono");
  user::Type("2A");
  user::Key(VK_RETURN);
  EXPECT_EQ(grid.GetItemText(data, 2), "2A");
  EXPECT_EQ(QApplication::focusWidget(), QtDisplay::WidgetOf(grid));
}

TEST_F(QtGrid, EachHandOfTheUserReachesTheOwnerOrTheRows) {
  user::DoubleClick(grid, Cell(data, 2));
  user::Wait(120);
  user::Click(grid, Cell(data, 0), true);
  user::Drag(grid, Cell(grid.red, 0), Cell(port, 0));
  EXPECT_EQ(owner.story, "click;double click;menu;click;drag;");

  grid.SelectItem(data);
  user::Type("-");
  EXPECT_FALSE(grid.IsExpanded(data));
  user::Type("+pd");
  EXPECT_TRUE(grid.IsExpanded(data));
  EXPECT_EQ(grid.GetSelectedItem(), grid.red) << "the letters go to the next that begins with them";
  user::Key(VK_TAB);
  EXPECT_EQ(GetFocus(), grid.GetHandle()) << "outside of a dialog Tab leads nowhere";
}

TEST_F(QtGrid, ScrollBarsComeAndGoWithTheRowsAndTheColumns) {
  const auto bars = [&] {
    return std::pair(Bar(Qt::Horizontal)->isVisible(), Bar(Qt::Vertical)->isVisible());
  };
  const int width = grid.GetClientRect().Width();
  for (int i = 0; i < 200; ++i) grid.InsertItem("R", 1);
  user::Settle();
  ASSERT_EQ(bars(), std::pair(false, true));
  EXPECT_LT(grid.GetClientRect().Width(), width) << "the client area ends at the bar";
  Bar(Qt::Vertical)->setValue(7);
  user::Wheel(grid, {50, 50}, -3);
  EXPECT_EQ(grid.GetScrollPos(true), 10);
  grid.SetColumnWidth(1, 600);
  user::Settle();
  ASSERT_EQ(bars(), std::pair(true, true));
  EXPECT_EQ(Bar(Qt::Vertical)->value(), 10);
  grid.DeleteAllItems();
  grid.SetColumnWidth(1, 60);
  user::Settle();
  EXPECT_EQ(bars(), std::pair(false, false));
  EXPECT_EQ(grid.GetClientRect().Width(), width);
}

}  // namespace
}  // namespace platform
