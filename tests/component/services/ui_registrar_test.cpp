#include "component/services/ui_registrar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/services/module_state.h"
#include "host/ids.h"
#include "tests/component/services/menu_world.h"
#include "tests/support/fake_ui_services.h"

namespace pvw {
namespace {

using platform::E_FAIL;
using platform::HWND;
using platform::S_OK;
using platform::Status;
using test::FakeHost;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kOwner = 3;
constexpr HWND kPane = 0x100000001;
constexpr HWND kParent = 0x200000002;

class UiRegistrarTest : public testing::Test {
 protected:
  UiRegistrarTest() {
    host.Ui().NameWindow(kPane, "pane");
    host.Ui().NameWindow(kParent, "parent");
    host.ClearTranscript();
  }

  const platform::ResourceRegistration resources{test::kMenuWorld, platform::ResourceRole::kLibrary};
  const platform::HMODULE module = ComponentModule();
  FakeHost host;
  CUiRegistrar registrar{&host};

  // Adds one of each kind, and gives the host's answers by the names of its operations.
  std::vector<std::pair<std::string, Status>> AddEach() {
    return {
        {"AddMenu", registrar.AddMenu(module, test::kMenu, kOwner, CLSID_PvwIO)},
        {"AddPopupMenu", registrar.AddPopupMenu(kPane, module, test::kDeepMenu, kOwner, CLSID_PvwIO)},
        {"AddToolbar", registrar.AddToolbar("{TB}", "Cpu", module, test::kToolbar, 0, kOwner, CLSID_PvwIO)},
        {"AddAccelerators", registrar.AddAccelerators(module, test::kKeys, kOwner, CLSID_PaneAccelerators)},
        {"AddCommandSink", registrar.AddCommandSink(kOwner, CLSID_PvwIO, kPane)},
        {"AddCommandStrings", registrar.AddCommandStrings(module, kOwner, CLSID_PvwIO)},
        {"AddPage", registrar.AddPage(kParent, kPane, -1, "All Register", kOwner, CLSID_PvwIO)},
        {"AddPage", registrar.SetAcceleratorWindow(kPane, kOwner, CLSID_PaneAccelerators)}};
  }
};

TEST_F(UiRegistrarTest, TellsTheHostEachThingWithItsCommandsAndTakesItBackInTheOrderOfItsTables) {
  EXPECT_THAT(AddEach(), Each(testing::Pair(testing::_, S_OK)));
  EXPECT_THAT(host.Transcript(), ElementsAre("AddMenu 10 owner 3 PvwIO [28672 61439 28672] - - \"\" \"\" 1",
                                             "AddPopupMenu pane 12 owner 3 PvwIO [30001 30002 30003 30004]",
                                             "AddToolbar {TB} \"Cpu\" 20 0 owner 3 PvwIO [32817 5 32826]",
                                             "AddAccelerators 30 owner 3 PaneAccelerators [39507 5] - -",
                                             "AddCommandSink pane owner 3 PvwIO",
                                             "AddCommandStrings of the module owner 3 PvwIO",
                                             "AddPage parent pane -1 \"All Register\" 0 0 owner 3 PvwIO",
                                             "AddPage none pane 0 \"\" 0 0 owner 3 PaneAccelerators"));

  host.ClearTranscript();
  registrar.ReleaseOwner(kOwner);
  EXPECT_THAT(
      host.Transcript(),
      ElementsAre("RemovePage parent pane owner 3 PvwIO", "GetPageCount parent", "RemoveParentWindow parent",
                  "RemovePage none pane owner 3 PaneAccelerators", "RemovePopupMenu pane 12 owner 3 PvwIO",
                  "RemoveMenu 10 owner 3 PvwIO", "RemoveAccelerators 30 owner 3 PaneAccelerators",
                  "RemoveToolbar {TB} owner 3 PvwIO", "RemoveCommandStrings of the module owner 3 PvwIO",
                  "RemoveCommandSink pane owner 3 PvwIO"));
}

TEST_F(UiRegistrarTest, KeepsWhatTheHostAnswersWithZeroAndNothingElse) {
  for (const Status status : {E_FAIL, 1}) {
    for (const auto& [operation, done] : AddEach()) host.FailAll(operation, status);
    registrar.ReleaseOwner(kOwner);
    EXPECT_THAT(AddEach(), Each(testing::Pair(testing::_, status)));
    host.ClearTranscript();
    registrar.ReleaseOwner(kOwner);
    EXPECT_THAT(host.Transcript(), IsEmpty());
    host.FailNone();
  }
}

TEST_F(UiRegistrarTest, KeepsEqualThingsApartAndUndoesThemAsTheyCame) {
  for (const std::uint32_t menu : {test::kDeepMenu, test::kMenu, test::kDeepMenu}) {
    registrar.AddMenu(module, menu, kOwner, CLSID_PvwIO);
  }
  registrar.AddMenu(module, test::kMenu, 4, CLSID_PvwIO);
  host.ClearTranscript();
  registrar.ReleaseOwner(kOwner);
  EXPECT_THAT(host.Transcript(), ElementsAre("RemoveMenu 12 owner 3 PvwIO", "RemoveMenu 10 owner 3 PvwIO",
                                             "RemoveMenu 12 owner 3 PvwIO"));
  EXPECT_THAT(host.Ui().Live(), ElementsAre("menu 10 owner 4")) << "another owner's stays";

  host.ClearTranscript();
  registrar.ReleaseOwner(kOwner + (HWND{1} << 32));
  EXPECT_THAT(host.Transcript(), IsEmpty()) << "a window is another owner than the id in its lower half";
}

TEST_F(UiRegistrarTest, TheParentGoesWithItsLastPage) {
  registrar.AddPage(kParent, kPane, -1, "All", 3, CLSID_PvwIO);
  registrar.AddPage(kParent, kPane + 1, -1, "Selected", 5, CLSID_PvwIO);

  registrar.ReleaseOwner(3);
  EXPECT_THAT(host.Asked("RemoveParentWindow"), IsEmpty()) << "one page is left";
  host.FailNext("GetPageCount");
  registrar.AddPage(kParent, kPane, -1, "All", 3, CLSID_PvwIO);
  registrar.ReleaseOwner(3);
  EXPECT_THAT(host.Asked("RemoveParentWindow"), IsEmpty()) << "the host can't count";
  registrar.ReleaseOwner(5);
  EXPECT_THAT(host.Asked("RemoveParentWindow"), ElementsAre("RemoveParentWindow parent"));
}

TEST_F(UiRegistrarTest, AResourceThatIsntThereRegistersNothing) {
  EXPECT_EQ(registrar.AddMenu(module, 99, kOwner, CLSID_PvwIO), 1);
  EXPECT_EQ(registrar.AddToolbar("{TB}", "Cpu", module, 99, 0, kOwner, CLSID_PvwIO), E_FAIL);
  EXPECT_THAT(host.Transcript(), IsEmpty());
  const std::uint32_t own[] = {7};
  EXPECT_EQ(registrar.AddToolbar("{TB}", "Cpu", module, 99, 0, kOwner, CLSID_PvwIO, own), S_OK)
      << "a list of its own needs none";
  registrar.AddPaneToolbar(kParent, module, 204, 0, kOwner, CLSID_PvwIO, {{{}, {}, {}, {}, own}});
  EXPECT_EQ(host.Transcript().back(), "AddPaneToolbar parent 204 0 owner 3 PvwIO - - - - [7]");
}

TEST_F(UiRegistrarTest, FindsAWindowAndHandsATextToAndFro) {
  HWND window = kPane;
  std::string text = "in";
  EXPECT_EQ(registrar.FindDockableWindow("{ID}", "IO", nullptr, 0x10, 0xE81E, &window, &text), E_FAIL);
  EXPECT_EQ(window, 0u) << "there is none yet";
  EXPECT_EQ(registrar.FindDockableWindow("{ID}", "IO", nullptr, 0x1086, 0xE81E, &window, &text), S_OK);
  EXPECT_EQ(text, "text of {ID}");
  EXPECT_EQ(registrar.GetDockableWindow("{ID}", "IO", 0xE81C, &window, &text), E_FAIL) << "it is hidden";
  EXPECT_EQ(window, 0u);
  EXPECT_THAT(host.Transcript(),
              ElementsAre("FindDockableWindow {ID} \"IO\" no client flags 10 position E81E text \"in\"",
                          "FindDockableWindow {ID} \"IO\" no client flags 1086 position E81E text \"in\"",
                          "GetDockableWindow {ID} \"IO\" 0 position E81C text \"text of {ID}\""));
}

TEST(UiRegistrar, WithoutAHostGivesAFailureAndNoOwner) {
  std::uint32_t id = 9;
  EXPECT_EQ(CUiRegistrar(nullptr).AllocOwnerId(&id), E_FAIL);
  EXPECT_EQ(id, 0u);
}

}  // namespace
}  // namespace pvw
