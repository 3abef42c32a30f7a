// The component's dialogs with a real keyboard and mouse: where the focus goes, what Enter, Escape and Alt
// with a letter do, and what becomes of a wrong entry.

#include <QtGui/qevent.h>
#include <QtWidgets/qfiledialog.h>

#include "platform/gui/controls.h"
#include "tests/ioview_desktop/desktop_stage.h"

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
  const Row rows[] = {
      {OpenEditMemory, "Edit PDATA at H'00FF0041", {312, 1, 2}, {{'C', 312}, {'N', 312}}, 1, 0},
      {OpenSetIOFile,
       "Set I/O File",
       {9001, 20001, 9002, 9003, 9004, 13001},
       {{'I', 9001}, {'S', 13001}},
       9003,
       'C'},
      {OpenSelectRegister,
       "Select IO Register",
       {13006, 13007, 13008, 13016, 13017},
       {{'A', 13016}, {'U', 13017}, {'R', 13006}},
       13007,
       'C'},
      {OpenFind, "Find", {13014, 13015, 13018, 13019, 13013}, {{'M', 13015}, {'I', 13014}}, 13018, 'C'},
      {OpenChooseRegisters,
       "Edit Test IO registers",
       {13002, 13004, 13003, 1, 2},
       {{'C', 13002}, {'S', 13004}, {'I', 13003}},
       1,
       0},
  };
  for (const Row& row : rows) {
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
    UINT field, button;
  };
  for (const Row& row : {
           Row{OpenEditMemory, "100", "The entered value is too big.\nMust be less than or equal to FF.", 312,
               1},
           Row{OpenSetIOFile, "", "This entry is empty, please supply entry.", 9001, 9003},
           Row{OpenFind, "", "Please Enter Register Name or Address.", 13014, 13018},
       }) {
    SCOPED_TRACE(row.box);
    InDialogOf(row.open, [&](QWidget& dialog) {
      Key(Qt::Key_Delete);
      Type(row.typed);
      std::string box;
      TakeBox(box);
      // By the button, so that the focus has to come back.
      QTest::mouseClick(WidgetOf(row.button), Qt::LeftButton);
      Settle();
      EXPECT_EQ(box, row.box);
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(FocusId(), row.field);
      Key(Qt::Key_Escape);
    });
  }
}

TEST_F(Dialogs, APathIsBrowsedForAndPutTogetherOfPlaceholders) {
  InDialogOf(OpenSetIOFile, [this](QWidget& dialog) {
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
    QTest::mouseClick(WidgetOf(9004), Qt::LeftButton);
  });
}

}  // namespace
}  // namespace ioview::test
