// A host that ends something in the midst of a call: the instance, the connection, the view, its window, or
// the file that is shown.

#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <set>

#include "host/events.h"
#include "host/test_client.h"
#include "platform/base/files.h"
#include "platform/gui/dialog.h"
#include "platform/gui/list_edit.h"
#include "platform/headless/user.h"
#include "tests/component/component_world.h"

namespace pvw {
namespace {

using platform::E_FAIL;
using platform::S_OK;
using platform::Status;
using test::Instance;
using test::World;
using testing::IsEmpty;
namespace user_acts = platform::user;

constexpr std::string_view kDefinition =
    "[Modules]\nFileVersion=2\nModule1=PORT\n[PORT]\nreg0=P0\nreg1=P1\n"
    "[P0]\nid=PDATA 0xFF0000 B A H BITS\n[BITS]\nbit0=LOW 1\nbit1=HIGH 2\n[P1]\nid=PDIR 0xFF0001 B A H\n";

// One instance with the rows PORT, PDATA and LOW open, unless the view isn't open yet.
struct Life {
  Life(const test::ComponentFile& file, bool view_open) : instance(file) {
    platform::WriteWholeFile(world.dir.Path("device.io"), std::string(kDefinition));
    instance.Connect(world.host);
    instance.Fire(EVENT_TARGET_CONNECTED);
    world.Keep("IOSelection IOWnd0", "{PORT?{PDATA?{LOW?}}}");
    world.LoadSession();
    if (!view_open) return;
    world.OpenView();
    world.Expand(0, 0);
    world.Expand(0, 1);
  }
  IQComponent* Component() { return instance.Face<IQComponent>(IID_IQComponent); }
  void Tell(const platform::GUID& event) {
    const QEventRecord record{event, 0};
    if (IQComponent* const component = Component()) component->OnEvent(&record);
  }
  void Send(std::uint32_t command) { platform::SendMessage(world.Pane(0), platform::WM_COMMAND, command); }
  void Load() {
    const platform::ScopedBstr path(world.host.device_path);
    if (world.Server() != nullptr) world.Server()->LoadIOFile(path.Get(), 0);
  }
  // The pane's row as the user picks it.
  platform::SECTreeCtrl& Pick(std::size_t row) {
    world.Grid(0)->SelectItem(world.Grid(0)->GetItemAtRow(row));
    platform::SetFocus(world.Grid(0)->GetHandle());
    return *world.Grid(0);
  }

  World world;
  Instance instance;
};

using Act = std::function<void(Life&)>;

class MidstTest : public test::ComponentTest {
 protected:
  static bool IsText(const std::string& call) { return call.starts_with("Format"); }
  static bool IsAny(const std::string&) { return true; }

