#include "resources/strings.h"

#include "resources/ids.h"

namespace pvw {

namespace {

constexpr platform::StringResource kStrings[] = {
    {IDS_COLUMN_NAME, "Name"},
    {IDS_COLUMN_ADDRESS, "Address"},
    {IDS_COLUMN_VALUE, "Value"},
    {IDS_COLUMN_ACCESS, "Access"},

    // Status line and tool tip of the commands.
    {ID_ALLOW_DOCKING, "Allow window docking"},
    {ID_HIDE_WINDOW, "Hide window"},
    {ID_PRINT, "Print IO view\nPrint"},
    {ID_LOAD_IO_FILE, "Load IO File\nLoad..."},
    {ID_SAVE_TO_FILE, "Save To File\nSave"},
    {ID_SHOW_TOOLBAR, "Display Toolbar"},
    {ID_CUSTOMIZE_TOOLBAR, "Open Customise toolbar dialog"},
    {ID_REFRESH, "Refresh IO View\nRefresh"},
    {ID_SELECT_REGISTER, "Select Register\nSelect"},
    {ID_FIND, "Find IO Name or Address\nFind"},
    {ID_FIND_KEY, "Find IO Name or Address\nFind"},
    {ID_FIND_NEXT, "Find the next IO Name or address that matches the search text\nFind Next"},
    {ID_FIND_NEXT_KEY, "Find the next IO Name or address that matches the search text\nFind Next"},
    {ID_LOCK_REFRESH, "Lock Refresh IO View\nLockRefresh"},

    {IDS_VIEW_TITLE, "IO"},
    {IDS_TOOLBAR_TITLE, "Cpu"},
    {IDS_ITEM_TEXT, "Text"},
    {IDS_FIND_TITLE, "Find"},
    {IDS_TEST_DESCRIPTION, "Compares IO registers"},

    {IDS_NOT_EDITABLE, "%1 Not Editable"},
    {IDS_NOT_EDITABLE_CAPTION, "Edit %1"},
    {IDS_EDIT_CAPTION, "Edit %s at %s"},
    {IDS_VALUE_TOO_BIG, "The entered value is too big.\nMust be less than or equal to %s."},

    {IDS_FILE_MISSING, "File \"%1\" does not exist.\nPlease enter an existing file."},
    {IDS_ENTRY_EMPTY, "This entry is empty, please supply entry."},
    {IDS_SAVE_FAILED, "Error saving file"},
    {IDS_FILE_MODIFIED, "The IO File has been modified. Please reload it again."},

    {IDS_REGISTER_MISSING, "Error in I/O file: register description '%1' not found."},
    {IDS_BITFIELDS_MISSING, "Error in I/O file: bit field description of register '%1' not found."},
    {IDS_BAD_SIZE,
     "'%1' Register Size format is wrong.\n"
     "The Register Size format must be only B (Byte),W(Word) or L(Long Word)."},
    {IDS_BAD_ADDRESS,
     "'%1' Register Address format is wrong.\n"
     "The Register Address format must be with prefix 0x.Eg:0x0000FFFF."},
    {IDS_BAD_RADIX,
     "'%1' Register output format is wrong.\n"
     "The Register output format value must be H(Hexadecimal),D(Decimal) or B(Binary)"},
    {IDS_BAD_ABSOLUTE,
     "'%1' Absolute format is wrong.\n"
     "The Absolute flag format must be I, A or R.\n"},

    {IDS_FIND_EMPTY, "Please Enter Register Name or Address."},
    {IDS_NAME_NOT_FOUND, "Register Name not found"},
    {IDS_ADDRESS_NOT_FOUND, "Register Address Not found"},
    {IDS_NO_MORE_NAME, "No More Register Name found"},
    {IDS_NO_MORE_ADDRESS, "No More Register Address Found"},

    {IDS_DIFFERENT_ADDRESS, "Failed at %s, address is different: Src = %s, Dest = %s"},
    {IDS_DIFFERENT_SIZE, "Failed at %s, register size is different: Src = %s, Dest = %s"},
    {IDS_DIFFERENT_VALUE, "Failed at %s, register value is different: Src = %s, Dest = %s"},
    {IDS_NOT_FOUND, "%s is not found in %s"},
    {IDS_DIFFERENT, "Failed at %s"},

    {IDS_KEY_MODULES, "Modules"},
    {IDS_KEY_MODULE, "Module"},
    {IDS_KEY_BASE_ADDRESS, "BaseAddress"},
    {IDS_KEY_FILE_VERSION, "FileVersion"},
    {IDS_KEY_NAME, "name"},
    {IDS_KEY_BIT, "bit"},
    {IDS_KEY_LEN, "len"},
    {IDS_KEY_DEP, "dep"},
    {IDS_KEY_REG, "reg"},
    {IDS_KEY_ADDR, "addr"},
    {IDS_KEY_ABS, "abs"},
    {IDS_KEY_DEP_REG, "dep_reg"},
    {IDS_KEY_DEP_BIT, "dep_bit"},
    {IDS_KEY_DEP_VAL, "dep_val"},
    {IDS_KEY_PROTECTION, "PROTECTION"},
    {IDS_KEY_ID, "id"},
    {IDS_KEY_BITFIELD, "bitfield"},
    {IDS_KEY_RELADDR, "reladdr"},
    {IDS_KEY_SIZE, "size"},
    {IDS_KEY_RADIX, "radix"},
    {IDS_KEY_READ, "read"},
    {IDS_KEY_WRITE, "write"},

    // Labels of the placeholders, as the menu of the path field shows them.
    {IDS_PLACEHOLDER_FIRST, "ERROR"},
    {IDS_PLACEHOLDER_FIRST + 1, "File path + name"},
    {IDS_PLACEHOLDER_FIRST + 2, "File name"},
    {IDS_PLACEHOLDER_FIRST + 3, "File leaf"},
    {IDS_PLACEHOLDER_FIRST + 4, "File directory"},
    {IDS_PLACEHOLDER_FIRST + 5, "File extension"},
    {IDS_PLACEHOLDER_FIRST + 6, "QBN installation directory"},
    {IDS_PLACEHOLDER_FIRST + 7, "Temporary directory"},
    {IDS_PLACEHOLDER_FIRST + 8, "Workspace directory"},
    {IDS_PLACEHOLDER_FIRST + 9, "Workspace name"},
    {IDS_PLACEHOLDER_FIRST + 10, "Project directory"},
    {IDS_PLACEHOLDER_FIRST + 11, "Project name"},
    {IDS_PLACEHOLDER_FIRST + 12, "Configuration name"},
    {IDS_PLACEHOLDER_FIRST + 13, "Configuration directory"},
    {IDS_PLACEHOLDER_FIRST + 14, "Toolchain install directory"},
    {IDS_PLACEHOLDER_FIRST + 15, "Command directory"},
    {IDS_PLACEHOLDER_FIRST + 16, "Command executable name"},
    {IDS_PLACEHOLDER_FIRST + 17, "Windows directory"},
    {IDS_PLACEHOLDER_FIRST + 18, "Windows system directory"},
    {IDS_PLACEHOLDER_FIRST + 19, "Line number"},
    {IDS_PLACEHOLDER_FIRST + 20, "Tool directory"},
    {IDS_PLACEHOLDER_FIRST + 21, "QBN HWND"},
    {IDS_PLACEHOLDER_FIRST + 22, "QBN ID"},
    {IDS_PLACEHOLDER_FIRST + 23, "Time"},
    {IDS_PLACEHOLDER_FIRST + 24, "Date, text"},
    {IDS_PLACEHOLDER_FIRST + 25, "Date, day/month/year"},
    {IDS_PLACEHOLDER_FIRST + 26, "Date, month/day/year"},
    {IDS_PLACEHOLDER_FIRST + 27, "Date, year/month/day"},
    {IDS_PLACEHOLDER_FIRST + 28, "User name"},
    {IDS_PLACEHOLDER_FIRST + 29, "Cursor position"},
    {IDS_PLACEHOLDER_FIRST + 30, "Current page to be printed"},
    {IDS_PLACEHOLDER_FIRST + 31, "Align following text to the left"},
    {IDS_PLACEHOLDER_FIRST + 32, "Centre align the following text"},
    {IDS_PLACEHOLDER_FIRST + 33, "Align following text to the right"},
};

}  // namespace

std::span<const platform::StringResource> ComponentStrings() {
  return kStrings;
}

}  // namespace pvw
