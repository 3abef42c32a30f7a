// What a session keeps of the view, and what the user settings keep of its looks.

#include <gmock/gmock.h>

#include "tests/component/component_world.h"

namespace pvw {
namespace {

using platform::ScopedBstr;
using test::Instance;
using test::World;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kLockRefresh = 32826;

// The keys of the transcript's calls of that operation, as the view gives them.
std::vector<std::string> Keys(const World& world, const std::string& operation) {
  std::vector<std::string> keys;
  for (const std::string& line : world.host.Asked(operation + " " + World::kSession)) {
    keys.push_back(line.substr(operation.size() + 1 + World::kSession.size()));
  }
  return keys;
}

class SessionTest : public test::ConnectedTest {
 protected:
  void Command(std::uint32_t command, std::size_t pane = 0) {
    const auto pages = world.host.Ui().Pages(world.Dock()->window->GetHandle());
    platform::SendMessage(pages.at(pane).window, platform::WM_COMMAND, command);
  }
};

TEST_F(SessionTest, OfAViewThatWasNeverOpenHasNoPanes) {
  world.SaveSession();
  EXPECT_THAT(Keys(world, "SetSessionValue"),
              ElementsAre("IOCtrlViews = 0", "IOCtrlIOFile = ", "IOCtrlSaveFileDir = $(CONFIGDIR)",
                          "IOCtrlSaveFileName = "));
}

TEST_F(SessionTest, IsWrittenInItsOrder) {
  world.OpenView();
  world.Expand(0, 0);
  world.host.ClearTranscript();
  world.SaveSession();
  EXPECT_THAT(Keys(world, "SetSessionValue"),
              ElementsAre("IOCtrlViews = 1", "IOSelection IOWnd0 = ", "IOWnd0ColWidth0 = 200",
                          "IOWnd0ColWidth1 = 100", "IOWnd0ColWidth2 = 100", "IOWnd0ColWidth3 = 100",
                          "IOWnd0Exp0 = 1", "IOWnd0Exp1 = 0", "IOWnd0Exp2 = 0", "IOWnd0Exp3 = 0",
                          "IOWnd0ScrollHorz = 0", "IOWnd0ScrollVert = 0", "IOWnd1ColWidth0 = 200",
                          "IOWnd1ColWidth1 = 100", "IOWnd1ColWidth2 = 100", "IOWnd1ColWidth3 = 100",
                          "IOWnd1ScrollHorz = 0", "IOWnd1ScrollVert = 0",
                          "IOCtrlIOFile = ", "IOCtrlSaveFileDir = $(CONFIGDIR)", "IOCtrlSaveFileName = "))
      << "the path of the file isn't kept unless the user wants that";
}

TEST_F(SessionTest, IsReadInItsOrderAndReopensTheViewWithoutShowingIt) {
  world.Keep("IOCtrlViews", "1");
  world.Keep("IOWnd0ColWidth0", "150");
  world.Keep("IOWnd0Exp0", "1");
  world.Keep("IOSelection IOWnd0", "{TIMER?{TCNT?}}");
  world.host.ClearTranscript();
  world.LoadSession();

  EXPECT_THAT(world.host.Asked("Get"), Contains("GetConfigurationKey ws prj cfg"));
  std::vector<std::string> keys = Keys(world, "GetSessionValue");
  EXPECT_GT(keys.size(), 6u);
  keys.resize(6);
  EXPECT_THAT(keys, ElementsAre("IOCtrlIOFile", "IOCtrlSaveFileDir", "IOCtrlSaveFileName", "IOCtrlViews",
                                "IOSelection IOWnd0", "IOWnd0ColWidth0"));
  ASSERT_NE(world.Dock(), nullptr);
  EXPECT_FALSE(world.Dock()->shown) << "that is up to the host";
  EXPECT_EQ(world.Dock()->title, "IO");
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "PDATA 00", "PDIR 01", "TIMER"));
  EXPECT_THAT(world.Rows(1), ElementsAre("TIMER"));
  EXPECT_EQ(world.Grid(0)->GetColumnWidth(0), 150);
  EXPECT_EQ(world.Grid(1)->GetColumnWidth(0), 150) << "without a state of its own, the first pane's";
  EXPECT_FALSE(world.IsDirty());
  EXPECT_TRUE(world.CanOpenView());

  world.OpenView();
  EXPECT_TRUE(world.Dock()->shown);
  EXPECT_FALSE(world.CanOpenView());
  EXPECT_TRUE(world.IsDirty());
  EXPECT_EQ(world.host.Ui().Pages(world.Dock()->window->GetHandle()).size(), 2u) << "not built again";
  world.OpenView();
  EXPECT_EQ(world.host.Ui().Pages(world.Dock()->window->GetHandle()).size(), 2u) << "nor while it shows";
}

struct Views {
  const char* value;
  std::size_t panes;
};

