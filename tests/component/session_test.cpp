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

// The keys of the transcript's calls of that operation, as the view gives them.
std::vector<std::string> Keys(const World& world, const std::string& operation) {
  std::vector<std::string> keys;
  for (const std::string& line : world.host.Asked(operation + " " + World::kSession)) {
    keys.push_back(line.substr(operation.size() + 1 + World::kSession.size()));
  }
  return keys;
}

// A host of its own that is set up before the component connects to it.
struct Fresh : World {
  explicit Fresh(const test::ComponentFile& file) : instance(file) {}
  void Connect() { EXPECT_EQ(instance.Connect(host), platform::S_OK); }
  Instance instance;
};

class SessionTest : public test::ConnectedTest {
 protected:
  void Lock(std::size_t pane = 0) { platform::SendMessage(world.Pane(pane), platform::WM_COMMAND, 32826); }
};

TEST_F(SessionTest, IsWrittenInItsOrder) {
  const auto save = [&] {
    world.host.ClearTranscript();
    world.SaveSession();
    return Keys(world, "SetSessionValue");
  };
  EXPECT_THAT(save(), ElementsAre("IOCtrlViews = 0", "IOCtrlIOFile = ", "IOCtrlSaveFileDir = $(CONFIGDIR)",
                                  "IOCtrlSaveFileName = "))
      << "a view that was never open has no panes";
  world.OpenView();
  world.Expand(0, 0);
  EXPECT_THAT(save(), ElementsAre("IOCtrlViews = 1", "IOSelection IOWnd0 = ", "IOWnd0ColWidth0 = 200",
                                  "IOWnd0ColWidth1 = 100", "IOWnd0ColWidth2 = 100", "IOWnd0ColWidth3 = 100",
                                  "IOWnd0Exp0 = 1", "IOWnd0Exp1 = 0", "IOWnd0Exp2 = 0", "IOWnd0Exp3 = 0",
                                  "IOWnd0ScrollHorz = 0", "IOWnd0ScrollVert = 0", "IOWnd1ColWidth0 = 200",
                                  "IOWnd1ColWidth1 = 100", "IOWnd1ColWidth2 = 100", "IOWnd1ColWidth3 = 100",
                                  "IOWnd1ScrollHorz = 0", "IOWnd1ScrollVert = 0", "IOCtrlIOFile = ",
                                  "IOCtrlSaveFileDir = $(CONFIGDIR)", "IOCtrlSaveFileName = "))
      << "the path of the file isn't kept unless the user wants that";
}

TEST_F(SessionTest, IsReadInItsOrderAndReopensTheViewWithoutShowingIt) {
  world.Keep("IOCtrlViews", "1");
  world.Keep("IOWnd0ColWidth0", "150");
  world.Keep("IOWnd0Exp0", "1");
  world.Keep("IOSelection IOWnd0", "{TIMER?{TCNT?}}");
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

  for (const char* when : {"not built again", "nor while it shows"}) {
    world.OpenView();
    EXPECT_TRUE(world.Dock()->shown);
    EXPECT_FALSE(world.CanOpenView());
    EXPECT_TRUE(world.IsDirty());
    EXPECT_EQ(world.PaneCount(), 2u) << when;
  }
  world.SaveSession();
  EXPECT_FALSE(world.IsDirty());
  world.TellSink(platform::WM_USER + 3, world.Pane(0));
  EXPECT_TRUE(world.IsDirty()) << "hiding a pane is worth saving";
  EXPECT_FALSE(world.Dock()->shown);
}

TEST_F(SessionTest, AnyCountOfViewsIsSafe) {
  const std::pair<const char*, std::size_t> rows[] = {
      {"0", 0}, {"-1", 0}, {"", 0}, {"2", 2}, {"2147483647", 2}, {"1abc", 2}, {"999999999999", 2}, {"x", 0}};
  for (const auto& [value, panes] : rows) {
    SCOPED_TRACE(value);
    Fresh fresh(file);
    fresh.Connect();
    fresh.Keep("IOCtrlViews", value);
    fresh.LoadSession();
    EXPECT_EQ(fresh.PaneCount(), panes);
    fresh.SaveSession();
    EXPECT_EQ(fresh.Kept("IOCtrlViews"), panes == 0 ? "0" : "1");
  }
}

