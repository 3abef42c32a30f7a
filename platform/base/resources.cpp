#include "platform/base/resources.h"

#include <list>
#include <unordered_map>

#include "platform/base/text.h"

namespace platform {

namespace {

struct Registered {
  const ResourceTables* tables;
  const void* image;
  ResourceRole role;
  std::unordered_map<std::uint32_t, const char*> strings;
};

struct Registry {
  std::list<Registered> latest_first;
  HMODULE module = nullptr;
  const void* module_image = nullptr;
};

// Registrations come before `main` and go after it, in no order: the registry outlives them all.
Registry& TheRegistry() {
  static auto* const registry = new Registry;
  return *registry;
}

template <typename Wanted>
const char* FindString(std::uint32_t id, Wanted wanted) {
  for (const Registered& registered : TheRegistry().latest_first) {
    if (!wanted(registered)) continue;
    if (const auto found = registered.strings.find(id); found != registered.strings.end()) {
      return found->second;
    }
  }
  return nullptr;
}

// Of the resource module, else of the component.
template <typename Resource>
const Resource* Find(std::span<const Resource> ResourceTables::*table, std::uint32_t id) {
  const void* image = TheRegistry().module_image;
  const Resource* of_component = nullptr;
  for (const Registered& registered : TheRegistry().latest_first) {
    const bool first = image != nullptr && registered.image == image;
    if (!first && (of_component != nullptr || registered.role != ResourceRole::kComponent)) continue;
    for (const Resource& resource : registered.tables->*table) {
      if (resource.id != id) continue;
      if (first) return &resource;
      of_component = &resource;
      break;
    }
  }
  return of_component;
}

}  // namespace

ResourceRegistration::ResourceRegistration(const ResourceTables& tables, ResourceRole role)
    : tables_(&tables) {
  Registered registered{&tables, ImageOf(&tables), role, {}};
  registered.strings.reserve(tables.strings.size());
  for (const StringResource& string : tables.strings) registered.strings.emplace(string.id, string.text);
  TheRegistry().latest_first.push_front(std::move(registered));
}

ResourceRegistration::~ResourceRegistration() {
  std::list<Registered>& list = TheRegistry().latest_first;
  for (auto at = list.begin(); at != list.end(); ++at) {
    if (at->tables == tables_) {
      list.erase(at);
      return;
    }
  }
}

void SetResourceModule(HMODULE module) {
  // The image is looked up here: later the module may be gone, and then nothing is found in it.
  TheRegistry().module = module;
  TheRegistry().module_image = ModuleImage(module);
}

HMODULE ResourceModule() {
  return TheRegistry().module;
}

std::string LoadString(std::uint32_t id) {
  const void* image = TheRegistry().module_image;
  const char* text = nullptr;
  if (image != nullptr) {
    text = FindString(id, [image](const Registered& registered) { return registered.image == image; });
  }
  if (text == nullptr) {
    text = FindString(
        id, [](const Registered& registered) { return registered.role == ResourceRole::kComponent; });
  }
  return text != nullptr ? FromUtf8(text) : std::string();
}

std::optional<std::span<const AcceleratorKey>> LoadAccelerators(HMODULE module, std::uint32_t id) {
  const void* image = ModuleImage(module);
  if (image == nullptr) return std::nullopt;
  for (const Registered& registered : TheRegistry().latest_first) {
    if (registered.image != image) continue;
    for (const AcceleratorResource& accelerator : registered.tables->accelerators) {
      if (accelerator.id == id) return accelerator.keys;
    }
  }
  return std::nullopt;
}

const MenuResource* LoadMenu(std::uint32_t id) {
  return Find(&ResourceTables::menus, id);
}
const ToolbarResource* LoadToolbar(std::uint32_t id) {
  return Find(&ResourceTables::toolbars, id);
}
const DialogTemplate* LoadDialog(std::uint32_t id) {
  const DialogResource* found = Find(&ResourceTables::dialogs, id);
  return found != nullptr ? found->dialog : nullptr;
}
const PictureResource* LoadBitmap(std::uint32_t id) {
  return Find(&ResourceTables::bitmaps, id);
}
const PictureResource* LoadIcon(std::uint32_t id) {
  return Find(&ResourceTables::icons, id);
}
const PictureResource* LoadCursor(std::uint32_t id) {
  return Find(&ResourceTables::cursors, id);
}

}  // namespace platform
