#include "ioview/target/demo_device.h"

#include <array>
#include <cstddef>
#include <span>

namespace ioview {

namespace {

constexpr std::uint32_t kIntFlag = 0x24, kPData = 0x41, kPPin = 0x42, kTCount = 0x62, kTPeriod = 0x64,
                        kTTotal = 0x66, kSStat = 0x82, kBright = 0xA2, kTemp = 0xA4;
constexpr std::uint32_t kTicks = 250;
constexpr std::uint32_t kLamps = 0x3F;
constexpr std::uint32_t kSampleShift = 4;
constexpr std::uint32_t kLongestRegister = 4;
constexpr std::uint32_t kPortions = 4;

}  // namespace

bool DemoDevice::IsExample(std::string_view definition) {
  return definition.find("Lumen LM-8") != std::string_view::npos;
}

void DemoDevice::Switch(bool on) {
  on_ = on;
  target_.LogAccesses(on);
}

void DemoDevice::Look() {
  if (!on_) return;
  for (const Access& access : target_.TakeAccesses()) {
    const bool is_read = access.kind == Access::Kind::kRead || access.kind == Access::Kind::kReadLittle;
    if (!is_read || access.failed || access.last - access.first >= kLongestRegister) continue;
    if (read_.size() < kMostRegisters) read_.emplace(access.first, access.last - access.first + 1);
  }
}

void DemoDevice::Step() {
  if (!on_) return;
  Look();
  ++steps_;
  if (is_example_) {
    StepExample();
  } else {
    StepOther();
  }
}

std::uint32_t DemoDevice::Get(std::uint32_t address, std::uint32_t bytes) const {
  std::array<std::uint8_t, kLongestRegister> held{};
  if (!target_.Peek(address, std::span(held).first(bytes))) return 0;
  const bool little = target_.AreaAt(address).order == ByteOrder::kLittle;
  std::uint32_t value = 0;
  for (std::uint32_t i = 0; i < bytes; ++i) value = value << 8 | held[little ? bytes - 1 - i : i];
  return value;
}

void DemoDevice::Put(std::uint32_t address, std::uint32_t bytes, std::uint32_t value) {
  std::array<std::uint8_t, kLongestRegister> held{};
  const bool little = target_.AreaAt(address).order == ByteOrder::kLittle;
  for (std::uint32_t i = 0; i < bytes; ++i) {
    held[little ? i : bytes - 1 - i] = static_cast<std::uint8_t>(value >> 8 * i);
  }
  target_.Poke(address, std::span(held).first(bytes));
}

void DemoDevice::StepExample() {
  const auto at = [this](std::uint32_t offset) { return example_base_ + offset; };
  const auto flip = [&](std::uint32_t offset, std::uint32_t bytes, std::uint32_t bits) {
    Put(at(offset), bytes, Get(at(offset), bytes) ^ bits);
  };

  std::uint32_t count = Get(at(kTCount), 2) + kTicks;
  if (count > Get(at(kTPeriod), 2)) {
    count = 0;
    flip(kIntFlag, 4, 1);
  }
  Put(at(kTCount), 2, count);
  Put(at(kTTotal), 4, Get(at(kTTotal), 4) + kTicks);

  const std::uint32_t data = Get(at(kPData), 1);
  const std::uint32_t lamps = data & kLamps;
  Put(at(kPData), 1, (data & ~kLamps) | ((lamps << 1 | lamps >> 5) & kLamps));
  if (steps_ % 2 == 0) flip(kPPin, 1, 1);
  if (steps_ % 5 == 0) flip(kPPin, 1, 0x80);
  if (steps_ % 2 == 0) flip(kSStat, 1, 0x40);

  std::uint32_t bright = (Get(at(kBright), 2) >> kSampleShift) + 30;
  if (bright > 0xFFF) bright = 800;
  Put(at(kBright), 2, bright << kSampleShift);
  const std::uint32_t temperature = Get(at(kTemp), 2) >> kSampleShift;
  Put(at(kTemp), 2, (steps_ % 3 == 0 ? temperature - 1 : temperature + 1) << kSampleShift);
}

void DemoDevice::StepOther() {
  std::uint32_t index = 0;
  for (const auto& [address, bytes] : read_) {
    if ((index++ + steps_) % kPortions == 0) Put(address, bytes, Get(address, bytes) + 1);
  }
}

}  // namespace ioview
