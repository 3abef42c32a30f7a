// What the host's format dialog works on: the font of a view and the colours of its kinds of text.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "frame/ui_command_sink.h"
#include "host/format_view_client.h"
#include "platform/gui/graphics.h"

namespace pvw {

// A colour is an index into the table of logical colours; any number is kept as it comes. There are two
// items, "Text" and "Selected Text"; the host is offered the first alone and may ask for both.
class CPvwFormatViewCtrl : public CUiCommandSink, public IQFormatViewClient2 {
 public:
  CPvwFormatViewCtrl(IQComponentHost* host, CUiRegistrar* registrar);

  platform::Status QueryInterface(const platform::GUID* iid, void** out) override;
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }
  // The empty name; a view has one.
  platform::Status GetFormatName(platform::BSTR* name) override;
  platform::Status Reserved5() override { return platform::S_OK; }
  platform::Status Reserved6(std::uint32_t) override { return platform::S_OK; }
  platform::Status GetFormatItems(platform::VARIANT* items) override;
  platform::Status GetCurrentItemColours(std::uint32_t value, std::int32_t* fg, std::int32_t* bk) override;
  // The size is the height in pixels. Without a font 1, and the outputs stay as they are.
  platform::Status GetFont(platform::BSTR* face, std::int32_t* size) override;
  // Any name becomes the current one; another than the two items' stores no colour.
  platform::Status SetItemColours(platform::BSTR item, std::int32_t fg, std::int32_t bk) override;
  // `size` is the height in pixels.
  platform::Status SetFont(platform::BSTR face, std::int32_t size) override;
  // These go through SetFont and SetItemColours of the object's own class.
  platform::Status SetDefaultFont(platform::BSTR face, std::int32_t size) override;
  platform::Status SetTextColours(std::int32_t fg, std::int32_t bk) override;
  platform::Status SetSelectedTextColours(std::int32_t fg, std::int32_t bk) override;
  platform::Status Reserved15() override { return platform::S_OK; }
  platform::Status GetItemColours(platform::BSTR item, std::int32_t* fg, std::int32_t* bk) override;

 protected:
  platform::CFont m_font;
  std::int32_t m_textFg;
  std::int32_t m_textBk;
  std::int32_t m_selectedFg;
  std::int32_t m_selectedBk;
  std::string m_currentItem;         // as SetItemColours last gave it
  std::vector<std::string> m_items;  // what the host is offered

 private:
  void ReadColours(const std::string& item, std::int32_t* fg, std::int32_t* bk) const;
};

}  // namespace pvw
