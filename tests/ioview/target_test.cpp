// The simulated target: its memory and the services over it, files that fill it, and what moves in it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "ioview/host/target_memory.h"
#include "ioview/memory_file.h"
#include "ioview/statuses.h"
#include "ioview/target/demo_device.h"
#include "ioview/target/simulated_target.h"

namespace ioview {
namespace {

using Bytes = std::vector<std::uint8_t>;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class SimulatedTargetTest : public testing::Test {
 protected:
  Bytes Peek(std::uint32_t address, std::size_t count) {
    Bytes bytes(count, 0xEE);
    EXPECT_TRUE(target_.Peek(address, bytes));
    return bytes;
  }
  std::vector<std::string> Accesses() {
    std::vector<std::string> lines;
    for (const Access& access : target_.TakeAccesses()) lines.push_back(AccessText(access));
    return lines;
  }

  SimulatedTarget target_;
  TargetMemory memory_{target_};
  BlockMemory blocks_{target_};
};

TEST_F(SimulatedTargetTest, KeepsBytesAcrossPagesAndReadsZeroElsewhere) {
  Bytes bytes(200);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i + 1);
  EXPECT_TRUE(target_.Poke(0x1000 - 3, bytes));

  EXPECT_EQ(Peek(0x1000 - 3, 200), bytes);
  EXPECT_EQ(Peek(0x1000 + 195, 4), (Bytes{199, 200, 0, 0}));
  EXPECT_THAT(Peek(0x80000000, 1000), Each(0));

