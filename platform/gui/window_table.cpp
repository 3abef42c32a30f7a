#include "platform/gui/window_table.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace platform::window_table {

namespace {

struct Slot {
  CWnd* window = nullptr;
  std::uint32_t generation = 1;
};

struct Table {
  std::vector<Slot> slots;
  std::vector<std::uint32_t> free;
};

// Windows of static objects may go after this file's own statics would.
Table& TheTable() {
  static auto* const table = new Table;
  return *table;
}

Slot* SlotOf(HWND handle) {
  const auto index = static_cast<std::uint32_t>(handle);
  std::vector<Slot>& slots = TheTable().slots;
  if (index == 0 || index > slots.size()) return nullptr;
  Slot& slot = slots[index - 1];
  return slot.window != nullptr && slot.generation == handle >> 32 ? &slot : nullptr;
}

}  // namespace

HWND Add(CWnd& window) {
  Table& table = TheTable();
  if (table.free.empty()) {
    table.slots.emplace_back();
    table.free.push_back(static_cast<std::uint32_t>(table.slots.size()));
  }
  const std::uint32_t index = table.free.back();
  table.free.pop_back();
  Slot& slot = table.slots[index - 1];
  slot.window = &window;
  return static_cast<HWND>(slot.generation) << 32 | index;
}

void Remove(HWND handle) {
  if (Slot* slot = SlotOf(handle)) {
    slot->window = nullptr;
    ++slot->generation;
    TheTable().free.push_back(static_cast<std::uint32_t>(handle));
  }
}

CWnd* Find(HWND handle) {
  const Slot* slot = SlotOf(handle);
  return slot != nullptr ? slot->window : nullptr;
}

void Replace(HWND handle, CWnd& window) {
  if (Slot* slot = SlotOf(handle)) slot->window = &window;
}

}  // namespace platform::window_table
