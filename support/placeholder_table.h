// The fixed names of the placeholders `$(NAME)`, by index.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pvw {

// The numbers that hosts, dialogs and lists of allowed placeholders use.
enum PlaceholderIndex : std::int32_t {
  kPlaceholderUnknown = -1,
  kPlaceholderError,
  kPlaceholderFullFile,
  kPlaceholderFileName,
  kPlaceholderFileLeaf,
  kPlaceholderFileDir,
  kPlaceholderExtension,
  kPlaceholderQbnDir,
  kPlaceholderTempDir,
  kPlaceholderWorkspDir,
  kPlaceholderWorkspName,
  kPlaceholderProjDir,
  kPlaceholderProjectName,
  kPlaceholderConfigName,
  kPlaceholderConfigDir,
  kPlaceholderTcInstall,
  kPlaceholderExeDir,
  kPlaceholderExeName,
  kPlaceholderWinDir,
  kPlaceholderWinSysDir,
  kPlaceholderLine,
  kPlaceholderToolDir,
  kPlaceholderQbnHwnd,
  kPlaceholderQbnId,
  kPlaceholderTime,
  kPlaceholderDateText,
  kPlaceholderDateDmy,
  kPlaceholderDateMdy,
  kPlaceholderDateYmd,
  kPlaceholderUser,
  kPlaceholderCursor,
  kPlaceholderPageNo,
  kPlaceholderLeft,
  kPlaceholderCentre,
  kPlaceholderRight,
  kPlaceholderUserInput,
  kPlaceholderDeviceDetails,
  kPlaceholderCount,
};

// The index of a name as it stands between the brackets, long or short and in exactly this case. Every name
// that begins with "userinput" or "ui", in any case, is kPlaceholderUserInput. The short names TD and PN
// stand for TEMPDIR and PROJECTNAME. kPlaceholderUnknown for any other.
PlaceholderIndex FindPlaceholderIndex(std::string_view name);

// The label for a menu; "ERROR" outside 1 to 35.
std::string GetPlaceholderLabel(std::int32_t index);
// The long name, with `$(` and `)` around it where asked for; "ERROR", bare, outside 1 to 35.
std::string GetPlaceholderText(std::int32_t index, bool bracketed);

}  // namespace pvw
