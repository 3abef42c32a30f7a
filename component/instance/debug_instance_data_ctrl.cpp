#include "component/instance/debug_instance_data_ctrl.h"

#include <cstdlib>

#include "platform/gui/display.h"

namespace pvw {

namespace {

// Height in pixels; a font that was asked for in points has the one that it shows with.
std::uint32_t HeightOf(const platform::LOGFONT& font) {
  if (font.height != 0) return static_cast<std::uint32_t>(std::abs(font.height));
  platform::Display* display = platform::GetDisplay();
  return display != nullptr ? static_cast<std::uint32_t>(display->TextExtent(font, "X").cy) : 0;
}

}  // namespace

const platform::MessageTable CPvwDebugInstanceDataCtrl::kMessages{
    &CPvwInstanceDataCtrl::kMessages,
    {
        platform::OnMessage<&CPvwDebugInstanceDataCtrl::OnCreate>(platform::WM_CREATE),
        platform::OnMessage<&CPvwDebugInstanceDataCtrl::OnMeasureItem>(platform::WM_MEASUREITEM),
    }};

platform::LRESULT CPvwDebugInstanceDataCtrl::OnCreate(const platform::MSG& msg) {
  const platform::LRESULT result = Default(msg, kMessages);
  font.CreateFontIndirect({11, 8, 0, "Courier New"});
  return result;
}

platform::LRESULT CPvwDebugInstanceDataCtrl::OnMeasureItem(const platform::MSG& msg) {
  const platform::LRESULT result = Default(msg, kMessages);
  reinterpret_cast<platform::MEASUREITEM*>(msg.lParam)->itemHeight = HeightOf(font.Get());
  return result;
}

}  // namespace pvw
