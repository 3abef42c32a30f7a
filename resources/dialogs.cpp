#include "resources/dialogs.h"

#include "resources/ids.h"

namespace pvw {

namespace {

const platform::DialogResource kDialogs[] = {
    {IDD_EDIT_MEMORY, &kEditMemoryDialog}, {IDD_SELECT_REGISTER, &kSelectRegisterDialog},
    {IDD_PROGRESS, &kProgressDialog},      {IDD_FIND, &kFindDialog},
    {IDD_SET_IO_FILE, &kSetIOFileDialog},  {IDD_EDIT_TEST_DETAILS, &kEditTestDetailsDialog},
};

}  // namespace

std::span<const platform::DialogResource> ComponentDialogs() {
  return kDialogs;
}

}  // namespace pvw
