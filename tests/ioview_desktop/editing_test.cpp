// A value is edited with the hands of a user: in its cell, and in the dialog.

#include <QtTest/qtestsystem.h>

#include "platform/gui/list_edit.h"
#include "tests/ioview_desktop/desktop_stage.h"

namespace ioview::test {
namespace {

constexpr int kValue = 2;
constexpr std::uint32_t kData = 0xFF0041;  // holds CD

class Editing : public DesktopStage {
 protected:
  Editing() {
    Start();
    OpenRow("PORT");
    ClickRow("CLOCK");
  }
  bool IsEditing() { return Grid().IsEditing(); }
};

TEST_F(Editing, ACellIsEditedOnceTheTimeForADoubleClickIsOverAndEndsAsTheUserLeavesIt) {
  struct Row {
    const char* name;
    const char* typed;
    std::function<void()> leave;
    const char* box;  // empty: none
    int byte;
    const char* shown;
  };
  const auto enter = [this] { Key(Qt::Key_Return); };
  const auto escape = [this] { Key(Qt::Key_Escape); };
  const auto click_away = [this] { ClickRow("CLOCK"); };
  for (const Row& row : {
           Row{"Enter writes", "5A", enter, "", 0x5A, "5A"},
           Row{"a click on another row writes", "5b", click_away, "", 0x5B, "5B"},
           Row{"Escape keeps the old value", "5C", escape, "", 0xCD, "CD"},
           Row{"a bad text is told of once when the user clicks away", "zz", click_away, "Invalid Hex Value",
               0xCD, "CD"},
           Row{"Enter takes what the host takes", "H'5D", enter, "", 0x5D, "5D"},
       }) {
    SCOPED_TRACE(row.name);
    Poke(kData, 0xCD);
    ASSERT_TRUE(Menu("Register|Refresh"));
    ClickRow("CLOCK");
    ClickRow("PORT/PDATA", Qt::LeftButton, kValue);
    EXPECT_FALSE(IsEditing());
    ASSERT_TRUE(Until([this] { return IsEditing(); }));
    EXPECT_EQ(QApplication::focusWidget(), platform::QtDisplay::WidgetOf(*Grid().GetListEdit()));

    std::string box;
    if (*row.box != '\0') TakeBox(box);
    Type(row.typed);
    Key(Qt::Key_F, Qt::ControlModifier);
    Key(Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(IsEditing() && QApplication::activeModalWidget() == nullptr) << "no keys of the host's";
    row.leave();
    EXPECT_TRUE(Answered());
    Settle();
    EXPECT_EQ(box, row.box);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "one message";
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Byte(kData), row.byte);
    EXPECT_EQ(Value("PORT/PDATA"), row.shown);
    EXPECT_EQ(QApplication::focusWidget(), platform::QtDisplay::WidgetOf(Grid()));
  }
}

TEST_F(Editing, TheDialogOpensByDoubleClickAndEnter) {
  for (const bool by_mouse : {true, false}) {
    SCOPED_TRACE(by_mouse ? "double click" : "Enter");
    Poke(kData, 0xCD);
    ASSERT_TRUE(Menu("Register|Refresh"));
    InNextDialog([this](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle().toStdString(), "Edit PDATA at H'00FF0041");
      Type("3C");
      Key(Qt::Key_Return);
    });
    if (by_mouse) {
      DoubleClickCell("PORT/PDATA", kValue);
    } else {
      ClickRow("PORT/PDATA");
      Key(Qt::Key_Return);
    }
    EXPECT_TRUE(Answered());
    EXPECT_EQ(Byte(kData), 0x3C);
    EXPECT_EQ(Value("PORT/PDATA"), "3C");
    QTest::qWait(3 * QApplication::doubleClickInterval());
    EXPECT_FALSE(IsEditing()) << "the first click of the two opens no edit any more";
  }
}

TEST_F(Editing, TheHeadersMenuHidesColumnsAndShowsThem) {
  const auto pick = [this](const char* column, bool checked) {
    InNextPopup([column, checked](QMenu& menu) {
      EXPECT_EQ(Entries(menu), QStringList({"Address", "Value", "Access"}));
      for (const QAction* action : menu.actions()) {
        EXPECT_EQ(action->isChecked(), checked || Bare(action->text()) != column);
      }
      EXPECT_TRUE(Pick(menu, column));
    });
    QTest::mouseClick(platform::QtDisplay::WidgetOf(Grid()), Qt::RightButton, {},
                      QPoint(20, Grid().GetHeaderHeight() / 2));
    Settle();
    EXPECT_TRUE(Answered());
  };
  const int width = Grid().GetColumnWidth(1);
  pick("Address", true);
  EXPECT_EQ(Grid().GetColumnWidth(1), 0);
  pick("Address", false);
  EXPECT_EQ(Grid().GetColumnWidth(1), width);
}

}  // namespace
}  // namespace ioview::test
