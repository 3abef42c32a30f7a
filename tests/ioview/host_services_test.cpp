// The host's root object, how its services are logged and taken away, and those that speak of the workspace.

#include "ioview/host/host_services.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "host/host_ptr.h"
#include "ioview/host/service_table.h"

namespace ioview {
namespace {

using platform::BSTR;
using platform::ScopedBstr;
using testing::ElementsAre;
using testing::IsEmpty;

class HostServicesTest : public testing::Test {
 protected:
  template <typename Interface>
  Interface* Get(const platform::GUID& id) {
    return pvw::GetService<Interface>(&host.root, id);
  }

  UserSettings settings;
  HostServices host{settings};
};

std::vector<std::string> Elements(const platform::ScopedVariant& list) {
  std::vector<std::string> texts;
  if (list.Get().vt != (platform::VT_ARRAY | platform::VT_BSTR)) return {"not a list"};
  for (std::size_t i = 0; BSTR* text = platform::SafeArrayBstrAt(list.Get().parray, i); ++i) {
    texts.push_back(platform::BstrText(*text));
  }
  return texts;
}

TEST_F(HostServicesTest, EveryServiceAnswersUnderItsOwnIdAndCanBeTakenAway) {
  for (const ServiceEntry& entry : kServices) {
    SCOPED_TRACE(entry.name);
    const auto ask = [&](void* before) {
      void* out = before;
      const platform::Status status = entry.id == pvw::IID_IQHostFrame
                                          ? host.root.QueryInterface(&entry.id, &out)
                                          : host.root.GetService(&entry.id, &out);
      return std::pair(status, out);
    };
    EXPECT_EQ(ask(nullptr).second == nullptr, entry.id == pvw::IID_IQDebugPlatform);
    ASSERT_TRUE(host.SetAvailability(platform::GuidText(entry.id), Availability::kOn));
    auto* service = static_cast<pvw::IQUnknown*>(ask(nullptr).second);
    ASSERT_NE(service, nullptr);
    void* face = nullptr;
    EXPECT_EQ(service->QueryInterface(&entry.id, &face), platform::S_OK);
    EXPECT_EQ(face, service);
    EXPECT_EQ(service->QueryInterface(&pvw::CLSID_PvwIO, &face), platform::E_NOINTERFACE);

    EXPECT_TRUE(host.SetAvailability(entry.name, Availability::kFail));
    auto* failing = static_cast<pvw::IQUnknown*>(ask(nullptr).second);
    ASSERT_NE(failing, nullptr);
    EXPECT_EQ(failing->QueryInterface(&entry.id, &face), platform::E_FAIL);
    EXPECT_TRUE(host.SetAvailability(entry.name, Availability::kNull));
    EXPECT_EQ(ask(&host), std::pair(platform::S_OK, static_cast<void*>(nullptr)));
    EXPECT_TRUE(host.SetAvailability(entry.name, Availability::kOff));
    EXPECT_EQ(ask(nullptr), std::pair(platform::E_NOINTERFACE, static_cast<void*>(nullptr)));
    // What was given before goes on working.
    EXPECT_EQ(service->QueryInterface(&entry.id, &face), platform::S_OK);
  }
  void* kept = &host;
  EXPECT_EQ(host.root.GetService(&pvw::IID_IQMemoryMap, &kept), platform::E_NOINTERFACE);
  EXPECT_EQ(kept, &host);
  EXPECT_FALSE(host.SetAvailability("IQErrorReporter", Availability::kOff));
  EXPECT_FALSE(host.SetAvailability("{00000000-0000-0000-0000-000000000000}", Availability::kOff));
}

TEST_F(HostServicesTest, AFailingServiceTouchesNothing) {
  auto* before = Get<pvw::IQDataManager>(pvw::IID_IQDataManager);
  for (const char* name : {"IQDataManager", "IQSettings", "IQUiManager", "IQTargetMemory",
                           "IQCommandRecorder", "IQPathService", "IQDebugSession"}) {
    host.SetAvailability(name, Availability::kFail);
  }
  host.recorder.Switch(true);
  host.session.SetRunning(true);
  const ScopedBstr text("x");
  std::uint8_t byte = 7;
  std::uint32_t owner = 7;
  ScopedBstr out;
  auto* data = Get<pvw::IQDataManager>(pvw::IID_IQDataManager);
  auto* memory = Get<pvw::IQTargetMemory>(pvw::IID_IQTargetMemory);
  auto* recorder = Get<pvw::IQCommandRecorder>(pvw::IID_IQCommandRecorder);
  const platform::Status statuses[] = {
      data->SetSessionValue(text.Get(), text.Get(), text.Get(), text.Get(), text.Get()),
      Get<pvw::IQSettings>(pvw::IID_IQSettings)->WriteInt(text.Get(), 1),
      Get<pvw::IQUiManager>(pvw::IID_IQUiManager)->AllocOwnerId(&owner),
      memory->WriteMemory(0, 0, 1, &byte),
      memory->ReadDirect(0, 0, 1, &byte),
      recorder->IsActive(),
      recorder->AddCommand(text.Get()),
      Get<pvw::IQDebugSession>(pvw::IID_IQDebugSession)->IsTargetRunning(),
      Get<pvw::IQPathService>(pvw::IID_IQPathService)->GetCurrentProject(out.Receive())};
  EXPECT_THAT(statuses, testing::Each(platform::E_FAIL));
  EXPECT_EQ(byte, 7);
  EXPECT_EQ(owner, 7u);
  EXPECT_EQ(out.Get(), nullptr);
  EXPECT_THAT(host.recorder.Take(), IsEmpty());
  EXPECT_EQ(host.session_values.Changes() + settings.Changes(), 0u);
  EXPECT_EQ(before->SetSessionValue(text.Get(), text.Get(), text.Get(), text.Get(), text.Get()),
            platform::S_OK);
  EXPECT_EQ(host.session_values.Changes(), 1u);
}

TEST_F(HostServicesTest, LogsEveryOperationWithWhatCameIn) {
  const ScopedBstr text("c:\\a \"b\"\nc");
  const ScopedBstr none;
  std::uint8_t bytes[4] = {};
  std::uint32_t number = 3;
  std::int64_t value = 0;
  platform::HWND window = 99;
  const platform::VARIANT list;
  pvw::QEventRecord event;
  ScopedBstr out;
  struct {
    std::function<void()> call;
    const char* line;
  } const cases[] = {
      {[&] { host.root.FireEvent(&event); }, "IQComponentHost.FireEvent(*)"},
      {[&] { Get<void>(pvw::IID_IQHostExtra); },
       "IQComponentHost.GetService({A8495753-DE13-11D3-8AF5-00AA0026624A})"},
      {[&] { host.root.AddClient(&pvw::IID_IQTestClient, &host); },
       "IQComponentHost.AddClient({7E75765A-6BE4-4EC5-99B1-DB0B95E0E40B}, *)"},
      {[&] { host.memory.ReadDirect(0xFF0000, 0xFF0003, 4, bytes); },
       "IQTargetMemory.ReadDirect(16711680, 16711683, 4, *)"},
      {[&] { host.blocks.WriteBlock(0, 3, 0xFFFFFFFF, 4, bytes); },
       "IQBlockMemory.WriteBlock(0, 3, 4294967295, 4, *)"},
      {[&] { host.errors.GetErrorText(platform::E_FAIL, out.Receive()); },
       "IQErrorService.GetErrorText(-2147467259)"},
      {[&] { host.addresses.EvaluateExpression(text.Get(), 16, &value); },
       "IQAddressFormat.EvaluateExpression(\"c:\\a \"b\"\\nc\", 16)"},
      {[&] { host.numbers.FormatByte(200, 16, out.Receive()); }, "IQNumberFormat.FormatByte(200, 16)"},
      {[&] { host.settings_service.WriteSectionInt(none.Get(), text.Get(), -1); },
       "IQSettings.WriteSectionInt(\"\", \"c:\\a \"b\"\\nc\", -1)"},
      {[&] { host.ui_manager.AllocOwnerId(&number); }, "IQUiManager.AllocOwnerId()"},
      {[&] { host.ui_manager.AddCommandSink(3, &pvw::CLSID_PvwIO, window); },
       "IQUiManager.AddCommandSink(3, {80D58C53-E47D-11D3-8AF5-00AA0026624A}, *)"},
      {[&] {
         host.ui_manager.AddMenu(nullptr, 201, 3, &pvw::CLSID_PvwIO, &list, &list, &list, nullptr, none.Get(),
                                 1);
       },
       "IQUiManager.AddMenu(*, 201, 3, {80D58C53-E47D-11D3-8AF5-00AA0026624A}, *, *, *, \"\", \"\", 1)"},
      {[&] {
         host.toolbars.FindDockableWindow(none.Get(), none.Get(), nullptr, 0x10, 0xE81E, &window, nullptr);
       },
       "IQToolbarManager.FindDockableWindow(\"\", \"\", *, 16, 59422)"},
      {[&] { host.toolbars.ShowToolbar(window, -1); }, "IQToolbarManager.ShowToolbar(*, -1)"},
  };
  host.calls.Switch(true);
  for (const auto& row : cases) {
    row.call();
    EXPECT_THAT(host.calls.Take(), ElementsAre(row.line));
  }
  // A service that fails is called all the same, and one behind another has its own name.
  host.session.failing.IsTargetRunning();
  void* reporter = nullptr;
  host.addresses.QueryInterface(&pvw::IID_IQErrorReporter, &reporter);
  static_cast<pvw::IQErrorReporter*>(reporter)->GetErrorText(1, out.Receive());
  EXPECT_THAT(host.calls.Take("IQErrorReporter"), ElementsAre("IQErrorReporter.GetErrorText(1)"));
  EXPECT_THAT(host.calls.Take(), IsEmpty());
  host.session.failing.IsTargetRunning();
  EXPECT_THAT(host.calls.Take(), ElementsAre("IQDebugSession.IsTargetRunning()"));
  host.calls.Switch(false);
  host.session.IsTargetRunning();
  EXPECT_THAT(host.calls.Take(), IsEmpty());
}

TEST(CallLog, DropsTheOldestCallsThatNobodyTakes) {
  CallLog calls;
  const std::string half(CallLog::kMostBytes / 2, 'x');
  for (const char* name : {"1", "2", "3"}) calls.Add("S", name + half.substr(1));
  const std::vector<std::string> kept = calls.Take();
  ASSERT_EQ(kept.size(), 2u);
  EXPECT_TRUE(kept.front().starts_with("S.2"));
}

TEST_F(HostServicesTest, ADirectoryIsThatOfTheOpenWorkspaceOnly) {
  host.workspace = {"shop", "lamp", "Debug", "c:\\w"};
  const ScopedBstr shop("shop"), lamp("lamp"), debug("Debug"), other("other");
  ScopedBstr text;
  std::uint32_t open = 1;
  EXPECT_EQ(host.paths.GetWorkspaceDirectory(shop.Get(), text.Receive()), platform::S_OK);
  EXPECT_EQ(text.Text(), "c:\\w");
  EXPECT_EQ(host.paths.GetConfigurationDirectory(shop.Get(), lamp.Get(), debug.Get(), text.Receive()),
            platform::S_OK);
  EXPECT_EQ(text.Text(), "c:\\w\\lamp\\Debug");
  host.workspace_info.GetConfigurationKey(shop.Get(), lamp.Get(), debug.Get(), text.Receive());
  EXPECT_EQ(text.Text(), "Debug");

  EXPECT_EQ(host.paths.GetConfigurationDirectory(shop.Get(), other.Get(), debug.Get(), text.Receive()),
            platform::E_FAIL);
  EXPECT_EQ(text.Get(), nullptr);

  host.workspace.directory = "c:\\";
  host.paths.GetConfigurationDirectory(shop.Get(), lamp.Get(), debug.Get(), text.Receive());
  EXPECT_EQ(text.Text(), "c:\\lamp\\Debug");

  host.workspace = {};
  EXPECT_EQ(host.paths.IsWorkspaceOpen(&open), platform::S_OK);
  EXPECT_EQ(open, 0u);
  EXPECT_EQ(host.paths.GetCurrentConfiguration(text.Receive()), platform::S_OK);
  EXPECT_EQ(text.Text(), "");
  EXPECT_EQ(host.paths.GetWorkspaceDirectory(ScopedBstr("").Get(), text.Receive()), platform::E_FAIL);
}

TEST_F(HostServicesTest, CustomPlaceholdersFillThreeQuartersOfTheirList) {
  host.workspace.name = "shop";
  host.placeholders.SetGlobal({"A", "1", "first"});
  host.placeholders.SetGlobal({"B", "2", "second"});
  host.placeholders.SetGlobal({"A", "3", "again"});
  host.placeholders.SetOfWorkspace({"C", "4", ""});

  platform::ScopedVariant list;
  EXPECT_EQ(host.placeholders.GetGlobalPlaceholders(list.Receive()), platform::S_OK);
  EXPECT_THAT(Elements(list), ElementsAre("again", "A", "3", "second", "B", "2", "", ""));
  EXPECT_EQ(host.placeholders.GetWorkspacePlaceholders(ScopedBstr("shop").Get(), list.Receive()),
            platform::S_OK);
  EXPECT_THAT(Elements(list), ElementsAre("", "C", "4", ""));
  EXPECT_EQ(host.placeholders.GetWorkspacePlaceholders(ScopedBstr("x").Get(), list.Receive()),
            platform::E_FAIL);
  EXPECT_EQ(list.Get().vt, platform::VT_EMPTY);
}

TEST_F(HostServicesTest, SettingsAndSessionValuesKeepTheirPlacesAndTypes) {
  const ScopedBstr section("S"), a("A"), b("B"), c("C");
  host.settings_service.WriteInt(a.Get(), -5);
  host.settings_service.WriteString(b.Get(), section.Get());
  host.settings_service.WriteSectionInt(section.Get(), a.Get(), 7);
  host.settings_service.WriteString(a.Get(), b.Get());
  std::int32_t number = 99;
  ScopedBstr text;
  EXPECT_EQ(host.settings_service.ReadInt(a.Get(), &number), platform::E_FAIL);
  EXPECT_EQ(number, 99);
  EXPECT_EQ(host.settings_service.ReadSectionInt(section.Get(), a.Get(), &number), platform::S_OK);
  EXPECT_EQ(number, 7);
  EXPECT_EQ(host.settings_service.ReadSectionInt(section.Get(), b.Get(), &number), platform::E_FAIL);
  EXPECT_EQ(host.settings_service.ReadString(c.Get(), text.Receive()), platform::E_FAIL);
  EXPECT_EQ(host.settings_service.ReadString(a.Get(), text.Receive()), platform::S_OK);
  EXPECT_EQ(text.Text(), "B");
  ASSERT_EQ(settings.Entries().size(), 3u);
  EXPECT_EQ(settings.Entries()[0].key, u"A");
  EXPECT_EQ(settings.Entries()[2].section, u"S");

  DataManager& data = host.data_manager;
  data.SetSessionValue(a.Get(), b.Get(), c.Get(), b.Get(), c.Get());
  data.SetSessionValue(a.Get(), b.Get(), c.Get(), a.Get(), c.Get());
  data.SetSessionValue(a.Get(), b.Get(), c.Get(), b.Get(), a.Get());
  data.SetSessionValue(a.Get(), b.Get(), c.Get(), b.Get(), a.Get());
  EXPECT_EQ(host.session_values.Changes(), 3u);
  EXPECT_EQ(host.session_values.Entries({u"A", u"B", u"C"}).front().key, u"B");
  EXPECT_EQ(data.GetSessionValue(a.Get(), b.Get(), c.Get(), b.Get(), text.Receive()), platform::S_OK);
  EXPECT_EQ(text.Text(), "A");
  // The same key of another configuration.
  EXPECT_EQ(data.GetSessionValue(a.Get(), b.Get(), nullptr, b.Get(), text.Receive()), platform::E_FAIL);
}

}  // namespace
}  // namespace ioview
