// Every id that the component and its host know each other by.
#pragma once

#include "platform/base/guid.h"

namespace pvw {

// Interfaces that the component implements.
inline constexpr platform::GUID IID_IUnknown = platform::MakeGuid("{00000000-0000-0000-C000-000000000046}");
inline constexpr platform::GUID IID_IQRegistryClient =
    platform::MakeGuid("{A8495740-DE13-11D3-8AF5-00AA0026624A}");
inline constexpr platform::GUID IID_IQComponent =
    platform::MakeGuid("{A8495747-DE13-11D3-8AF5-00AA0026624A}");
inline constexpr platform::GUID IID_IQErrorReporter =
    platform::MakeGuid("{4BCBB0D1-1757-4741-9D84-D12924DC408B}");
inline constexpr platform::GUID IID_IQTestComponentGroup =
    platform::MakeGuid("{417F1D27-B5E8-498F-9CDC-19F84900B111}");
inline constexpr platform::GUID IID_IQSteppingClient =
    platform::MakeGuid("{F34E8D5C-3FC5-4EAF-8BB7-7C0C37D5AAA0}");
inline constexpr platform::GUID IID_IQUpdateWindowClient =
    platform::MakeGuid("{05E4387F-B032-464F-A0C1-B9CCB3B51054}");
inline constexpr platform::GUID IID_IQWorkSpaceClient =
    platform::MakeGuid("{56836F34-D734-11D4-BE83-00C04F794B59}");
inline constexpr platform::GUID IID_IQWorkSpaceClient2 =
    platform::MakeGuid("{453547D2-008B-44A3-BDF4-48B86CBCFB44}");
inline constexpr platform::GUID IID_IQFormatViewClient =
    platform::MakeGuid("{F522876D-2102-4D08-BF62-3DC10C23575B}");
inline constexpr platform::GUID IID_IQFormatViewClient2 =
    platform::MakeGuid("{F4B80273-DE68-4433-B25A-774FB15B2676}");
inline constexpr platform::GUID IID_IQIOServer = platform::MakeGuid("{34D95821-3D72-4D49-9565-E0C428C56CD0}");
inline constexpr platform::GUID IID_IQTestClient =
    platform::MakeGuid("{7E75765A-6BE4-4EC5-99B1-DB0B95E0E40B}");
inline constexpr platform::GUID IID_IQClientDetails =
    platform::MakeGuid("{06BC04ED-EF77-4D34-877E-B23BC5F0774F}");
inline constexpr platform::GUID IID_IQEnhancedClient =
    platform::MakeGuid("{703C74EA-9CFB-4045-AB43-083596F2B5DA}");

// Services of the host, given by IQComponentHost::GetService.
inline constexpr platform::GUID IID_IQDebugSession =
    platform::MakeGuid("{160415CE-14A7-11D6-80FC-00C04F68EAD7}");
inline constexpr platform::GUID IID_IQCustomPlaceholders =
    platform::MakeGuid("{8403CE5C-6C18-4EF5-89DB-F9E6205C0A3A}");
inline constexpr platform::GUID IID_IQDataManager =
    platform::MakeGuid("{0C6ED387-4E53-4FE4-B2C5-6D82B38A4046}");
inline constexpr platform::GUID IID_IQDeviceInfo =
    platform::MakeGuid("{334E9580-FDD0-11D4-8BBC-CAC01E84A971}");
inline constexpr platform::GUID IID_IQSettings = platform::MakeGuid("{374027C8-E512-4DB2-8531-38B08B323CF9}");
inline constexpr platform::GUID IID_IQMemoryMap =
    platform::MakeGuid("{3994E320-E972-11D5-8BC2-0004E2013C71}");
inline constexpr platform::GUID IID_IQBlockMemory =
    platform::MakeGuid("{A2E8A611-CC1E-4173-985E-E38024BD0EC1}");
inline constexpr platform::GUID IID_IQTargetMemory =
    platform::MakeGuid("{52E19F40-C937-11D5-8BC1-0004E2013C71}");
inline constexpr platform::GUID IID_IQPageHost = platform::MakeGuid("{77E9A101-574E-4BBF-86DE-BE89E0B5BCA5}");
inline constexpr platform::GUID IID_IQToolbarManager =
    platform::MakeGuid("{77142A87-2BD6-4D9B-90AC-1304A51BB980}");
inline constexpr platform::GUID IID_IQDebugTargetInfo =
    platform::MakeGuid("{8B1C7AA0-2E92-11D5-A5D8-0000E2257DCD}");
inline constexpr platform::GUID IID_IQDebugMemoryOptions =
    platform::MakeGuid("{928CA700-2DCB-11D5-A5D8-0000E2257DCD}");
inline constexpr platform::GUID IID_IQDebugExtra =
    platform::MakeGuid("{914F4C74-D760-11D4-940A-00C04F68EB57}");
inline constexpr platform::GUID IID_IQErrorService =
    platform::MakeGuid("{90EFE761-0B7C-11D6-8BC2-0004E2013C71}");
inline constexpr platform::GUID IID_IQUiManager =
    platform::MakeGuid("{A7157579-B694-4F6F-B01F-9AC41F0D499C}");
inline constexpr platform::GUID IID_IQNumberFormat =
    platform::MakeGuid("{A8495743-DE13-11D3-8AF5-00AA0026624A}");
inline constexpr platform::GUID IID_IQDebugger = platform::MakeGuid("{A849574A-DE13-11D3-8AF5-00AA0026624A}");
inline constexpr platform::GUID IID_IQHostCommon =
    platform::MakeGuid("{A8495752-DE13-11D3-8AF5-00AA0026624A}");
inline constexpr platform::GUID IID_IQHostExtra =
    platform::MakeGuid("{A8495753-DE13-11D3-8AF5-00AA0026624A}");
inline constexpr platform::GUID IID_IQPathService =
    platform::MakeGuid("{A538CBA2-D5B7-11D4-BE81-00C04F794B59}");
inline constexpr platform::GUID IID_IQAddressFormat =
    platform::MakeGuid("{AFFBE6B9-BD14-4950-BBD0-1EC28CC48800}");
inline constexpr platform::GUID IID_IQHostFrame =
    platform::MakeGuid("{BEAF1680-E31D-11D5-80EE-00C04F68EAD7}");
inline constexpr platform::GUID IID_IQCpuRegisters =
    platform::MakeGuid("{BFA8B2C0-E306-11D4-8BBC-444553540000}");
inline constexpr platform::GUID IID_IQBreakpoints =
    platform::MakeGuid("{C6CB7C2E-01BD-11D5-80BD-00C04F68EAD7}");
inline constexpr platform::GUID IID_IQDebugPlatform =
    platform::MakeGuid("{D52AD687-2196-4D88-B911-DA73B50E3831}");
inline constexpr platform::GUID IID_IQDebugLibrary =
    platform::MakeGuid("{D52AD687-2196-4D88-B911-DA73B50E3932}");
inline constexpr platform::GUID IID_IQWorkspaceInfo =
    platform::MakeGuid("{D2D08F5A-4600-4590-B4C0-0695720D9AE5}");
inline constexpr platform::GUID IID_IQUiExtra = platform::MakeGuid("{DB9960B8-2821-4536-BC23-6375746ADF28}");
inline constexpr platform::GUID IID_IQDebugExtra2 =
    platform::MakeGuid("{EF5378F6-C12B-4BF6-9181-DB4BC8F0F54A}");
inline constexpr platform::GUID IID_IQCommandRecorder =
    platform::MakeGuid("{F0FC2120-D4A5-4A2D-AC02-B56864625CEA}");
inline constexpr platform::GUID IID_IQRegisterInfo =
    platform::MakeGuid("{58C8D333-F889-4B8D-A1A4-A7E9CB819CE9}");

// Class identities.
inline constexpr platform::GUID CLSID_PvwIO = platform::MakeGuid("{80D58C53-E47D-11D3-8AF5-00AA0026624A}");
// The accelerator group of a pane.
inline constexpr platform::GUID CLSID_PaneAccelerators =
    platform::MakeGuid("{199947C1-7B7A-11D5-B0A1-00C04F689A0E}");
// What every key of the session store begins with.
inline constexpr platform::GUID ID_SessionStore =
    platform::MakeGuid("{F866DB60-6186-11D5-8BBE-0004E2013C71}");
// The test client, to the host's test framework.
inline constexpr platform::GUID ID_TestClientIO =
    platform::MakeGuid("{385BE09B-CBD1-4D73-81FF-408BF4D12307}");

}  // namespace pvw
