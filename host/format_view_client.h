// What the host's format dialog calls on the view: one font, and named items with a foreground and a
// background colour. A colour is an index into the table of logical colours, item names count with their
// case.
#pragma once

#include "host/unknown.h"
#include "platform/base/bstr.h"
#include "platform/base/variant.h"

namespace pvw {

class IQFormatViewClient : public IQUnknown {
 public:
  virtual platform::Status GetFormatName(platform::BSTR* name) = 0;
  // The reserved ones have no known meaning and are answered with 0.
  virtual platform::Status Reserved5() = 0;
  virtual platform::Status Reserved6(std::uint32_t value) = 0;
  // The names of the items: type VT_ARRAY | VT_BSTR, each element a VARIANT of VT_BSTR.
  virtual platform::Status GetFormatItems(platform::VARIANT* items) = 0;
  // `value` isn't used. The outputs stay as they are when the current name is no item.
  virtual platform::Status GetCurrentItemColours(std::uint32_t value, std::int32_t* fg, std::int32_t* bk) = 0;
  virtual platform::Status GetFont(platform::BSTR* face, std::int32_t* size) = 0;
  virtual platform::Status SetItemColours(platform::BSTR item, std::int32_t fg, std::int32_t bk) = 0;
  virtual platform::Status SetFont(platform::BSTR face, std::int32_t size) = 0;
  virtual platform::Status SetDefaultFont(platform::BSTR face, std::int32_t size) = 0;
  virtual platform::Status SetTextColours(std::int32_t fg, std::int32_t bk) = 0;
  virtual platform::Status SetSelectedTextColours(std::int32_t fg, std::int32_t bk) = 0;
  virtual platform::Status Reserved15() = 0;

 protected:
  ~IQFormatViewClient() = default;
};

// The second version can be asked for any item by its name. The component offers this version alone.
class IQFormatViewClient2 : public IQFormatViewClient {
 public:
  // The outputs stay as they are for an unknown name.
  virtual platform::Status GetItemColours(platform::BSTR item, std::int32_t* fg, std::int32_t* bk) = 0;

 protected:
  ~IQFormatViewClient2() = default;
};

}  // namespace pvw
