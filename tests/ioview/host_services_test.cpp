// The host's root object and the services that speak of the workspace, the device and the session.

#include "ioview/host/host_services.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/host_ptr.h"

namespace ioview {
namespace {

using platform::BSTR;
using platform::ScopedBstr;
using testing::ElementsAre;

std::vector<std::string> Elements(const platform::ScopedVariant& list) {
  std::vector<std::string> texts;
  if (list.Get().vt != (platform::VT_ARRAY | platform::VT_BSTR)) return {"not a list"};
  for (std::size_t i = 0; BSTR* text = platform::SafeArrayBstrAt(list.Get().parray, i); ++i) {
    texts.push_back(platform::BstrText(*text));
  }
  return texts;
}

TEST(ComponentHost, GivesEveryServiceByItsIdAndNoOther) {
  HostServices host;
  const platform::GUID* const given[] = {
      &pvw::IID_IQErrorService,   &pvw::IID_IQNumberFormat, &pvw::IID_IQAddressFormat,
      &pvw::IID_IQDebugSession,   &pvw::IID_IQDebugger,     &pvw::IID_IQTargetMemory,
      &pvw::IID_IQBlockMemory,    &pvw::IID_IQMemoryMap,    &pvw::IID_IQPathService,
      &pvw::IID_IQWorkspaceInfo,  &pvw::IID_IQDeviceInfo,   &pvw::IID_IQCustomPlaceholders,
      &pvw::IID_IQCommandRecorder};
  for (const platform::GUID* id : given) {
    auto* service = pvw::GetService<pvw::IQUnknown>(&host.root, *id);
    ASSERT_NE(service, nullptr) << platform::GuidText(*id);
    // The service answers under its own id with the very face that the register gave.
    void* face = nullptr;
    EXPECT_EQ(service->QueryInterface(id, &face), platform::S_OK) << platform::GuidText(*id);
    EXPECT_EQ(face, service) << platform::GuidText(*id);
    EXPECT_EQ(service->QueryInterface(&pvw::IID_IQDebugPlatform, &face), platform::E_NOINTERFACE);
  }
  // A service can be there as null, and can be taken away.
  host.root.Provide<pvw::IQPathService>(pvw::IID_IQPathService, nullptr);
  void* null = &host;
  EXPECT_EQ(host.root.GetService(&pvw::IID_IQPathService, &null), platform::S_OK);
  EXPECT_EQ(null, nullptr);
  host.root.Withdraw(pvw::IID_IQMemoryMap);
  void* kept = &host;
  EXPECT_EQ(host.root.GetService(&pvw::IID_IQMemoryMap, &kept), platform::E_NOINTERFACE);
  EXPECT_EQ(kept, &host);
}

TEST(PathService, NamesTheDirectoriesOfTheOpenWorkspace) {
  HostServices host;
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

  host.workspace = {};
  EXPECT_EQ(host.paths.IsWorkspaceOpen(&open), platform::S_OK);
  EXPECT_EQ(open, 0u);
  EXPECT_EQ(host.paths.GetCurrentConfiguration(text.Receive()), platform::S_OK);
  EXPECT_EQ(text.Text(), "");
  EXPECT_EQ(host.paths.GetWorkspaceDirectory(ScopedBstr("").Get(), text.Receive()), platform::E_FAIL);
}

TEST(CustomPlaceholders, FillThreeQuartersOfTheirList) {
  HostServices host;
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

}  // namespace
}  // namespace ioview
