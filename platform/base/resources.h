// Resources by type and id. Stands in for the system's resource section of a module.
//
// A module's resources are constant tables in C++. A static ResourceRegistration announces them as the
// module loads and takes them back as it goes. A lookup asks the current resource module first and the
// component second. Ids of strings and accelerators are the product's own; texts are UTF-8 there and come
// out in the ANSI code page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/base/module.h"

namespace platform {

struct StringResource {
  std::uint32_t id;
  const char* text;
};

// One key of an accelerator table.
struct AcceleratorKey {
  std::uint8_t modifiers;  // kAccelControl and so on
  std::uint16_t key;       // upper-case letter or digit, or a virtual key code
  std::uint32_t command;
};
inline constexpr std::uint8_t kAccelShift = 4;
inline constexpr std::uint8_t kAccelControl = 8;
inline constexpr std::uint8_t kAccelAlt = 16;

struct AcceleratorResource {
  std::uint32_t id;
  std::span<const AcceleratorKey> keys;
};

// An item of a menu: a command with its id, a submenu with its items, or, without a text, a separator.
struct MenuItemResource {
  const char* text = nullptr;
  std::uint32_t id = 0;
  const MenuItemResource* items = nullptr;
  std::size_t item_count = 0;
  std::span<const MenuItemResource> Items() const { return {items, item_count}; }
};
struct MenuResource {
  std::uint32_t id;
  std::span<const MenuItemResource> items;
};

// Words of 16 bits: version (1), width and height of a button's picture, number of items, then the items'
// commands; 0 is a separator. The pictures are the bitmap of the same id.
struct ToolbarResource {
  std::uint32_t id;
  std::span<const std::uint16_t> words;
};

// Pixels are 0xAARRGGBB, row by row from the top.
struct PictureResource {
  std::uint32_t id;
  int width;
  int height;
  std::span<const std::uint32_t> pixels;
};

struct DialogTemplate;  // platform/gui/dialog_template.h
struct DialogResource {
  std::uint32_t id;
  const DialogTemplate* dialog;
};

// One module's resources. The tables must live as long as the registration.
struct ResourceTables {
  std::span<const StringResource> strings;
  std::span<const AcceleratorResource> accelerators;
  std::span<const MenuResource> menus = {};
  std::span<const ToolbarResource> toolbars = {};
  std::span<const DialogResource> dialogs = {};
  std::span<const PictureResource> bitmaps = {};
  std::span<const PictureResource> icons = {};
  std::span<const PictureResource> cursors = {};
};

enum class ResourceRole { kComponent, kLibrary };

// Belongs to the module that `tables` lies in.
class ResourceRegistration {
 public:
  ResourceRegistration(const ResourceTables& tables, ResourceRole role);
  ResourceRegistration(const ResourceRegistration&) = delete;
  ResourceRegistration& operator=(const ResourceRegistration&) = delete;
  ~ResourceRegistration();

 private:
  const ResourceTables* tables_;
};

// The module that lookups ask first; null: the component alone.
void SetResourceModule(HMODULE module);
HMODULE ResourceModule();

// A text of the string table; empty when no module has the id.
std::string LoadString(std::uint32_t id);
// The keys of an accelerator table of `module` alone; nothing when it has none of that id.
std::optional<std::span<const AcceleratorKey>> LoadAccelerators(HMODULE module, std::uint32_t id);
// Of the resource module, else of the component; null when neither has the id.
const MenuResource* LoadMenu(std::uint32_t id);
const ToolbarResource* LoadToolbar(std::uint32_t id);
const DialogTemplate* LoadDialog(std::uint32_t id);
const PictureResource* LoadBitmap(std::uint32_t id);
const PictureResource* LoadIcon(std::uint32_t id);
const PictureResource* LoadCursor(std::uint32_t id);

}  // namespace platform