  // Runs the operation again and again, each time with a new instance and the act in its next call of the
  // host that is `wanted`. Gives the number of those calls.
  int InterruptEach(const Act& operation, bool view_open, bool (*wanted)(const std::string&),
                    const Act& act) {
    std::set<std::string> names;
    {
      Life whole(file, view_open);
      whole.world.host.ClearTranscript();
      operation(whole);
      for (const std::string& line : whole.world.host.Transcript())
        names.insert(line.substr(0, line.find(' ')));
    }
    std::erase_if(names, [&](const std::string& name) { return !wanted(name); });
    for (int number = 0;; ++number) {
      SCOPED_TRACE("call " + std::to_string(number));
      Life life(file, view_open);
      int left = number;
      for (const std::string& name : names) {
        life.world.host.during[name] = [&] {
          if (left-- == 0) act(life);
        };
      }
      operation(life);
      life.world.host.during.clear();
      display.DropAnswers();
      if (life.Component() != nullptr) life.instance.Disconnect();
      life.instance.Destroy();
      EXPECT_THAT(life.world.host.Ui().Live(), IsEmpty());
      EXPECT_THAT(life.world.host.Ui().Owners(), IsEmpty());
      EXPECT_EQ(life.world.Sessions(), nullptr);
      EXPECT_EQ(life.world.Stepping(), nullptr);
      if (left >= 0) return number;
    }
  }
};

const Act kDestroy = [](Life& life) { life.instance.Destroy(); };
const Act kDisconnect = [](Life& life) {
  if (life.Component() != nullptr) life.instance.Disconnect();
};

TEST_F(MidstTest, OfAnyCallOfTheControlTheInstanceMayGo) {
  const std::map<std::string, Act> operations = {
      {"memory has changed", [](Life& life) { life.Tell(EVENT_MEMORY_CHANGED); }},
      {"the target goes and comes",
       [](Life& life) { life.Tell(EVENT_TARGET_DISCONNECTED), life.Tell(EVENT_TARGET_CONNECTED); }},
      {"a step",
       [](Life& life) {
         life.world.Stepping()->OnStepBegin(1, 0);
         life.world.Stepping()->OnStep();
       }},
      {"the end of steps", [](Life& life) { life.world.Stepping()->OnStepEnd(); }},
      {"another connect", [](Life& life) { life.Component()->Connect(&life.world.host, 1); }},
      {"a disconnect", kDisconnect},
      {"its own end", kDestroy}};
  for (const auto& [what, operation] : operations) {
    for (const bool destroyed : {true, false}) {
      SCOPED_TRACE("in " + what + (destroyed ? ", destroyed" : ", disconnected"));
      EXPECT_GT(InterruptEach(operation, true, &IsAny, destroyed ? kDestroy : kDisconnect), 1);
    }
  }
}

TEST_F(MidstTest, OfAConnectOrADisconnectAnotherWaitsOrFails) {
  World world;
  Instance instance(file);
  IQComponent& component = instance.Component();
  std::vector<Status> answers;
  const auto once = [&](const char* call, std::function<Status()> ask) {
    world.host.during.clear();
    world.host.during[call] = [&answers, ask = std::move(ask), asked = false]() mutable {
      if (!std::exchange(asked, true)) answers.push_back(ask());
    };
  };
  once("AddMenu", [&] { return component.Connect(&world.host, 1); });
  answers.push_back(instance.Connect(world.host));
  once("RemoveMenu", [&] { return instance.Disconnect(); });
  answers.push_back(instance.Disconnect());
  once("RemoveMenu", [&] { return component.Connect(&world.host, 1); });
  instance.Connect(world.host);
  answers.push_back(instance.Disconnect());
  once("AddMenu", [&] { return instance.Disconnect(); });
  answers.push_back(instance.Connect(world.host));
  EXPECT_THAT(answers, testing::ElementsAre(E_FAIL, S_OK, E_FAIL, S_OK, E_FAIL, S_OK, S_OK, E_FAIL));
  EXPECT_EQ(world.Sessions(), nullptr) << "it has left again";

  once("AddMenu", [&] {
    instance.Destroy();
    EXPECT_EQ(instance.Face<IQComponent>(IID_IQComponent), nullptr);
    return S_OK;
  });
  EXPECT_EQ(component.Connect(&world.host, 1), E_FAIL);
  EXPECT_EQ(world.Sessions(), nullptr);
}

TEST_F(MidstTest, OfAConnectAnExceptionLeavesOneThatCanConnectAgain) {
  World world;
  Instance instance(file);
  world.host.during["AddServer"] = [] { throw "a name"; };
  EXPECT_THROW(instance.Connect(world.host), const char*);
  world.host.during["AddServer"] = [&] {
    EXPECT_EQ(instance.Disconnect(), S_OK) << "waits";
    throw "a name";
  };
  EXPECT_THROW(instance.Connect(world.host), const char*);
  EXPECT_EQ(world.Stepping(), nullptr);
  world.host.during.clear();
  EXPECT_EQ(instance.Connect(world.host), S_OK);
  EXPECT_EQ(instance.Disconnect(), S_OK);
  EXPECT_EQ(world.Sessions(), nullptr);
}

TEST_F(MidstTest, OfTheEndOfAnInstanceItsHandleMayGetAnother) {
  World world;
  World other;
  Instance instance(file);
  instance.Connect(world.host);
  world.host.during["RemoveClient"] = [&, done = false]() mutable {
    if (std::exchange(done, true)) return;
    file.CreateInstance(&instance);
    EXPECT_EQ(instance.Connect(other.host), S_OK);
  };
  file.CreateInstance(&instance);
  instance.Destroy();
  EXPECT_EQ(other.Sessions(), nullptr);
}

TEST_F(MidstTest, OfATextOfTheHostsAnythingMayGo) {
  const std::map<std::string, std::pair<bool, Act>> operations = {
      {"the view opens", {false, [](Life& life) { life.world.OpenView(), life.world.Expand(0, 0); }}},
      {"memory has changed", {true, [](Life& life) { life.Tell(EVENT_MEMORY_CHANGED); }}},
      {"an update", {true, [](Life& life) { life.world.Update()->UpdateWindow(); }}},
      {"a refresh", {true, [](Life& life) { life.Send(32817); }}},
      {"a load", {true, [](Life& life) { life.Load(); }}},
      {"a session", {true, [](Life& life) { life.world.LoadSession(); }}},
      {"the lock's end", {true, [](Life& life) { life.Send(32826), life.Load(), life.Send(32826); }}},
      {"a row opens",
       {true,
        [](Life& life) {
          const platform::HTREEITEM row = life.world.Grid(0)->GetItemAtRow(0);
          life.world.Grid(0)->Expand(row, platform::TVE_COLLAPSE);
          life.world.Grid(0)->Expand(row, platform::TVE_EXPAND);
        }}},
      {"the choice of registers to compare",
       {true,
        [](Life& life) {
          static_cast<IQTestClient*>(life.world.host.Registered(IID_IQTestClient))->EditDetails();
        }}},
      {"a search",
       {true,
        [this](Life& life) {
          display.Give(platform::DialogAnswer{{[](platform::CDialog& dialog) {
            user_acts::TypeText("zzz");
            user_acts::PressOk(dialog);
          }}});
          life.Send(32820);
        }}},
      {"a cell's edit",
       {true,
        [](Life& life) {
          platform::SECTreeCtrl& grid = life.Pick(2);
          grid.EditCell(grid.GetSelectedItem(), 2);
          grid.GetListEdit()->SetText("1");
          grid.EndEdit();
        }}},
      {"the dialog's edit", {true, [this](Life& life) {
                               life.Pick(2);
                               display.Give(platform::DialogAnswer{{[](platform::CDialog& dialog) {
                                 user_acts::TypeText("1");
                                 user_acts::PressOk(dialog);
                               }}});
                               user_acts::PressKey(platform::VK_RETURN);
                             }}}};
  const std::map<std::string, Act> acts = {{"instance", kDestroy},
                                           {"connection", kDisconnect},
                                           {"panes",
                                            [](Life& life) {
                                              for (const std::size_t pane : {1, 0})
                                                life.world.TellSink(platform::WM_USER + 1,
                                                                    life.world.Pane(pane));
                                            }},
                                           {"window",
                                            [](Life& life) {
                                              if (life.world.Dock() != nullptr)
                                                life.world.Dock()->window->DestroyWindow();
                                            }},
                                           {"file", [](Life& life) { life.Load(); }}};
  for (const auto& [what, operation] : operations) {
    for (const auto& [goes, act] : acts) {
      SCOPED_TRACE("the " + goes + " goes in " + what);
      EXPECT_GT(InterruptEach(operation.second, operation.first, &IsText, act), 0);
    }
  }
}

TEST_F(MidstTest, OfAConnectionTheResourceLibraryMayBeReplaced) {
  const test::TempDir dir;
  for (const char* name : {"PvwIO.dll", "PvwIOExtRes.dll"}) {
    std::filesystem::copy_file(std::string(BINARY_DIR "/bin/") + name, dir.Native(name));
  }
  const auto replace = [&](const std::string& by) {
    std::filesystem::copy_file(by, dir.Native("new"));
    std::filesystem::rename(dir.Native("new"), dir.Native("PvwIOExtRes.dll"));
  };
  const test::ComponentFile alone(dir.Native("PvwIO.dll").string());
  World world;
  Instance instance(alone);
  EXPECT_EQ(instance.Connect(world.host), S_OK);
  dir.Write("half", "text");
  replace(dir.Native("half"));
  world.LoadSession();
  world.OpenView();
  EXPECT_THAT(world.host.Asked("AddAccelerators"), testing::Contains(testing::HasSubstr("[39507 39512]")))
      << "the panes' keys are the library's";
  EXPECT_EQ(instance.Disconnect(), S_OK);
  EXPECT_EQ(instance.Connect(world.host), E_FAIL);
  EXPECT_THAT(user, testing::ElementsAre(testing::StartsWith("message: Error loading resource DLL ")));
  replace(BINARY_DIR "/bin/PvwIOExtRes.dll");
  EXPECT_EQ(instance.Connect(world.host), S_OK);
}

}  // namespace
}  // namespace pvw
