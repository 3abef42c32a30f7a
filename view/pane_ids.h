// Numbers that the files of the pane share.
#pragma once

#include "platform/gui/types.h"

namespace pvw {

// The grid as a child of the pane.
inline constexpr platform::UINT kTreeId = 200;

// Columns.
inline constexpr int kNameColumn = 0;
inline constexpr int kAddressColumn = 1;
inline constexpr int kValueColumn = 2;
inline constexpr int kAccessColumn = 3;

// Pictures of rows.
inline constexpr int kClosedFolder = 0;
inline constexpr int kOpenFolder = 1;
inline constexpr int kPage = 2;
inline constexpr int kCrossedOutPage = 3;

}  // namespace pvw
