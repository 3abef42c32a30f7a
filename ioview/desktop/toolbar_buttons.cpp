#include "ioview/desktop/toolbar_buttons.h"

#include <QtGui/qimage.h>
#include <QtGui/qpixmap.h>

#include <cstddef>

#include "platform/base/app.h"
#include "platform/base/resources.h"

namespace ioview {

namespace {

constexpr std::size_t kHeadWords = 4;
constexpr std::uint16_t kKnownVersion = 1;

QImage StripOf(std::uint32_t bitmap) {
  const platform::PictureResource* const strip = platform::LoadBitmap(bitmap);
  if (strip == nullptr || strip->width <= 0 || strip->height <= 0) return {};
  const auto size = static_cast<std::size_t>(strip->width) * static_cast<std::size_t>(strip->height);
  if (strip->pixels.size() < size) return {};
  const auto* const bytes = reinterpret_cast<const uchar*>(strip->pixels.data());
  return QImage(bytes, strip->width, strip->height, QImage::Format_ARGB32).copy();
}

}  // namespace

std::vector<ToolbarButton> LoadToolbarButtons(platform::HMODULE module, std::uint32_t toolbar) {
  const platform::ScopedResourceModule scope(module);
  const platform::ToolbarResource* const resource = platform::LoadToolbar(toolbar);
  if (resource == nullptr || resource->words.size() < kHeadWords || resource->words[0] != kKnownVersion) {
    return {};
  }
  const int width = resource->words[1];
  const int height = resource->words[2];
  const QImage strip = StripOf(toolbar);

  std::vector<ToolbarButton> buttons;
  int x = 0;
  for (const std::uint16_t command : resource->words.subspan(kHeadWords)) {
    if (buttons.size() == resource->words[3]) break;
    ToolbarButton& button = buttons.emplace_back(ToolbarButton{command});
    if (command == 0) continue;
    if (x + width <= strip.width()) {
      button.icon = QIcon(QPixmap::fromImage(strip.copy(x, 0, width, height)));
    }
    x += width;
  }
  return buttons;
}

}  // namespace ioview