TEST_F(SessionTest, AnyCountOfViewsIsSafe) {
  const Views kViews[] = {{"0", 0}, {"-1", 0}, {"", 0},           {"x", 0},    {"1", 2},
                          {"2", 2}, {"3", 2},  {"2147483647", 2}, {"1abc", 2}, {"999999999999", 2}};
  for (const Views& views : kViews) {
    World fresh;
    Instance other(file);
    other.Connect(fresh.host);
    fresh.Keep("IOCtrlViews", views.value);
    fresh.LoadSession();
    const std::size_t panes =
        fresh.Dock() == nullptr ? 0 : fresh.host.Ui().Pages(fresh.Dock()->window->GetHandle()).size();
    EXPECT_EQ(panes, views.panes) << views.value;
    fresh.SaveSession();
    EXPECT_EQ(fresh.Kept("IOCtrlViews"), views.panes == 0 ? "0" : "1") << views.value;
  }
}

struct StoredPath {
  const char* name;
  const char* stored;
  bool kept;
  const char* saved;
};

TEST_F(SessionTest, KeepsAFileThatExistsAndDropsOneThatDoesNot) {
  const StoredPath kPaths[] = {
      {"a file in placeholder form", "$(CONFIGDIR)\\other.io", true, "$(CONFIGDIR)\\other.io"},
      {"a file that is gone", "$(CONFIGDIR)\\gone.io", false, ""},
      {"a folder", "$(CONFIGDIR)", false, ""},
      {"no text", "", false, ""},
  };
  for (const StoredPath& path : kPaths) {
    World fresh;
    fresh.dir.Write("other.io", "[Modules]\nModule1=OTHER\n");
    Instance other(file);
    other.Connect(fresh.host);
    fresh.Keep("IOCtrlIOFile", path.stored);
    fresh.Keep("IOCtrlSaveFileDir", path.stored);
    fresh.LoadSession();
    fresh.OpenView();
    if (path.kept) {
      EXPECT_THAT(fresh.Rows(0), ElementsAre("OTHER")) << path.name;
    } else {
      EXPECT_THAT(fresh.Rows(0), ElementsAre("PORT", "TIMER")) << path.name << ": the device's own";
    }
    fresh.SaveSession();
    EXPECT_EQ(fresh.Kept("IOCtrlIOFile"), path.saved) << path.name;
  }
}

TEST_F(SessionTest, AMissingDeviceFileShowsNothingAndLeavesTheStateAlone) {
  world.host.device_path = "c:\\nowhere\\x.IO";
  world.Keep("IOCtrlViews", "1");
  world.Keep("IOWnd0ColWidth0", "150");
  world.LoadSession();
  EXPECT_THAT(world.Rows(0), IsEmpty());
  EXPECT_EQ(world.Grid(0)->GetColumnWidth(0), 200);
  EXPECT_THAT(user, IsEmpty());

  // Another component of the host knows the file.
  const ScopedBstr path(world.dir.Path("device"));
  EXPECT_EQ(world.Server()->LoadIOFile(path.Get(), 0), 0);
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "TIMER"));
}

TEST_F(SessionTest, ALockEndsWithTheSessionThatIsLoaded) {
  world.OpenView();
  world.Format()->SetTextColours(3, 0);
  Command(kLockRefresh);
  world.host.ClearTranscript();
  world.LoadSession();
  EXPECT_THAT(world.host.Asked("WriteInt"),
              ElementsAre("WriteInt PVW_IO_BKCOLOUR = 0", "WriteInt PVW_IO_FGCOLOUR = 3"))
      << "as the command ends it, with the colour";
  world.Expand(0, 0);
  EXPECT_THAT(world.Rows(0), testing::SizeIs(4)) << "rows open again";
}

TEST_F(SessionTest, AnotherProjectsViewHasAWindowOfItsOwn) {
  world.OpenView();
  const ScopedBstr workspace("ws"), project("lab"), name("day"), configuration("rel");
  world.Sessions()->LoadSessionData(workspace.Get(), project.Get(), name.Get(), configuration.Get());
  world.OpenView();
  auto* const other = world.host.Ui().Dock("{WK_00000001_IO}key of ws labkey of ws lab rel");
  ASSERT_NE(other, nullptr);
  EXPECT_EQ(world.host.Ui().Pages(other->window->GetHandle()).size(), 2u);
  EXPECT_EQ(world.host.Ui().Owners().size(), 6u) << "the panes of the first are gone";
}

TEST_F(SessionTest, BeforeTheFirstTheViewHasThePlainIdentity) {
  World fresh;
  Instance other(file);
  other.Connect(fresh.host);
  fresh.OpenView();
  EXPECT_NE(fresh.host.Ui().Dock("{WK_00000001_IO}"), nullptr);
}

TEST_F(SessionTest, HidingAPaneIsWorthSaving) {
  world.OpenView();
  world.SaveSession();
  EXPECT_FALSE(world.IsDirty());
  const auto pages = world.host.Ui().Pages(world.Dock()->window->GetHandle());
  platform::SendMessage(world.host.Ui().SinkOf(32770), platform::WM_USER + 3, pages[0].window);
  EXPECT_TRUE(world.IsDirty());
  EXPECT_FALSE(world.Dock()->shown);
}

