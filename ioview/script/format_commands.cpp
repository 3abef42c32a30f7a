// The host's format dialog: one font, and items with two colours.

#include <string>

#include "ioview/script/command_table.h"
#include "platform/base/bstr.h"
#include "platform/base/variant.h"

namespace ioview {

namespace {

using platform::ScopedBstr;

constexpr const char* kTextItem = "Text";

pvw::IQFormatViewClient2& FormatClient(ScriptRun& run) {
  pvw::IQFormatViewClient2* const client = run.Component().Format();
  if (client == nullptr) throw ScriptError("the component has no format view client");
  return *client;
}

void Colours(ScriptRun& run, Arguments& arguments) {
  const std::string item = arguments.Left() > 2 ? arguments.Text() : kTextItem;
  const std::int32_t text = arguments.SignedNumber();
  const std::int32_t back = arguments.SignedNumber();
  arguments.End();
  const ScopedBstr name(item);
  FormatClient(run).SetItemColours(name.Get(), text, back);
}

void Font(ScriptRun& run, Arguments& arguments) {
  const ScopedBstr face(arguments.Text());
  const std::int32_t size = arguments.SignedNumber();
  arguments.End();
  FormatClient(run).SetFont(face.Get(), size);
}

// "TEXT BACK"; "none" for a name that the view has no item for, which leaves both numbers alone.
std::string ItemColours(pvw::IQFormatViewClient2& client, const std::string& item) {
  const ScopedBstr name(item);
  std::int32_t text = 0, back = 0;
  client.GetItemColours(name.Get(), &text, &back);
  std::int32_t other_text = ~text, other_back = ~back;
  client.GetItemColours(name.Get(), &other_text, &other_back);
  if (text != other_text || back != other_back) return "none";
  return std::to_string(text) + ' ' + std::to_string(back);
}

std::string ItemNames(pvw::IQFormatViewClient2& client) {
  platform::ScopedVariant items;
  client.GetFormatItems(items.Receive());
  std::string names;
  if ((items.Get().vt & platform::VT_ARRAY) == 0) return names;
  for (std::size_t i = 0; i < platform::SafeArrayGetCount(items.Get().parray); ++i) {
    const platform::VARIANT* const item = platform::SafeArrayVariantAt(items.Get().parray, i);
    if (item == nullptr || item->vt != platform::VT_BSTR) continue;
    names += (names.empty() ? "" : ", ") + platform::BstrText(item->bstrVal);
  }
  return names;
}

void ShowFormat(ScriptRun& run) {
  pvw::IQFormatViewClient2& client = FormatClient(run);
  ScopedBstr name, face;
  std::int32_t size = 0;
  client.GetFormatName(name.Receive());
  client.GetFont(face.Receive(), &size);
  run.out.Line("name: " + name.Text());
  run.out.Line("items: " + ItemNames(client));
  run.out.Line("font: " + face.Text() + ' ' + std::to_string(size));
  run.out.Line("text: " + ItemColours(client, kTextItem));
}

void Format(ScriptRun& run, Arguments& arguments) {
  const bool show = arguments.Choice<bool>({{"show", true}, {"item", false}});
  const std::string item = show ? "" : arguments.Text();
  arguments.End();
  if (show) return ShowFormat(run);
  run.out.Line(ItemColours(FormatClient(run), item));
}

constexpr ScriptCommand kCommands[] = {
    {"colours", "[ITEM] TEXT BACK", Colours},
    {"font", "FACE SIZE", Font},
    {"format", "show, or item NAME", Format},
};

}  // namespace

std::span<const ScriptCommand> FormatCommands() {
  return kCommands;
}

}  // namespace ioview
