// Menus, toolbars and keys for the tests, in the module that the tests are linked into.
#pragma once

#include <cstdint>
#include <iterator>

#include "platform/base/resources.h"

namespace pvw::test {

inline constexpr std::uint32_t kMenu = 10, kEmptyMenu = 11, kDeepMenu = 12;
inline constexpr std::uint32_t kToolbar = 20, kCutToolbar = 22, kHeadlessToolbar = 23;
inline constexpr std::uint32_t kKeys = 30;

inline constexpr platform::MenuItemResource kInnermost[] = {{"C", 30003}};
inline constexpr platform::MenuItemResource kInner[] = {{"B", 30002}, {"Innermost", 0, kInnermost, 1}};
inline constexpr platform::MenuItemResource kOuter[] = {
    {"A", 30001}, {"Inner", 30009, kInner, std::size(kInner)}, {"D", 30004}};
inline constexpr platform::MenuItemResource kEdges[] = {{"below", 28671}, {"first", 28672}, {},
                                                        {"last", 61439},  {"above", 61440}, {"", 30000},
                                                        {nullptr, 30001}, {"id 0", 0},      {"twice", 28672}};
inline constexpr platform::MenuResource kMenus[] = {{kMenu, kEdges}, {kEmptyMenu, {}}, {kDeepMenu, kOuter}};

inline constexpr std::uint16_t kButtons[] = {1, 16, 15, 4, 32817, 0, 5, 32826};
inline constexpr std::uint16_t kCut[] = {1, 16, 15, 9, 32817, 32826};
inline constexpr std::uint16_t kNoHead[] = {1, 16};
inline constexpr platform::ToolbarResource kToolbars[] = {
    {kToolbar, kButtons}, {kCutToolbar, kCut}, {kHeadlessToolbar, kNoHead}};

inline constexpr platform::AcceleratorKey kKeyRows[] = {{platform::kAccelControl, 'F', 39507}, {0, 0x72, 5}};
inline constexpr platform::AcceleratorResource kAccelerators[] = {{kKeys, kKeyRows}};

inline const platform::ResourceTables kMenuWorld{
    .strings = {}, .accelerators = kAccelerators, .menus = kMenus, .toolbars = kToolbars};

}  // namespace pvw::test