// The host's format dialog ----------------------------------------------------------------------------------

std::string FontOf(IQFormatViewClient2& format) {
  ScopedBstr face;
  std::int32_t size = 0;
  EXPECT_EQ(format.GetFont(face.Receive(), &size), 0);
  return face.Text() + " " + std::to_string(size);
}

std::string ColoursOf(IQFormatViewClient2& format) {
  const ScopedBstr item("Text");
  std::int32_t fg = -1, bk = -1;
  EXPECT_EQ(format.GetItemColours(item.Get(), &fg, &bk), 0);
  return std::to_string(fg) + " " + std::to_string(bk);
}

struct Looks {
  const char* name;
  std::map<std::string, std::string> texts;
  std::map<std::string, std::int32_t> numbers;
  const char* font;
  const char* colours;
};

TEST_F(SessionTest, LooksComeFromTheUserSettingsWhereBothHalvesAreThere) {
  const Looks kLooks[] = {
      {"no settings", {}, {}, "Courier New 11", "17 17"},
      {"all of them",
       {{"PVW_IO_FONT_NAME", "Arial"}},
       {{"PVW_IO_FONT_SIZE", 9}, {"PVW_IO_FGCOLOUR", 3}, {"PVW_IO_BKCOLOUR", 0}},
       "Arial 9",
       "3 0"},
      {"a name without a size", {{"PVW_IO_FONT_NAME", "Arial"}}, {}, "Courier New 11", "17 17"},
      {"a size without a name", {}, {{"PVW_IO_FONT_SIZE", 9}}, "Courier New 11", "17 17"},
      {"one colour", {}, {{"PVW_IO_BKCOLOUR", 3}}, "Courier New 11", "17 17"},
      {"numbers of any content",
       {{"PVW_IO_FONT_NAME", ""}},
       {{"PVW_IO_FONT_SIZE", INT32_MIN}, {"PVW_IO_FGCOLOUR", -5}, {"PVW_IO_BKCOLOUR", INT32_MAX}},
       " -2147483648",
       "-5 2147483647"},
  };
  for (const Looks& looks : kLooks) {
    World fresh;
    fresh.host.setting_texts = looks.texts;
    fresh.host.setting_numbers = looks.numbers;
    Instance other(file);
    other.Connect(fresh.host);
    fresh.OpenView();
    EXPECT_EQ(FontOf(*fresh.Format()), looks.font) << looks.name;
    EXPECT_EQ(ColoursOf(*fresh.Format()), looks.colours) << looks.name;
  }
}

TEST_F(SessionTest, AFontReachesThePanesAndTheUserSettings) {
  world.OpenView();
  world.host.ClearTranscript();
  const ScopedBstr face("Liberation Mono");
  EXPECT_EQ(world.Format()->SetDefaultFont(face.Get(), 14), 0);
  EXPECT_THAT(world.host.Asked("Write"), ElementsAre("WriteString PVW_IO_FONT_NAME = Liberation Mono",
                                                     "WriteInt PVW_IO_FONT_SIZE = 14"));
  EXPECT_EQ(FontOf(*world.Format()), "Liberation Mono 14");
  for (const std::size_t pane : {0u, 1u}) {
    EXPECT_EQ(world.Grid(pane)->GetRowFont().face, "Liberation Mono");
    EXPECT_EQ(world.Grid(pane)->GetRowFont().point_tenths, 140);
  }
  ScopedBstr name;
  EXPECT_EQ(world.Format()->GetFormatName(name.Receive()), 0);
  EXPECT_EQ(name.Text(), "IO");
}

TEST_F(SessionTest, AColourChosenWhileLockedWaitsForTheLockToEndAndItsBackgroundIsLost) {
  world.OpenView();
  world.Format()->SetTextColours(3, 0);
  world.host.ClearTranscript();

  Command(kLockRefresh);
  world.Format()->SetTextColours(4, 6);
  EXPECT_EQ(ColoursOf(*world.Format()), "3 0");
  EXPECT_THAT(world.host.Asked("Write"), IsEmpty());

  Command(kLockRefresh, 1);
  EXPECT_EQ(ColoursOf(*world.Format()), "4 0");
  EXPECT_THAT(world.host.Asked("Write"),
              ElementsAre("WriteInt PVW_IO_BKCOLOUR = 0", "WriteInt PVW_IO_FGCOLOUR = 4"));
}

TEST_F(SessionTest, ColoursOfSelectedTextAreNotKept) {
  world.OpenView();
  world.host.ClearTranscript();
  EXPECT_EQ(world.Format()->SetSelectedTextColours(3, 4), 0);
  EXPECT_THAT(world.host.Asked("Write"), IsEmpty());
  EXPECT_EQ(ColoursOf(*world.Format()), "17 17");
}

}  // namespace
}  // namespace pvw
