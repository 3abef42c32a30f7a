// Every number by which code, resources and host speak of the same text, command or resource.
#pragma once

#include <cstdint>

namespace pvw {

// Commands. The host takes status line and tool tip of a command from the string with the command's own id,
// the two parts with a line feed between them.
inline constexpr std::uint32_t ID_ALLOW_DOCKING = 32768;
inline constexpr std::uint32_t ID_HIDE_WINDOW = 32769;
inline constexpr std::uint32_t ID_OPEN_IO_VIEW = 32770;
inline constexpr std::uint32_t ID_PRINT = 32771;
inline constexpr std::uint32_t ID_LOAD_IO_FILE = 32773;
inline constexpr std::uint32_t ID_SAVE_TO_FILE = 32774;
inline constexpr std::uint32_t ID_SHOW_TOOLBAR = 32777;
inline constexpr std::uint32_t ID_CUSTOMIZE_TOOLBAR = 32778;
inline constexpr std::uint32_t ID_REFRESH = 32817;
inline constexpr std::uint32_t ID_SELECT_REGISTER = 32819;
inline constexpr std::uint32_t ID_FIND = 32820;
inline constexpr std::uint32_t ID_FIND_NEXT = 32821;
inline constexpr std::uint32_t ID_LOCK_REFRESH = 32826;
// The same two commands as the keyboard sends them, under the pane's accelerator group.
inline constexpr std::uint32_t ID_FIND_KEY = 39507;
inline constexpr std::uint32_t ID_FIND_NEXT_KEY = 39512;
// Docking and hiding as any pane of the host has them.
inline constexpr std::uint32_t ID_PANE_ALLOW_DOCKING = 39532;
inline constexpr std::uint32_t ID_PANE_HIDE = 39533;

// Menus, toolbars, accelerators.
inline constexpr std::uint32_t IDM_FRAME = 201;
inline constexpr std::uint32_t IDM_PANE = 202;
inline constexpr std::uint32_t IDT_FRAME = 203;
inline constexpr std::uint32_t IDT_PANE = 204;
inline constexpr std::uint32_t IDA_FRAME = 9001;
inline constexpr std::uint32_t IDA_PANE = 1906;  // in the resource library only

// Dialogs.
inline constexpr std::uint32_t IDD_EDIT_MEMORY = 300;
inline constexpr std::uint32_t IDD_SET_IO_FILE = 9003;
inline constexpr std::uint32_t IDD_EDIT_TEST_DETAILS = 11001;
inline constexpr std::uint32_t IDD_SELECT_REGISTER = 11005;
inline constexpr std::uint32_t IDD_FIND = 11006;
inline constexpr std::uint32_t IDD_PROGRESS = 11007;

// Pictures and cursors.
inline constexpr std::uint32_t IDB_TEST_GROUP = 11003;
inline constexpr std::uint32_t IDB_ROW_IMAGES = 11004;
inline constexpr std::uint32_t IDI_PLACEHOLDER_ARROW = 109;
inline constexpr std::uint32_t IDC_DROP_NONE = 9002;
inline constexpr std::uint32_t IDC_DROP_MOVE = 9003;
inline constexpr std::uint32_t IDC_DROP_COPY = 9004;

// Column titles of the grid.
inline constexpr std::uint32_t IDS_COLUMN_NAME = 1000;
inline constexpr std::uint32_t IDS_COLUMN_ADDRESS = 1001;
inline constexpr std::uint32_t IDS_COLUMN_VALUE = 1002;
inline constexpr std::uint32_t IDS_COLUMN_ACCESS = 1003;

// Titles and names.
inline constexpr std::uint32_t IDS_VIEW_TITLE = 32790;
inline constexpr std::uint32_t IDS_TOOLBAR_TITLE = 32814;
inline constexpr std::uint32_t IDS_ITEM_TEXT = 32816;
inline constexpr std::uint32_t IDS_FIND_TITLE = 32914;
inline constexpr std::uint32_t IDS_TEST_DESCRIPTION = 32900;

// Editing. `%1` and `%s` stand for a name or a number.
inline constexpr std::uint32_t IDS_NOT_EDITABLE = 1004;
inline constexpr std::uint32_t IDS_NOT_EDITABLE_CAPTION = 1005;
inline constexpr std::uint32_t IDS_EDIT_CAPTION = 32772;
inline constexpr std::uint32_t IDS_VALUE_TOO_BIG = 32815;

// Files.
inline constexpr std::uint32_t IDS_FILE_MISSING = 2113;
inline constexpr std::uint32_t IDS_ENTRY_EMPTY = 2114;
inline constexpr std::uint32_t IDS_SAVE_FAILED = 32818;
inline constexpr std::uint32_t IDS_FILE_MODIFIED = 32915;

// Faults of a definition file.
inline constexpr std::uint32_t IDS_REGISTER_MISSING = 32806;
inline constexpr std::uint32_t IDS_BITFIELDS_MISSING = 32827;
inline constexpr std::uint32_t IDS_BAD_SIZE = 32906;
inline constexpr std::uint32_t IDS_BAD_ADDRESS = 32907;
inline constexpr std::uint32_t IDS_BAD_RADIX = 32908;
inline constexpr std::uint32_t IDS_BAD_ABSOLUTE = 32916;

// Searching.
inline constexpr std::uint32_t IDS_FIND_EMPTY = 32909;
inline constexpr std::uint32_t IDS_NAME_NOT_FOUND = 32910;
inline constexpr std::uint32_t IDS_ADDRESS_NOT_FOUND = 32911;
inline constexpr std::uint32_t IDS_NO_MORE_NAME = 32912;
inline constexpr std::uint32_t IDS_NO_MORE_ADDRESS = 32913;

// Differences that the test client reports.
inline constexpr std::uint32_t IDS_DIFFERENT_ADDRESS = 32901;
inline constexpr std::uint32_t IDS_DIFFERENT_SIZE = 32902;
inline constexpr std::uint32_t IDS_DIFFERENT_VALUE = 32903;
inline constexpr std::uint32_t IDS_NOT_FOUND = 32904;
inline constexpr std::uint32_t IDS_DIFFERENT = 32905;

// Sections and keys of a definition file.
inline constexpr std::uint32_t IDS_KEY_MODULES = 32791;
inline constexpr std::uint32_t IDS_KEY_MODULE = 32792;
inline constexpr std::uint32_t IDS_KEY_BASE_ADDRESS = 32793;
inline constexpr std::uint32_t IDS_KEY_FILE_VERSION = 32794;
inline constexpr std::uint32_t IDS_KEY_NAME = 32795;
inline constexpr std::uint32_t IDS_KEY_BIT = 32796;
inline constexpr std::uint32_t IDS_KEY_LEN = 32797;
inline constexpr std::uint32_t IDS_KEY_DEP = 32798;
inline constexpr std::uint32_t IDS_KEY_REG = 32799;
inline constexpr std::uint32_t IDS_KEY_ADDR = 32800;
inline constexpr std::uint32_t IDS_KEY_ABS = 32801;
inline constexpr std::uint32_t IDS_KEY_DEP_REG = 32802;
inline constexpr std::uint32_t IDS_KEY_DEP_BIT = 32803;
inline constexpr std::uint32_t IDS_KEY_DEP_VAL = 32804;
inline constexpr std::uint32_t IDS_KEY_PROTECTION = 32805;
inline constexpr std::uint32_t IDS_KEY_ID = 32807;
inline constexpr std::uint32_t IDS_KEY_BITFIELD = 32808;
inline constexpr std::uint32_t IDS_KEY_RELADDR = 32809;
inline constexpr std::uint32_t IDS_KEY_SIZE = 32810;
inline constexpr std::uint32_t IDS_KEY_RADIX = 32811;
inline constexpr std::uint32_t IDS_KEY_READ = 32812;
inline constexpr std::uint32_t IDS_KEY_WRITE = 32813;

// Label of the placeholder with index 0; the others follow in the order of their indices, up to index 33.
inline constexpr std::uint32_t IDS_PLACEHOLDER_FIRST = 50004;

}  // namespace pvw
