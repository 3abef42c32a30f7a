#include "resources/dialogs.h"

#include "resources/ids.h"

namespace pvw {

namespace {

const platform::DialogResource kDialogs[] = {
    {IDD_EDIT_MEMORY, &kEditMemoryDialog},
};

}  // namespace

std::span<const platform::DialogResource> ComponentDialogs() {
  return kDialogs;
}

}  // namespace pvw
