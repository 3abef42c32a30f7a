// The component's dialogs with a real keyboard and mouse: where the focus goes, what Enter, Escape and Alt
// with a letter do, and what becomes of a wrong entry.

#include <QtGui/qevent.h>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtWidgets/qapplication.h>
#include <QtWidgets/qfiledialog.h>
#include <QtWidgets/qlineedit.h>
#include <QtWidgets/qmenu.h>
#include <QtWidgets/qpushbutton.h>

#include "platform/gui/controls.h"
#include "tests/ioview_desktop/desktop_stage.h"
#include "tests/support/definition_generator.h"

namespace ioview::test {
namespace {

using platform::CWnd;
using platform::UINT;

UINT FocusId() {
  const CWnd* const focus = CWnd::FromHandle(platform::GetFocus());
  if (focus == nullptr) return 0;
  EXPECT_EQ(QApplication::focusWidget(), platform::QtDisplay::WidgetOf(*focus)) << focus->GetId();
  return focus->GetId();
}

CWnd& Control(UINT id) {
  return *CWnd::FromHandle(platform::GetFocus())->GetTopLevelParent()->GetDlgItem(id);
}

QWidget* WidgetOf(UINT id) {
  return platform::QtDisplay::WidgetOf(Control(id));
}

class Dialogs : public DesktopStage {
 protected:
  Dialogs() {
    Start();
    OpenRow("PORT");
    ClickRow("PORT/PDATA");
  }
  using Open = std::function<void(Dialogs&)>;
  static void OpenEditMemory(Dialogs& it) { it.Key(Qt::Key_Return); }
  static void OpenSetIOFile(Dialogs& it) { it.Menu("Register|Load IO File..."); }
  static void OpenSelectRegister(Dialogs& it) { it.Menu("Register|Select IO Register..."); }
  static void OpenFind(Dialogs& it) { it.Key(Qt::Key_F, Qt::ControlModifier); }
  static void OpenChooseRegisters(Dialogs& it) { it.Menu("Test|Choose Registers..."); }

  void InDialogOf(const Open& open, const std::function<void(QWidget&)>& act) {
    InNextDialog(act);
    open(*this);
    EXPECT_TRUE(Answered()) << "it didn't open";
    EXPECT_TRUE(Until([] { return QApplication::activeModalWidget() == nullptr; }));
    Settle();
  }
};

TEST_F(Dialogs, TabAltAndALetterEnterAndEscapeWorkInEach) {
  struct Row {
    Open open;
    const char* title;
    std::vector<UINT> stops;  // of Tab, from where the focus is at first
    std::vector<std::pair<char, UINT>> letters;
    UINT enter;   // the default button
    char cancel;  // its letter; 0 for none
  };
  for (const Row& row : {
           Row{OpenEditMemory, "Edit PDATA at H'00FF0041", {312, 1, 2}, {{'C', 312}, {'N', 312}}, 1, 0},
           Row{OpenSetIOFile,
               "Set I/O File",
               {9001, 20001, 9002, 9003, 9004, 13001},
               {{'I', 9001}, {'S', 13001}},
               9003,
               'C'},
           Row{OpenSelectRegister,
               "Select IO Register",
               {13006, 13007, 13008, 13016, 13017},
               {{'A', 13016}, {'U', 13017}, {'R', 13006}},
               13007,
               'C'},
           Row{OpenFind,
               "Find",
               {13014, 13015, 13018, 13019, 13013},
               {{'M', 13015}, {'I', 13014}},
               13018,
               'C'},
           Row{OpenChooseRegisters,
               "Edit Test IO registers",
               {13002, 13004, 13003, 1, 2},
               {{'C', 13002}, {'S', 13004}, {'I', 13003}},
               1,
               0},
       }) {
    SCOPED_TRACE(row.title);
    const auto look = [&](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle().toStdString(), row.title);
      EXPECT_NE(dialog.parentWidget(), nullptr) << "it lies over the window";
      for (const UINT stop : row.stops) {
        EXPECT_EQ(FocusId(), stop);
        Key(Qt::Key_Tab);
      }
      EXPECT_EQ(FocusId(), row.stops.front()) << "and round";
      Key(Qt::Key_Backtab, Qt::ShiftModifier);
      EXPECT_EQ(FocusId(), row.stops.back());
      for (const auto& [letter, id] : row.letters) {
        Key(static_cast<Qt::Key>(letter), Qt::AltModifier);
        EXPECT_EQ(FocusId(), id) << letter;
      }
      for (const auto* button : dialog.findChildren<QPushButton*>()) {
        EXPECT_EQ(button->isDefault(), button == WidgetOf(row.enter)) << button->text().toStdString();
      }
      Key(Qt::Key_F1);
      QHelpEvent question(QEvent::WhatsThis, {}, {});
      QCoreApplication::sendEvent(QApplication::focusWidget(), &question);
      EXPECT_EQ(QApplication::activeModalWidget(), &dialog) << "there is no help, and nothing breaks";
      EXPECT_TRUE(dialog.isVisible());
    };
    InDialogOf(row.open, [&](QWidget& dialog) { look(dialog), Key(Qt::Key_Escape); });
    EXPECT_EQ(QApplication::focusWidget(), platform::QtDisplay::WidgetOf(Grid())) << "the focus comes back";
    InDialogOf(row.open, [&](QWidget& dialog) {
      if (row.cancel != 0) {
        Key(static_cast<Qt::Key>(row.cancel), Qt::AltModifier);
      } else {
        dialog.close();  // by the window's own button
      }
    });
  }
}

TEST_F(Dialogs, AWrongEntryIsToldOfAndTheFocusIsOnItAgain) {
  struct Row {
    Open open;
    const char* typed;  // over what the field holds
    std::string box;
    UINT field;
  };
  const std::string missing = workspace.Path("none.io");
  for (const Row& row : {
           Row{OpenEditMemory, "12x", "Invalid number.", 312},
           Row{OpenEditMemory, "100", "The entered value is too big.\nMust be less than or equal to FF.",
               312},
           Row{OpenSetIOFile, "", "This entry is empty, please supply entry.", 9001},
           Row{OpenSetIOFile, missing.c_str(),
               "File \"" + missing + "\" does not exist.\nPlease enter an existing file.", 9001},
           Row{OpenFind, "", "Please Enter Register Name or Address.", 13014},
       }) {
    SCOPED_TRACE(row.box);
    InDialogOf(row.open, [&](QWidget& dialog) {
      if (*row.typed == '\0') {
        Key(Qt::Key_Delete);
      } else {
        Type(row.typed);
      }
      std::string box;
      TakeBox(box);
      // By the button, so that the focus has to come back.
      for (const UINT id : {UINT{1}, UINT{9003}, UINT{13018}}) {
        const CWnd* const button = Control(row.field).GetParent()->GetDlgItem(id);
        if (button == nullptr) continue;
        QTest::mouseClick(platform::QtDisplay::WidgetOf(*button), Qt::LeftButton);
        break;
      }
      Settle();
      EXPECT_EQ(box, row.box);
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(FocusId(), row.field);
      Key(Qt::Key_Escape);
    });
  }
}

TEST_F(Dialogs, APathIsTypedBrowsedForAndPutTogetherOfPlaceholders) {
  InDialogOf(OpenSetIOFile, [this](QWidget& dialog) {
    Key(Qt::Key_Delete);
    Type("a*b|c");
    EXPECT_EQ(Control(9001).GetText(), "abc") << "what no path holds isn't taken";
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_Delete);

    InNextPopup([](QMenu& menu) {
      ASSERT_FALSE(menu.isEmpty());
      EXPECT_TRUE(Pick(menu, Bare(menu.actions().front()->text())));
    });
    QTest::mouseClick(WidgetOf(20001), Qt::LeftButton);
    EXPECT_TRUE(Until([] { return QApplication::activePopupWidget() == nullptr; }));
    EXPECT_EQ(Control(9001).GetText(), "$(CONFIGDIR)");

    InNextDialog([this](QWidget& files) {
      EXPECT_NE(dynamic_cast<QFileDialog*>(&files), nullptr);
      NameFile(files, "lumen2.io");
    });
    QTest::mouseClick(WidgetOf(9002), Qt::LeftButton);
    EXPECT_TRUE(Until([&] { return QApplication::activeModalWidget() == &dialog; }));
    EXPECT_EQ(Control(9001).GetText(), workspace.Path("lumen2.io"));
    EXPECT_TRUE(dynamic_cast<platform::CCheckBox&>(Control(13001)).GetCheck());
    QTest::mouseClick(WidgetOf(9003), Qt::LeftButton);
  });
  OpenRow("CLOCK");
  EXPECT_NE(Row("CLOCK/DEVICEID"), 0u);
}

