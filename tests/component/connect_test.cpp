// Connecting to a host and leaving it: orders, failures, hosts that lack something, and more than one of
// each.

#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>

#include "host/events.h"
#include "platform/base/bstr.h"
#include "platform/base/files.h"
#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "tests/component/component_world.h"

namespace pvw {
namespace {

using platform::E_FAIL;
using platform::GUID;
using platform::S_OK;
using platform::Status;
using test::ComponentFile;
using test::FakeHost;
using test::Instance;
using test::World;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class ConnectTest : public test::ComponentTest {};

// A host that lets a registration stand when it is asked to take it back has it still.
void ExpectNothingLeft(World& world) {
  EXPECT_THAT(world.host.Ui().Live(), IsEmpty());
  EXPECT_THAT(world.host.Ui().Owners(), IsEmpty());
  EXPECT_EQ(world.Sessions(), nullptr);
  EXPECT_EQ(world.Stepping(), nullptr);
}

// The operations that the host was asked for, without those for services, which it answers the same in any
// order.
std::string Operations(const FakeHost& host) {
  std::string operations;
  for (const std::string& line : host.Transcript()) {
    if (!line.starts_with("GetService")) operations += line.substr(0, line.find(' ')) + ' ';
  }
  return operations;
}

TEST_F(ConnectTest, RegistersTheStepsThenTheFramesFacesThenItsPlaceInTheUserInterfaceThenTheTestClient) {
  World world;
  Instance instance(file);
  EXPECT_EQ(instance.Connect(world.host), S_OK);
  EXPECT_EQ(
      Operations(world.host),
      "AddClient QueryInterface AllocOwnerId AllocOwnerId AddClient AddClient AddClient "
      "ReadString ReadInt ReadInt AddServer "
      "AddMenu AddCommandSink AddCommandStrings AddToolbar AddAccelerators GetDefaultIOPath AddClient ");
  EXPECT_THAT(world.host.Asked("AddAccelerators"),
              ElementsAre("AddAccelerators 9001 owner 1 PvwIO [32770] - -"));
  const platform::CWnd* const sink = platform::CWnd::FromHandle(world.host.Ui().SinkOf(32770));
  ASSERT_NE(sink, nullptr);
  EXPECT_EQ(sink->GetParent(), &main);

  world.host.ClearTranscript();
  EXPECT_EQ(instance.Disconnect(), S_OK);
  EXPECT_EQ(Operations(world.host),
            "RemoveClient RemoveMenu RemoveAccelerators RemoveToolbar RemoveCommandStrings RemoveCommandSink "
            "RemoveClient RemoveClient RemoveServer RemoveClient FreeOwnerId FreeOwnerId RemoveClient ");
}

TEST_F(ConnectTest, WithoutAHostOrAFlagChangesNothingAndAnotherHostTakesOver) {
  World world, other;
  Instance instance(file);
  IQComponent& component = instance.Component();
  for (const std::int32_t flag : {0, 1}) EXPECT_EQ(component.Connect(nullptr, flag), E_FAIL);
  EXPECT_EQ(component.Connect(&world.host, -1), S_OK) << "any flag but 0";
  EXPECT_EQ(instance.Connect(other.host), S_OK);
  ExpectNothingLeft(world);
  EXPECT_THAT(other.host.Asked("GetService IQPageHost"), testing::SizeIs(1)) << "one registrar";
  EXPECT_EQ(instance.Disconnect(), S_OK);
  other.host.ClearTranscript();
  for (const GUID& event : {EVENT_MEMORY_CHANGED, EVENT_TARGET_CONNECTED, EVENT_TARGET_DISCONNECTED}) {
    instance.Fire(event);
  }
  EXPECT_THAT(other.host.Transcript(), IsEmpty()) << "a host that it has left isn't called";
}

TEST_F(ConnectTest, NeedsItsResourceLibraryBesideIt) {
  const test::TempDir dir;
  const auto lay = [&](const char* source, const char* name) {
    dir.Delete(name);
    std::filesystem::copy_file(source, dir.Native(name));
  };
  lay(BINARY_DIR "/bin/PvwIO.dll", "PvwIO.dll");
  const ComponentFile alone(dir.Native("PvwIO.dll").string());
  World world;
  Instance instance(alone);
  EXPECT_EQ(instance.Connect(world.host), E_FAIL);
  EXPECT_THAT(world.host.Transcript(), IsEmpty()) << "the steps aren't registered either";
  EXPECT_EQ(instance.Disconnect(), E_FAIL);
  lay(BINARY_DIR "/bin/PvwIO.dll", "PvwIOExtRes.dll");
  EXPECT_EQ(instance.Connect(world.host), E_FAIL);
  std::string path = dir.Path();
  std::ranges::transform(path, path.begin(), [](unsigned char c) { return std::tolower(c); });
  path += "\\PvwIOExtRes.dll";
  EXPECT_THAT(user, ElementsAre("message: Error loading resource DLL " + path,
                                "message: Dll " + path + " is not a resources Dll"));
  lay(BINARY_DIR "/bin/PvwIOExtRes.dll", "PvwIOExtRes.dll");
  EXPECT_EQ(instance.Connect(world.host), S_OK) << "mended";
}

TEST_F(ConnectTest, InstancesAtOneHostShareItsTargetUntilTheLastGoes) {
  World world;
  Instance one(file), two(file);
  EXPECT_EQ(one.Connect(world.host), S_OK);
  world.LoadSession();
  world.OpenView();
  EXPECT_EQ(two.Connect(world.host), S_OK);
  one.Fire(EVENT_TARGET_CONNECTED);
  two.Fire(EVENT_TARGET_CONNECTED);
  world.Expand(0, 0);

  EXPECT_EQ(two.Disconnect(), S_OK);
  two.Destroy();
  world.TakeReads();
  one.Fire(EVENT_MEMORY_CHANGED);
  EXPECT_EQ(world.TakeReads(), 1u);
}

TEST_F(ConnectTest, EndsWhateverItIsInTheMidstOfWhenItDisconnects) {
  World world;
  platform::WriteWholeFile(world.dir.Path("device.io"),
                           "[Modules]\nFileVersion=2\nModule1=PORT\nModule2=BAD\n[PORT]\nreg0=P0\nreg1=P1\n"
                           "[P0]\nid=PDATA 0xFF0000 B A H\n[P1]\nid=PDIR 0xFF0001 B A H NONE\n"
                           "[BAD]\ndep=GONE 0 1\n");
  Instance instance(file);
  const auto send = [&](std::uint32_t command) {
    platform::SendMessage(world.Pane(0), platform::WM_COMMAND, command);
  };
  const platform::ScopedBstr device(world.host.device_path);
  constexpr std::uint32_t kRefresh = 32817, kLock = 32826;
  const std::map<std::string, std::function<void()>> kOperations = {
      {"opens", [&] { world.OpenView(); }},
      {"loads a session", [&] { world.LoadSession(); }},
      {"opens rows", [&] { world.OpenView(), world.PaneCount() != 0 ? world.Expand(0, 0) : void(); }},
      {"shows news", [&] { instance.Fire(EVENT_MEMORY_CHANGED); }},
      {"is told to update", [&] { world.Update()->UpdateWindow(); }},
      {"refreshes", [&] { send(kRefresh); }},
      {"unlocks", [&] { send(kLock), world.Server()->LoadIOFile(device.Get(), 0), send(kLock); }}};
  for (const auto& [what, operation] : kOperations) {
    for (int number = 0, left = -1; left < 0; ++number) {
      SCOPED_TRACE("event " + std::to_string(number) + " while it " + what);
      EXPECT_EQ(instance.Connect(world.host), S_OK);
      instance.Fire(EVENT_TARGET_CONNECTED);
      world.Keep("IOSelection IOWnd0", "{PORT?{PDATA?}}");
      const bool opens = what == "opens" || what == "opens rows";
      world.Keep("IOCtrlViews", opens ? "0" : "1");
      world.Keep("IOWnd0Exp0", "1");
      if (what != "loads a session") world.LoadSession();
      left = number;
      const std::function<void()> event = [&] {
        if (left >= 0 && left-- == 0) instance.Disconnect();
      };
      std::function<void()> line = [&] { meanwhile = line, event(); };
      meanwhile = line;
      world.host.during["ReadDirect"] = event;
      operation();
      world.host.during.clear();
      meanwhile = {};
      instance.Disconnect();
      ExpectNothingLeft(world);
    }
  }
}

using DialogTest = test::ConnectedTest;

TEST_F(DialogTest, EndsWithTheConnectionToTheHostThatItAsks) {
  for (const bool destroy : {false, true}) {
    for (const bool edits : {true, false}) {
      world.OpenView();
      world.Expand(0, 0);
      display.Give(platform::DialogAnswer{{[&](platform::CDialog& dialog) {
        destroy ? instance.Destroy() : static_cast<void>(instance.Disconnect());
        EXPECT_FALSE(dialog.Exists());
      }}});
      if (edits) {
        world.Grid(0)->SelectItem(world.Grid(0)->GetItemAtRow(1));
        platform::SetFocus(world.Grid(0)->GetHandle());
        platform::user::PressKey(platform::VK_RETURN);
      } else {
        platform::SendMessage(world.Pane(0), platform::WM_COMMAND, 32773);
      }
      EXPECT_THAT(world.host.Asked("WriteBlock"), IsEmpty());
      if (destroy) break;
      instance.Connect(world.host);
      instance.Fire(EVENT_TARGET_CONNECTED);
      world.LoadSession();
    }
  }
  EXPECT_THAT(user, ElementsAre("dialog: Edit PDATA at H'00FF0000", "dialog: Set I/O File",
                                "dialog: Edit PDATA at H'00FF0000"));
}

TEST_F(ConnectTest, LetsTheComplaintAboutAWrongDebuggerLibraryOut) {
  World world;
  Instance instance(file);
  instance.Connect(world.host);
  world.host.Offer(IID_IQDebugPlatform);
  world.host.library =
      platform::LoadLibrary(platform::FromNativePath(BINARY_DIR "/bin/debugger_library_lacking.dll").value());
  const QEventRecord connected{EVENT_TARGET_CONNECTED, 0};
  EXPECT_THROW(instance.Component().OnEvent(&connected), const char*);
  EXPECT_THAT(user, Contains(testing::HasSubstr("LOAD_HasAsmInfo")));
  instance.Fire(EVENT_TARGET_DISCONNECTED);
  EXPECT_EQ(instance.Disconnect(), S_OK);
  platform::FreeLibrary(world.host.library);
}

// A host that lacks something. Each run is a whole life, with the view open, refreshed and saved.

void LiveWith(const ComponentFile& file, World& world) {
  Instance instance(file);
  EXPECT_EQ(instance.Connect(world.host), S_OK);
  instance.Fire(EVENT_TARGET_CONNECTED);
  world.Keep("IOCtrlViews", "1");
  world.Keep("IOSelection IOWnd0", "{PORT?{PDATA?}}");
  world.Keep("IOWnd0Exp0", "1");
  world.LoadSession();
  world.OpenView();
  world.Expand(0, 0);
  instance.Fire(EVENT_MEMORY_CHANGED);
  if (world.Stepping() != nullptr) world.Stepping()->OnStepEnd();
  if (world.Update() != nullptr) world.Update()->UpdateWindow();
  if (world.Format() != nullptr) {
    const platform::ScopedBstr face("Courier New");
    world.Format()->SetDefaultFont(face.Get(), 9);
    world.Format()->SetTextColours(1, 0);
  }
  if (world.Server() != nullptr) {
    const platform::ScopedBstr path(world.host.device_path);
    world.Server()->LoadIOFile(path.Get(), 0);
  }
  world.SaveSession();
  instance.Fire(EVENT_TARGET_DISCONNECTED);
  EXPECT_EQ(instance.Disconnect(), S_OK);
}

TEST_F(ConnectTest, ToAHostThatLacksAnyOneServiceOrFailsAnyOneCallOrAllOfAKindGoesWell) {
  World whole;
  LiveWith(file, whole);
  ExpectNothingLeft(whole);
  for (const GUID& service : whole.host.Services()) {
    for (const bool as_null : {false, true}) {
      SCOPED_TRACE(platform::GuidText(service) + (as_null ? " is null" : " is missing"));
      World world;
      as_null ? world.host.GiveNull(service) : world.host.Lack(service);
      LiveWith(file, world);
      // The manager of menus takes back what the manager of toolbars has added.
      if (service != IID_IQUiManager) ExpectNothingLeft(world);
    }
  }
  EXPECT_GT(whole.host.Transcript().size(), 200u);
  std::map<std::string, int> seen;
  for (const std::string& call : whole.host.Transcript()) {
    const std::string operation = call.substr(0, call.find(' '));
    const bool takes_back = operation.starts_with("Remove") || operation == "FreeOwnerId";
    const int before = seen[operation]++;
    for (const bool all : {false, true}) {
      if (all && before > 0) continue;
      SCOPED_TRACE(call + (all ? ", and all others" : ", call " + std::to_string(before)));
      World world;
      for (int i = 0; i < before; ++i) world.host.FailNext(operation, S_OK);
      all ? world.host.FailAll(operation) : world.host.FailNext(operation);
      LiveWith(file, world);
      if (!takes_back && call != "GetService IQUiManager") ExpectNothingLeft(world);
    }
  }
}

}  // namespace
}  // namespace pvw
