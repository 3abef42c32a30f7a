// Pictures drawn as text: one character a pixel, one string a row.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace pvw {

// 0xAARRGGBB of a character; a character without a meaning doesn't compile.
consteval std::uint32_t PixelOf(char c) {
  switch (c) {
    case '.':
      return 0x00000000;  // transparent
    case '#':
      return 0xFF303030;  // outline
    case 'g':
      return 0xFF808080;
    case 'l':
      return 0xFFC8CCD0;
    case 'w':
      return 0xFFFCFCFC;  // paper: not quite the white that masks the row images
    case 'W':
      return 0xFFFFFFFF;
    case 'b':
      return 0xFF1F4E9C;
    case 'c':
      return 0xFF8FB8E8;
    case 'r':
      return 0xFFD02020;
    case 'y':
      return 0xFFF2C84B;
    case 'o':
      return 0xFFA87412;
    case 'n':
      return 0xFF1E8A3C;
    default:
      throw "no such pixel";
  }
}

template <std::size_t kWidth, std::size_t kHeight>
using Picture = std::array<std::uint32_t, kWidth * kHeight>;

// Every row has `kWidth` characters.
template <std::size_t kWidth, std::size_t kHeight>
consteval Picture<kWidth, kHeight> Draw(const std::string_view (&rows)[kHeight]) {
  Picture<kWidth, kHeight> picture{};
  for (std::size_t y = 0; y < kHeight; ++y) {
    if (rows[y].size() != kWidth) throw "a row of another width";
    for (std::size_t x = 0; x < kWidth; ++x) picture[y * kWidth + x] = PixelOf(rows[y][x]);
  }
  return picture;
}

// Pictures side by side.
template <std::size_t kWidth, std::size_t kHeight, std::size_t kCount>
consteval Picture<kWidth * kCount, kHeight> Strip(
    const std::array<Picture<kWidth, kHeight>, kCount>& pictures) {
  Picture<kWidth * kCount, kHeight> strip{};
  for (std::size_t i = 0; i < kCount; ++i) {
    for (std::size_t y = 0; y < kHeight; ++y) {
      for (std::size_t x = 0; x < kWidth; ++x) {
        strip[(y * kCount + i) * kWidth + x] = pictures[i][y * kWidth + x];
      }
    }
  }
  return strip;
}

}  // namespace pvw