TEST_F(SessionTest, KeepsAFileThatExistsAndDropsOneThatDoesNot) {
  for (const std::string stored : {"$(CONFIGDIR)\\other.io", "$(CONFIGDIR)\\gone.io", "$(CONFIGDIR)", ""}) {
    SCOPED_TRACE(stored);
    Fresh fresh(file);
    fresh.dir.Write("other.io", "[Modules]\nModule1=OTHER\n");
    fresh.Connect();
    fresh.Keep("IOCtrlIOFile", stored);
    fresh.LoadSession();
    fresh.OpenView();
    const bool kept = stored.ends_with("other.io");
    using Names = std::vector<std::string>;
    EXPECT_EQ(fresh.Rows(0), kept ? Names{"OTHER"} : (Names{"PORT", "TIMER"})) << "else the device's own";
    fresh.SaveSession();
    EXPECT_EQ(fresh.Kept("IOCtrlIOFile"), kept ? stored : "");
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

TEST_F(SessionTest, EachProjectsViewHasAWindowOfItsOwn) {
  world.OpenView();
  const ScopedBstr workspace("ws"), project("lab"), name("day"), configuration("rel");
  world.Sessions()->LoadSessionData(workspace.Get(), project.Get(), name.Get(), configuration.Get());
  world.OpenView();
  auto* const other = world.host.Ui().Dock("{WK_00000001_IO}key of ws labkey of ws lab rel");
  ASSERT_NE(other, nullptr);
  EXPECT_EQ(world.host.Ui().Pages(other->window->GetHandle()).size(), 2u);
  EXPECT_EQ(world.host.Ui().Owners().size(), 6u) << "the panes of the first are gone";

  Fresh fresh(file);
  fresh.Connect();
  fresh.OpenView();
  EXPECT_NE(fresh.host.Ui().Dock("{WK_00000001_IO}"), nullptr) << "before the first session";
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

TEST_F(SessionTest, LooksComeFromTheUserSettingsWhereBothHalvesAreThere) {
  struct Row {
    const char* name;
    std::map<std::string, std::string> texts;
    std::map<std::string, std::int32_t> numbers;
    const char *font, *colours;
  };
  const Row rows[] = {
      {"all of them",
       {{"PVW_IO_FONT_NAME", "Arial"}},
       {{"PVW_IO_FONT_SIZE", 9}, {"PVW_IO_FGCOLOUR", 3}, {"PVW_IO_BKCOLOUR", 0}},
       "Arial 9",
       "3 0"},
      {"a name and the background",
       {{"PVW_IO_FONT_NAME", "Arial"}},
       {{"PVW_IO_BKCOLOUR", 3}},
       "Courier New 11",
       "17 17"},
      {"a size and the foreground",
       {},
       {{"PVW_IO_FONT_SIZE", 9}, {"PVW_IO_FGCOLOUR", 3}},
       "Courier New 11",
       "17 17"},
      {"numbers of any content",
       {{"PVW_IO_FONT_NAME", ""}},
       {{"PVW_IO_FONT_SIZE", INT32_MIN}, {"PVW_IO_FGCOLOUR", -5}, {"PVW_IO_BKCOLOUR", INT32_MAX}},
       " -2147483648",
       "-5 2147483647"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Fresh fresh(file);
    fresh.host.setting_texts = row.texts;
    fresh.host.setting_numbers = row.numbers;
    fresh.Connect();
    fresh.OpenView();
    EXPECT_EQ(FontOf(*fresh.Format()), row.font);
    EXPECT_EQ(ColoursOf(*fresh.Format()), row.colours);
  }
}

TEST_F(SessionTest, AFontReachesThePanesAndTheUserSettings) {
  world.OpenView();
  const ScopedBstr face("Liberation Mono");
  EXPECT_EQ(world.Format()->SetDefaultFont(face.Get(), 14), 0);
  EXPECT_EQ(world.Format()->SetSelectedTextColours(3, 4), 0);
  EXPECT_EQ(ColoursOf(*world.Format()), "17 17") << "colours of selected text aren't kept";
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
  const auto written = [&](const std::string& foreground) {
    EXPECT_THAT(world.host.Asked("Write"),
                ElementsAre("WriteInt PVW_IO_BKCOLOUR = 0", "WriteInt PVW_IO_FGCOLOUR = " + foreground));
    EXPECT_EQ(ColoursOf(*world.Format()), foreground + " 0");
    world.host.ClearTranscript();
  };
  world.host.ClearTranscript();
  Lock();
  world.Format()->SetTextColours(4, 6);
  EXPECT_EQ(ColoursOf(*world.Format()), "3 0");
  EXPECT_THAT(world.host.Asked("Write"), IsEmpty());
  Lock(1);
  written("4");

  Lock();
  world.LoadSession();
  written("4");
  world.Expand(0, 0);
  EXPECT_THAT(world.Rows(0), testing::SizeIs(4)) << "a session that is loaded ends the lock: rows open again";
}

TEST_F(SessionTest, ALoadWhileLockedKeepsTheSelectionAndShowsItWhenTheLockEnds) {
  display.SetRunningByThemselves({11007});
  const std::string selection = "{PORT?{PDATA?}}";
  world.Keep("IOCtrlViews", "1");
  world.Keep("IOSelection IOWnd0", selection);
  world.LoadSession();
  world.Expand(1, 0);
  Lock();
  const ScopedBstr path(world.dir.Path("device.IO"));
  for (int i = 0; i < 2; ++i) EXPECT_EQ(world.Server()->LoadIOFile(path.Get(), 0), 0);
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "TIMER"));
  EXPECT_THAT(world.Rows(1), IsEmpty());
  world.SaveSession();
  EXPECT_EQ(world.Kept("IOSelection IOWnd0"), selection);

  world.TakeReads();
  Lock();
  EXPECT_THAT(user, ElementsAre("dialog: Loading..."));
  EXPECT_THAT(world.Rows(1), ElementsAre("PORT", "PDATA 00"));
  EXPECT_EQ(world.TakeReads(), 2u) << "when its row opened, and behind that with all that is open";
  Lock(), Lock();
  EXPECT_THAT(user, testing::SizeIs(1)) << "once";
}

}  // namespace
}  // namespace pvw