  EXPECT_TRUE(target_.Poke(0xFFFFFFFE, Bytes{1, 2}));
  EXPECT_FALSE(target_.Poke(0xFFFFFFFE, Bytes{3, 4, 5}));
  EXPECT_EQ(Peek(0xFFFFFFFE, 2), (Bytes{1, 2}));
  EXPECT_EQ(Peek(0, 1), Bytes{0});
  EXPECT_FALSE(target_.Peek(0xFFFFFFFE, bytes));
}

TEST_F(SimulatedTargetTest, LaterAreasCutHideAndSplitEarlierOnes) {
  const auto area = [&](std::uint32_t address) { return target_.AreaAt(address); };
  EXPECT_EQ(area(0xFFFFFFFF), (MemoryArea{0, 0xFFFFFFFF, ByteOrder::kBig}));

  target_.SetArea({0x800, 0x1FFF, ByteOrder::kLittle});
  target_.SetArea({0x1000, 0xEFFFFFFF, ByteOrder::kBig});
  EXPECT_EQ(area(0x7FF), (MemoryArea{0, 0x7FF, ByteOrder::kBig}));
  EXPECT_EQ(area(0x800), (MemoryArea{0x800, 0xFFF, ByteOrder::kLittle}));
  EXPECT_EQ(area(0x1000), (MemoryArea{0x1000, 0xEFFFFFFF, ByteOrder::kBig}));
  EXPECT_EQ(area(0xFFFFFFFF), (MemoryArea{0xF0000000, 0xFFFFFFFF, ByteOrder::kBig}));

  target_.SetArea({0x900, 0x900, ByteOrder::kBig});
  EXPECT_EQ(area(0x8FF), (MemoryArea{0x800, 0x8FF, ByteOrder::kLittle}));
  EXPECT_EQ(area(0x900), (MemoryArea{0x900, 0x900, ByteOrder::kBig}));
  EXPECT_EQ(area(0x901), (MemoryArea{0x901, 0xFFF, ByteOrder::kLittle}));

  target_.SetArea({0, 0xFFFFFFFF, ByteOrder::kLittle});
  EXPECT_EQ(area(5), (MemoryArea{0, 0xFFFFFFFF, ByteOrder::kLittle}));
}

TEST_F(SimulatedTargetTest, StoresANumberInTheByteOrderOfItsArea) {
  target_.SetArea({0x100, 0x1FF, ByteOrder::kLittle});
  const Bytes number = {0x12, 0x34, 0x56, 0x78};

  EXPECT_EQ(blocks_.WriteBlock(0xFE, 0x101, 0, 4, number.data()), platform::S_OK);
  EXPECT_EQ(Peek(0xFE, 4), number);
  EXPECT_EQ(blocks_.WriteBlock(0x1FE, 0x201, 0xFFFFFFFF, 4, number.data()), platform::S_OK);
  EXPECT_EQ(Peek(0x1FE, 4), (Bytes{0x78, 0x56, 0x34, 0x12}));
  // Bytes that aren't a number stay as they are.
  EXPECT_EQ(memory_.WriteMemory(0x100, 0x103, 2, number.data()), platform::S_OK);
  EXPECT_EQ(Peek(0x100, 4), number);
}

TEST_F(SimulatedTargetTest, RefusesRangesThatMakeNoSense) {
  target_.LogAccesses(true);
  Bytes buffer(16, 0xEE);
  const std::uint32_t longest = SimulatedTarget::kLongestAccess;
  EXPECT_EQ(memory_.ReadDirect(5, 4, 1, buffer.data()), kTargetAccessFailed);
  EXPECT_EQ(memory_.ReadDirect(0xFFFFFFFE, 1, 1, buffer.data()), kTargetAccessFailed);
  EXPECT_EQ(memory_.ReadDirect(0, longest, 1, buffer.data()), kTargetAccessFailed);
  EXPECT_EQ(memory_.ReadDirect(0, 0, 3, buffer.data()), kTargetAccessFailed);
  EXPECT_EQ(memory_.ReadDirect(0, 0, 1, nullptr), kTargetAccessFailed);
  EXPECT_EQ(blocks_.WriteBlock(0, 3, 0, 5, buffer.data()), kTooManyBytes);
  EXPECT_EQ(blocks_.WriteBlock(0xFFFFFFFF, 0, 0, 2, buffer.data()), kTargetAccessFailed);
  EXPECT_THAT(buffer, Each(0xEE));
  EXPECT_EQ(Peek(0, 1), Bytes{0});
  EXPECT_EQ(Accesses().front(), "read 00000005-00000004 width 1 plain failed");

  Bytes all(longest, 0xEE);
  EXPECT_EQ(memory_.ReadDirect(1, longest, 4, all.data()), platform::S_OK);
  EXPECT_THAT(all.back(), 0);
}

TEST_F(SimulatedTargetTest, ForgetsTheOldestAccessesThatNobodyTakes) {
  target_.LogAccesses(true);
  const Bytes most(SimulatedTarget::kLongestAccess);
  const auto last = static_cast<std::uint32_t>(most.size() - 1);
  const std::size_t kept = SimulatedTarget::kMostLoggedBytes / most.size();
  for (std::size_t i = 0; i < kept + 1; ++i) memory_.WriteMemory(0, last, 1, most.data());
  EXPECT_EQ(target_.TakeAccesses().size(), kept);
  Bytes byte(1);
  for (std::size_t i = 0; i <= SimulatedTarget::kMostAccesses; ++i) {
    memory_.ReadDirect(7, 7, 1, byte.data());
  }
  EXPECT_EQ(target_.TakeAccesses().size(), SimulatedTarget::kMostAccesses);
}

TEST_F(SimulatedTargetTest, FailsOnRequestAndLogsWhatWasTried) {
  Bytes byte = {0xAB};
  memory_.WriteMemory(0x10, 0x10, 1, byte.data());
  EXPECT_THAT(Accesses(), IsEmpty());  // nobody has asked for a log
  target_.LogAccesses(true);
  target_.FailReads(kUnknownError);
  EXPECT_EQ(memory_.ReadDirect(0x10, 0x10, 1, byte.data()), kUnknownError);
  target_.FailWrites(kTargetAccessFailed);
  byte = {0xCD};
  EXPECT_EQ(memory_.ReadDirectLittle(0x10, 0x11, 2, Bytes(2).data()), platform::S_OK);
  EXPECT_EQ(memory_.WriteMemory(0x10, 0x10, 1, byte.data()), kTargetAccessFailed);
  EXPECT_EQ(Peek(0x10, 1), Bytes{0xAB});
  EXPECT_THAT(Accesses(), ElementsAre("read 00000010-00000010 width 1 plain failed",
                                      "read 00000010-00000011 width 2 little",
                                      "write 00000010-00000010 width 1: CD failed"));
  EXPECT_THAT(Accesses(), IsEmpty());
}

TEST(MemoryFile, SetsBytesFromGoodLines) {
  struct {
    const char* what;
    std::string text;
    std::vector<std::uint8_t> at_10;  // the first four bytes from 10 on
  } const cases[] = {
      {"without a line end", "10: 12 34", {0x12, 0x34, 0, 0}},
      {"prefixes, either case, one digit", "0X00000010: 0xAb 0XC d\n", {0xAB, 0xC, 0xD, 0}},
      {"comments, blank lines, tabs, CR", "# 10: 1\r\n\r\n \t\n\t10 :\t1\t 2 #3 4\r\n", {1, 2, 0, 0}},
      {"no blanks at all", "10:1", {1, 0, 0, 0}},
      {"a later line wins", "10: 1 2 3\n11: 9\n", {1, 9, 3, 0}},
      {"a byte order mark", "\xEF\xBB\xBF\n10: 1\n", {1, 0, 0, 0}},
      {"up to the last address", "FFFFFFFF: 1", {0, 0, 0, 0}},
  };
  for (const auto& row : cases) {
    SimulatedTarget target;
    const auto error = FillMemory(target, row.text);
    EXPECT_FALSE(error.has_value()) << row.what << ": " << error.value_or(MemoryFileError{}).text;
    std::vector<std::uint8_t> bytes(4);
    target.Peek(0x10, bytes);
    EXPECT_EQ(bytes, row.at_10) << row.what;
  }
}

TEST(MemoryFile, SaysWhatIsWrongWithABadLine) {
  const std::string no_address = " is not an address of up to eight hexadecimal digits";
  const std::string no_byte = " is not a byte of one or two hexadecimal digits";
  struct {
    const char* what;
    std::string text;
    std::size_t line;
    std::string error;
  } const cases[] = {
      {"no colon", "10: 1\n\n20 1\n", 3, "there is no ':' behind an address"},
      {"two addresses", "10 20: 1", 1, "'10 20'" + no_address},
      {"an address of nine digits", "000000010: 1", 1, "'000000010'" + no_address},
      {"a sign", "-1: 1", 1, "'-1'" + no_address},
      {"no bytes", "10: # 1\n", 1, "there are no bytes behind the address"},
      {"a word for a byte", "10: 1 1234", 1, "'1234'" + no_byte},
      {"no digits", "10: 1\n10: 2g\n", 2, "'2g'" + no_byte},
      {"past the end", "FFFFFFFF: 1 2", 1, "the bytes go past address FFFFFFFF"},
      {"a word without end", "10: " + std::string(100'000, 'f'), 1,
       "'ffffffffffffffffffffffffffffffffffffffffffffffffffffffffffff...'" + no_byte},
  };
  for (const auto& row : cases) {
    SimulatedTarget target;
    const auto error = FillMemory(target, row.text);
    ASSERT_TRUE(error.has_value()) << row.what;
    EXPECT_EQ(error->line, row.line) << row.what;
    EXPECT_EQ(error->text, row.error) << row.what;
  }
}

class DemoDeviceTest : public testing::TestWithParam<ByteOrder> {
 protected:
  DemoDeviceTest() { target.SetArea({0, 0xFFFFFFFF, GetParam()}); }
  std::uint32_t Word(std::uint32_t address) {
    std::array<std::uint8_t, 2> held{};
    target.Peek(address, held);
    return GetParam() == ByteOrder::kBig ? held[0] << 8 | held[1] : held[1] << 8 | held[0];
  }
  // In the byte order of its area.
  void PokeWord(std::uint32_t address, std::uint32_t value) {
    const Bytes bytes = {static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)};
    BlockMemory(target).WriteBlock(address, address + 1, 0, 2, bytes.data());
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
}  // namespace ioview
