// A pane as its values change, and its commands.

#include <filesystem>
#include <fstream>

#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"

namespace pvw::test {
namespace {

std::string Port(const std::string& data, const std::string& low, const std::string& top,
                 const std::string& mark) {
  return "[-] 1 PORT\n  [-] 1 PDATA | H'00FF0010 | " + data + " | RW" + mark + "\n    [ ] 2 LOW |  | " + low +
         " | RW" + mark + "\n    [ ] 2 TOP |  | " + top + " | RW" + mark +
         "\n  [ ] 2 null | H'00FF0011 | 11 | RW\n[+] 0 TIMER\n";
}

TEST_F(PaneStage, AStopMarksTheChangedRegisterWithItsFieldsUntilTheNext) {
  OpenView("{PORT?{PDATA?}}");
  Open(0, "PORT"), Open(0, "PORT/PDATA");
  Open(1, "PORT");
  EXPECT_EQ(Rows(0), Port("10", "0", "0", ""));

  host.Poke(0xFF0010, {0x81});
  Stop();
  EXPECT_EQ(Rows(0), Port("81", "1", "1", " *"));
  EXPECT_EQ(Rows(1), "[-] 1 PORT\n  [ ] 0 PDATA | H'00FF0010 | 81 | RW *\n");
  Stop();
  EXPECT_EQ(Rows(0), Port("81", "1", "1", ""));

  host.Poke(0xFF0010, {0x80});
  host.FailNext("ReadDirect");
  Stop();
  EXPECT_EQ(Rows(0), Port("81", "1", "1", "")) << "a failed read keeps the last value, without a message";
  EXPECT_EQ(shown, "");
}

TEST_F(PaneStage, ARefreshByHandAddsToTheMarksLockedOrNot) {
  OpenView("{PORT?{PDATA?}}");
  Open(0, "PORT"), Open(0, "PORT/PDATA");
  Open(1, "PORT");
  frame.locked = true;
  host.Poke(0xFF0010, {0x00});
  EXPECT_TRUE(Pane(1).RouteCommand(32817));
  host.Poke(0xFF0011, {0x55});
  EXPECT_TRUE(Pane(1).RouteCommand(32817));
  EXPECT_THAT(Rows(0), testing::HasSubstr("| 00 | RW *"));
  EXPECT_THAT(Rows(0), testing::HasSubstr("| 55 | RW *"));
  EXPECT_THAT(Rows(1), testing::HasSubstr("| 00 | RW *")) << "the pane of the command too";
}

TEST_F(PaneStage, AModuleThatWasClosedMeanwhileShowsItsNewValueUnmarked) {
  OpenView();
  Open(0, "PORT"), Close(0, "PORT");
  host.Poke(0xFF0010, {0x42});
  host.ClearTranscript();
  Stop();
  EXPECT_THAT(host.Asked("Read"), testing::IsEmpty()) << "a closed module costs nothing";
  Open(0, "PORT");
  EXPECT_THAT(Rows(0), testing::HasSubstr("PDATA | H'00FF0010 | 42 | RW\n"));
}

TEST_F(PaneStage, ALoadShowsAnotherFileAndKeepsTheSelectionByName) {
  OpenView("{PORT?{PDATA?}}");
  Open(0, "PORT"), Open(1, "PORT");
  host.Poke(0xFF0010, {1});
  Stop();
  const std::uint64_t before = frame.write_time;
  dir.Write("other.io", "[Modules]\nFileVersion=1\nModule1=NEW\n[NEW]\nR=10\n");
  std::filesystem::last_write_time(dir.Native("other.io"),
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  Pane(1).LoadIOFile(dir.Path("other"), 0);
  EXPECT_THAT(Rows(0), testing::HasSubstr("PORT")) << "the second pane loads nothing";

  Pane(0).LoadIOFile(dir.Path("other"), 0);
  EXPECT_EQ(Rows(0), "[+] 0 NEW\n");
  EXPECT_EQ(Rows(1), "[-] 3 PORT\n  [ ] 3 PDATA\n");
  EXPECT_NE(frame.write_time, before);
  EXPECT_EQ(platform::GetFocus(), Pane(0).GetTreeWindow());
  EXPECT_EQ(Tree(0).GetSelectedItem(), Row(0, "NEW"));

  frame.locked = true;
  host.ClearTranscript();
  Pane(0).LoadIOFile(dir.Path("device.IO"), 0);
  EXPECT_EQ(Rows(0), "[+] 0 PORT\n[+] 0 TIMER\n");
  EXPECT_EQ(Rows(1), "") << "it waits for the lock to end";
  EXPECT_THAT(host.Asked("Read"), testing::IsEmpty());
  EXPECT_EQ(file.GetPath(), dir.Path("device.IO")) << "no second extension";
  frame.locked = false;
  Pane(0).LoadIOFile(dir.Path("nowhere"), 0);
  EXPECT_EQ(Rows(0), "");
}

TEST_F(PaneStage, SelectRegisterAsksForAReloadOfAFileThatHasChanged) {
  OpenView();
  std::filesystem::last_write_time(dir.Native("device.io"),
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  EXPECT_TRUE(Pane(0).RouteCommand(32819));
  EXPECT_EQ(shown, "message: The IO File has been modified. Please reload it again.\n");
  Pane(0).LoadIOFile(frame.path, 0);
  for (const bool there : {true, false}) {
    if (!there) dir.Delete("device.io");
    shown.clear();
    display.Give(platform::CancelAnswer{});
    EXPECT_TRUE(Pane(0).RouteCommand(32819));
    EXPECT_EQ(shown, "dialog: Select IO Register\n");
  }
}

TEST_F(PaneStage, SaveToFileWritesThisPanesRowsAndRemembersWhere) {
  OpenView("{PORT?{PDATA?}}");
  Open(1, "PORT");
  display.Give(platform::FileAnswer{dir.Path("rows.txt")});
  EXPECT_TRUE(Pane(1).RouteCommand(32774));
  EXPECT_EQ(frame.save_dir, dir.Path());
  EXPECT_EQ(frame.save_name, "rows.txt");
  std::ifstream in(dir.Native("rows.txt"));
  const std::string text((std::istreambuf_iterator<char>(in)), {});
  EXPECT_THAT(text, testing::HasSubstr("[-]-- PORT"));
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("TIMER")));

  shown.clear();
  display.Give(platform::CancelAnswer{});
  Pane(1).RouteCommand(32774);
  EXPECT_EQ(shown,
            "file dialog: Text File (*.txt)|*.txt|All Files (*.*)|*.*||, " + dir.Path() + ", rows.txt\n");
  EXPECT_EQ(frame.save_name, "rows.txt");
}

TEST_F(PaneStage, EachCommandHasItsState) {
  OpenView();
  const struct {
    const char* name;
    std::uint32_t command;
    const char* state;
  } kRows[] = {
      {"refresh", 32817, "enabled"},
      {"lock", 32826, "enabled"},
      {"load", 32773, "enabled"},
      {"select", 32819, "enabled"},
      {"print", 32771, "enabled"},
      {"save", 32774, "enabled"},
      {"find", 32820, "enabled"},
      {"find by key", 39507, "enabled"},
      {"find next", 32821, "disabled"},
      {"find next by key", 39512, "disabled"},
      {"toolbar", 32777, "enabled checked"},
      {"customize", 32778, "enabled"},
      {"docking", 32768, "enabled"},
      {"hide", 32769, "enabled"},
  };
  for (const auto& row : kRows) EXPECT_EQ(State(0, row.command), row.state) << row.name;

  host.target_running = platform::S_OK;
  EXPECT_EQ(State(0, 32819), "disabled") << "not while the target runs";
  EXPECT_EQ(State(0, 32817), "enabled");
  Pane(0).RouteCommand(32826);
  EXPECT_EQ(frame.lock_toggles, 1);
  EXPECT_EQ(State(1, 32826), "enabled checked");
  Pane(0).RouteCommand(32777);
  EXPECT_FALSE(dock->toolbar_shown);
  EXPECT_EQ(State(0, 32777), "enabled");
  EXPECT_EQ(State(0, 32778), "disabled");
  Pane(0).RouteCommand(32777);
  EXPECT_TRUE(dock->toolbar_shown);
  dock->shown = true;
  Pane(0).RouteCommand(32769);
  EXPECT_FALSE(dock->shown);
}

TEST_F(PaneStage, AHostWithoutServicesGetsItsPanesAllTheSame) {
  panes[0] = std::make_unique<CPvwIOInstanceCtrl>(&file, &data, 0, nullptr, nullptr, 0);
  panes[0]->SetFrame(&frame);
  ASSERT_TRUE(panes[0]->CreatePane(dock->window->GetHandle(), 0));
  for (const std::uint32_t command : {32817, 32777, 32778, 32768, 32769}) {
    EXPECT_TRUE(Pane(0).RouteCommand(command)) << command;
  }
  EXPECT_EQ(State(0, 32778), "disabled");
}

}  // namespace
}  // namespace pvw::test
