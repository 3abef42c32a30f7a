#include "resources/menus.h"

#include <cstdint>
#include <iterator>

#include "resources/ids.h"

namespace pvw {

namespace {

using platform::MenuItemResource;

constexpr MenuItemResource kSeparator{};

constexpr MenuItemResource kCpuMenu[] = {
    {"&IO\tCtrl+I", ID_OPEN_IO_VIEW},
};
constexpr MenuItemResource kViewMenu[] = {
    {"CPU", 0, kCpuMenu, std::size(kCpuMenu)},
};
constexpr MenuItemResource kFrameMenu[] = {
    {"&View", 0, kViewMenu, std::size(kViewMenu)},
};

constexpr MenuItemResource kPaneMenu[] = {
    {"&Refresh", ID_REFRESH},
    {"Loc&k Refresh", ID_LOCK_REFRESH},
    kSeparator,
    {"&Load IO File...", ID_LOAD_IO_FILE},
    {"S&elect IO Register...", ID_SELECT_REGISTER},
    kSeparator,
    {"&Print", ID_PRINT},
    {"&Save To File...", ID_SAVE_TO_FILE},
    kSeparator,
    {"&Find...\tCtrl+F", ID_FIND},
    {"Find &Next\tF3", ID_FIND_NEXT},
    kSeparator,
    {"Toolbar display", ID_SHOW_TOOLBAR},
    {"Customize toolbar...", ID_CUSTOMIZE_TOOLBAR},
    kSeparator,
    {"Allow Docking", ID_ALLOW_DOCKING},
    {"Hide", ID_HIDE_WINDOW},
};

constexpr platform::MenuResource kMenus[] = {
    {IDM_FRAME, kFrameMenu},
    {IDM_PANE, kPaneMenu},
};

// Version, width, height, count, commands.
constexpr std::uint16_t kFrameToolbar[] = {1, 16, 15, 1, ID_OPEN_IO_VIEW};
constexpr std::uint16_t kPaneToolbar[] = {1,
                                          16,
                                          15,
                                          8,
                                          ID_REFRESH,
                                          ID_LOCK_REFRESH,
                                          ID_LOAD_IO_FILE,
                                          ID_PRINT,
                                          ID_SAVE_TO_FILE,
                                          ID_SELECT_REGISTER,
                                          ID_FIND,
                                          ID_FIND_NEXT};

constexpr platform::ToolbarResource kToolbars[] = {
    {IDT_FRAME, kFrameToolbar},
    {IDT_PANE, kPaneToolbar},
};

}  // namespace

std::span<const platform::MenuResource> ComponentMenus() {
  return kMenus;
}

std::span<const platform::ToolbarResource> ComponentToolbars() {
  return kToolbars;
}

}  // namespace pvw
