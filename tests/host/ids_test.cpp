#include "host/ids.h"

#include <gtest/gtest.h>

#include "host/events.h"

namespace pvw {
namespace {

// What hosts in use answer to. A wrong digit would go unnoticed elsewhere: the component and the fake host
// would share it. These differ in few digits from their neighbours, or are what a host asks the component
// for.
TEST(Ids, AreTheOnesThatHostsKnow) {
  const std::pair<platform::GUID, const char*> rows[] = {
      {IID_IQRegistryClient, "{A8495740-DE13-11D3-8AF5-00AA0026624A}"},
      {IID_IQComponent, "{A8495747-DE13-11D3-8AF5-00AA0026624A}"},
      {IID_IQDebugTargetInfo, "{8B1C7AA0-2E92-11D5-A5D8-0000E2257DCD}"},
      {IID_IQDebugMemoryOptions, "{928CA700-2DCB-11D5-A5D8-0000E2257DCD}"},
      {IID_IQNumberFormat, "{A8495743-DE13-11D3-8AF5-00AA0026624A}"},
      {IID_IQDebugger, "{A849574A-DE13-11D3-8AF5-00AA0026624A}"},
      {IID_IQHostCommon, "{A8495752-DE13-11D3-8AF5-00AA0026624A}"},
      {IID_IQHostExtra, "{A8495753-DE13-11D3-8AF5-00AA0026624A}"},
      {IID_IQDebugPlatform, "{D52AD687-2196-4D88-B911-DA73B50E3831}"},
      {IID_IQDebugLibrary, "{D52AD687-2196-4D88-B911-DA73B50E3932}"},
      {CLSID_PvwIO, "{80D58C53-E47D-11D3-8AF5-00AA0026624A}"},
      {CLSID_PaneAccelerators, "{199947C1-7B7A-11D5-B0A1-00C04F689A0E}"},
      {EVENT_MEMORY_CHANGED, "{2289D0FB-1242-11D5-9690-00B0D0167C2F}"},
      {EVENT_VIEW_REFRESH_1, "{2289D11D-1242-11D5-9690-00B0D0167C2F}"},
      {EVENT_VIEW_REFRESH_2, "{2289D125-1242-11D5-9690-00B0D0167C2F}"},
      {EVENT_TARGET_CONNECTED, "{2289D12E-1242-11D5-9690-00B0D0167C2F}"},
      {EVENT_TARGET_DISCONNECTED, "{2289D130-1242-11D5-9690-00B0D0167C2F}"},
      {IID_IQUpdateWindowClient, "{05E4387F-B032-464F-A0C1-B9CCB3B51054}"},
      {IID_IQWorkSpaceClient, "{56836F34-D734-11D4-BE83-00C04F794B59}"},
      {IID_IQWorkSpaceClient2, "{453547D2-008B-44A3-BDF4-48B86CBCFB44}"},
      {IID_IQFormatViewClient, "{F522876D-2102-4D08-BF62-3DC10C23575B}"},
      {IID_IQFormatViewClient2, "{F4B80273-DE68-4433-B25A-774FB15B2676}"},
      {IID_IQIOServer, "{34D95821-3D72-4D49-9565-E0C428C56CD0}"},
  };
  for (const auto& [id, text] : rows) EXPECT_EQ(platform::GuidText(id), text);
}

}  // namespace
}  // namespace pvw
