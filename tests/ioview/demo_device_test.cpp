// What moves by itself in the simulated target.

#include <gtest/gtest.h>

#include <array>

#include "ioview/target/demo_device.h"

namespace ioview::test {
namespace {

class DemoDeviceTest : public testing::TestWithParam<ByteOrder> {
 protected:
  DemoDeviceTest() { target.SetArea({0, 0xFFFFFFFF, GetParam()}); }
  std::uint32_t Word(std::uint32_t address) {
    std::array<std::uint8_t, 2> held{};
    target.Peek(address, held);
    return GetParam() == ByteOrder::kBig ? held[0] << 8 | held[1] : held[1] << 8 | held[0];
  }
  void PokeWord(std::uint32_t address, std::uint32_t value) {
    const auto high = static_cast<std::uint8_t>(value >> 8);
    const auto low = static_cast<std::uint8_t>(value);
    const bool big = GetParam() == ByteOrder::kBig;
    target.Poke(address, std::array{big ? high : low, big ? low : high});
  }
  SimulatedTarget target;
  DemoDevice demo{target};
};
INSTANTIATE_TEST_SUITE_P(Orders, DemoDeviceTest, testing::Values(ByteOrder::kBig, ByteOrder::kLittle));

TEST_P(DemoDeviceTest, TheExamplesTimerCountsToItsPeriodAndSetsItsFlag) {
  constexpr std::uint32_t kBase = 0x1FF0000;
  demo.SetExample(kBase);
  PokeWord(kBase + 0x62, 1500);
  PokeWord(kBase + 0x64, 1800);
  demo.Step();
  EXPECT_EQ(Word(kBase + 0x62), 1500u) << "it is off at first";
  demo.Switch(true);
  demo.Step();
  EXPECT_EQ(Word(kBase + 0x62), 1750u);
  demo.Step();
  EXPECT_EQ(Word(kBase + 0x62), 0u);
  std::array<std::uint8_t, 4> flags{};
  target.Peek(kBase + 0x24, flags);
  EXPECT_EQ(flags[0] + flags[3], 1);
}

TEST_P(DemoDeviceTest, OfAnotherDeviceEveryRegisterThatWasReadCountsOnceInFourSteps) {
  std::array<std::uint8_t, 4> bytes{};
  demo.Switch(true);
  for (std::uint32_t address = 0; address < 16; address += 2) {
    target.Read(Access::Kind::kRead, address, address + 1, 2, bytes.data());
  }
  target.Read(Access::Kind::kRead, 0x100, 0x1FF, 1, std::array<std::uint8_t, 256>().data());
  PokeWord(2, 0x00FF);
  for (int step = 0; step < 4; ++step) demo.Step();
  for (std::uint32_t address = 0; address < 16; address += 2) {
    EXPECT_EQ(Word(address), address == 2 ? 0x100u : 1u) << address;
  }
  EXPECT_EQ(Word(16), 0u) << "nobody has read it";
  EXPECT_EQ(Word(0x100), 0u) << "no register is as long";
  EXPECT_TRUE(target.TakeAccesses().empty());
}

}  // namespace
}  // namespace ioview::test
