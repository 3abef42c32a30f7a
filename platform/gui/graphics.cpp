#include "platform/gui/graphics.h"

#include <algorithm>
#include <cstddef>

namespace platform {

void CImageList::Create(int width, int height, int count, std::span<const std::uint32_t> pixels,
                        COLORREF mask) {
  *this = CImageList();
  if (width <= 0 || height <= 0 || count <= 0) return;
  const auto columns = static_cast<std::size_t>(width);
  const std::size_t stride = columns * static_cast<std::size_t>(count);
  if (pixels.size() < stride * static_cast<std::size_t>(height)) return;
  m_width = width;
  m_height = height;
  m_count = count;
  m_pixels.reserve(stride * static_cast<std::size_t>(height));
  const std::uint32_t transparent = (mask & 0xFF) << 16 | (mask & 0xFF00) | (mask >> 16 & 0xFF);
  for (std::size_t image = 0; image < static_cast<std::size_t>(count); ++image) {
    for (std::size_t row = 0; row < static_cast<std::size_t>(height); ++row) {
      for (const std::uint32_t pixel : pixels.subspan(row * stride + image * columns, columns)) {
        m_pixels.push_back((pixel & 0xFFFFFF) == transparent ? 0 : pixel);
      }
    }
  }
}

std::span<const std::uint32_t> CImageList::GetImage(int index) const {
  if (index < 0 || index >= m_count) return {};
  const std::size_t size = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
  return std::span(m_pixels).subspan(static_cast<std::size_t>(index) * size, size);
}

}  // namespace platform
