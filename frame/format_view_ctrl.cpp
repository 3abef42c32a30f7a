#include "frame/format_view_ctrl.h"

#include "frame/controls/logical_colour.h"
#include "host/ids.h"

namespace pvw {

using platform::BSTR;
using platform::S_OK;
using platform::Status;

namespace {

constexpr const char* kItemText = "Text";
constexpr const char* kItemSelectedText = "Selected Text";

constexpr Status kNoFont = 1;
constexpr Status kOutOfMemory = static_cast<Status>(0x8007000Eu);

// The smallest number has no positive one and stays as it is.
std::int32_t AbsoluteOf(std::int32_t number) {
  const auto bits = static_cast<std::uint32_t>(number);
  return static_cast<std::int32_t>(number < 0 ? 0u - bits : bits);
}

}  // namespace

CPvwFormatViewCtrl::CPvwFormatViewCtrl(IQComponentHost* host, CUiRegistrar* registrar)
    : CUiCommandSink(host, registrar),
      m_textFg(ColourIndexFromName("SYSTEM")),
      m_textBk(ColourIndexFromName("SYSTEM")),
      m_selectedFg(ColourIndexFromName("HIGHLIGHT")),
      m_selectedBk(ColourIndexFromName("HIGHLIGHT")),
      m_items{kItemText} {
  m_font.CreateFontIndirect({11, 8, 0, "Courier New"});
}

Status CPvwFormatViewCtrl::QueryInterface(const platform::GUID* iid, void** out) {
  if (*iid == IID_IUnknown || *iid == IID_IQFormatViewClient || *iid == IID_IQFormatViewClient2) {
    *out = static_cast<IQFormatViewClient2*>(this);
    return S_OK;
  }
  *out = nullptr;
  return platform::E_NOINTERFACE;
}

Status CPvwFormatViewCtrl::GetFormatName(BSTR* name) {
  *name = platform::NewBstr("");
  return S_OK;
}

Status CPvwFormatViewCtrl::GetFormatItems(platform::VARIANT* items) {
  platform::SAFEARRAY* const array = platform::SafeArrayCreateVector(platform::VT_VARIANT, m_items.size());
  if (array == nullptr) return kOutOfMemory;
  for (std::size_t i = 0; i < m_items.size(); ++i) {
    platform::VARIANT* const element = platform::SafeArrayVariantAt(array, i);
    element->vt = platform::VT_BSTR;
    element->bstrVal = platform::NewBstr(m_items[i]);
  }
  items->vt = platform::VT_ARRAY | platform::VT_BSTR;
  items->parray = array;
  return S_OK;
}

Status CPvwFormatViewCtrl::GetCurrentItemColours(std::uint32_t, std::int32_t* fg, std::int32_t* bk) {
  ReadColours(m_currentItem, fg, bk);
  return S_OK;
}

Status CPvwFormatViewCtrl::GetItemColours(BSTR item, std::int32_t* fg, std::int32_t* bk) {
  ReadColours(platform::BstrText(item), fg, bk);
  return S_OK;
}

void CPvwFormatViewCtrl::ReadColours(const std::string& item, std::int32_t* fg, std::int32_t* bk) const {
  if (item == kItemText) {
    *fg = m_textFg;
    *bk = m_textBk;
  } else if (item == kItemSelectedText) {
    *fg = m_selectedFg;
    *bk = m_selectedBk;
  }
}

Status CPvwFormatViewCtrl::GetFont(BSTR* face, std::int32_t* size) {
  if (!m_font.Exists()) return kNoFont;
  *face = platform::NewBstr(m_font.Get().face);
  *size = AbsoluteOf(m_font.Get().height);
  return S_OK;
}

Status CPvwFormatViewCtrl::SetItemColours(BSTR item, std::int32_t fg, std::int32_t bk) {
  m_currentItem = platform::BstrText(item);
  if (m_currentItem == kItemText) {
    m_textFg = fg;
    m_textBk = bk;
  } else if (m_currentItem == kItemSelectedText) {
    m_selectedFg = fg;
    m_selectedBk = bk;
  }
  return S_OK;
}

Status CPvwFormatViewCtrl::SetFont(BSTR face, std::int32_t size) {
  m_font.CreateFontIndirect({size, 0, 0, platform::BstrText(face)});
  Send(platform::WM_SETFONT, 1, reinterpret_cast<platform::LPARAM>(&m_font));
  return S_OK;
}

Status CPvwFormatViewCtrl::SetDefaultFont(BSTR face, std::int32_t size) {
  return SetFont(face, size);
}

Status CPvwFormatViewCtrl::SetTextColours(std::int32_t fg, std::int32_t bk) {
  const platform::ScopedBstr item(kItemText);
  return SetItemColours(item.Get(), fg, bk);
}

Status CPvwFormatViewCtrl::SetSelectedTextColours(std::int32_t fg, std::int32_t bk) {
  const platform::ScopedBstr item(kItemSelectedText);
  return SetItemColours(item.Get(), fg, bk);
}

}  // namespace pvw