TEST_F(Dialogs, RegistersAreCheckedByMouseAndBySpace) {
  InDialogOf(OpenSelectRegister, [](QWidget&) {
    auto& tree = dynamic_cast<platform::SECTreeCtrl&>(Control(13006));
    const platform::HTREEITEM clock = tree.GetRootItem();
    const platform::POINT box = tree.GetPartPoint(clock, platform::TVHT_ONITEMCHECK);
    QTest::mouseClick(WidgetOf(13006), Qt::LeftButton, {}, QPoint(box.x, box.y));
    EXPECT_TRUE(tree.GetItemCheck(clock));
    EXPECT_TRUE(tree.GetItemCheck(tree.GetChildItem(clock))) << "what is below follows";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(tree.GetItemCheck(tree.GetNextSiblingItem(clock)));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  const platform::SECTreeCtrl& selected = Grid(PaneIndex::kSelected);
  EXPECT_EQ(selected.GetItemText(selected.GetRootItem(), 0), "CLOCK");
  EXPECT_EQ(selected.GetNextSiblingItem(selected.GetRootItem()), 0u);
}

TEST_F(Dialogs, TheOpeningOfManyRowsIsCancelledByTheMouse) {
  workspace.Write("many.io",
                  pvw::test::GenerateDefinition({.version = 3, .registers = 4000, .registersPerModule = 40}));
  ASSERT_TRUE(Component().LoadIOFile(workspace.Path("many.io"), 0xFF0000));
  Settle();
  InDialogOf(OpenSelectRegister, [this](QWidget&) {
    Key(Qt::Key_A, Qt::AltModifier);
    InNextDialog([](QWidget& progress) {
      EXPECT_EQ(progress.windowTitle(), "Loading...");
      EXPECT_EQ(FocusId(), 13025u);
      QTest::mouseClick(WidgetOf(13025), Qt::LeftButton);
    });
    Key(Qt::Key_O, Qt::AltModifier);
  });
  const platform::SECTreeCtrl& selected = Grid(PaneIndex::kSelected);
  EXPECT_EQ(selected.GetItemText(selected.GetRootItem(), 0), "MODULE1");
  const std::size_t rows = selected.GetRowCount();
  EXPECT_LT(rows, std::size_t{4000}) << "the rest stays closed";
  Settle();
  EXPECT_EQ(selected.GetRowCount(), rows) << "nothing opens behind the user's back";
}

}  // namespace
}  // namespace ioview::test
