// Geometry, colours and the message record of the window layer. Stands in for the window system's basic
// types. Coordinates are pixels, y grows downwards; a rectangle's right and bottom lie outside it.
#pragma once

#include <algorithm>
#include <cstdint>

#include "platform/base/types.h"

namespace platform {

using UINT = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using COLORREF = std::uint32_t;  // 0x00BBGGRR

struct POINT {
  int x = 0;
  int y = 0;
  friend bool operator==(const POINT&, const POINT&) = default;
};

struct SIZE {
  int cx = 0;
  int cy = 0;
  friend bool operator==(const SIZE&, const SIZE&) = default;
};

struct RECT {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  bool IsEmpty() const { return right <= left || bottom <= top; }
  bool Contains(POINT p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
  RECT Intersect(const RECT& other) const {
    return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom)};
  }
  friend bool operator==(const RECT&, const RECT&) = default;
};

// One message to a window. `native` is the display's own event while that is handled, for a peer's default;
// `modifiers` (MK_SHIFT and so on) comes with input.
struct MSG {
  HWND hwnd = 0;
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
  void* native = nullptr;
  UINT modifiers = 0;
};

// A mouse message's position, in client coordinates, in its lParam.
constexpr LPARAM PointParam(POINT p) {
  return static_cast<LPARAM>(static_cast<std::uint64_t>(static_cast<std::uint32_t>(p.y)) << 32 |
                             static_cast<std::uint32_t>(p.x));
}
constexpr POINT ParamPoint(LPARAM value) {
  const auto bits = static_cast<std::uint64_t>(value);
  return {static_cast<int>(static_cast<std::uint32_t>(bits)),
          static_cast<int>(static_cast<std::uint32_t>(bits >> 32))};
}

}  // namespace platform
