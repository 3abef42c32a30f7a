// The simulated target and the memory services over it.

#include "ioview/target/simulated_target.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ioview/host/memory_map.h"
#include "ioview/host/target_memory.h"
#include "ioview/statuses.h"

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
  MemoryMap map_{target_};
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
  std::uint32_t first = 1, last = 0, endian = 0;
  EXPECT_EQ(map_.GetAreaInfo(5, &first, &last, &endian), platform::S_OK);
  EXPECT_EQ(first, 0u);
  EXPECT_EQ(last, 0xFFFFFFFF);
  EXPECT_EQ(endian, 1u);
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
  Bytes read(4);
  EXPECT_EQ(memory_.ReadDirectLittle(0x100, 0x103, 4, read.data()), platform::S_OK);
  EXPECT_EQ(read, number);
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
  Bytes byte(1);
  memory_.ReadDirect(7, 7, 1, byte.data());
  for (std::size_t i = 0; i < kept; ++i) memory_.WriteMemory(0, last, 1, most.data());
  EXPECT_EQ(target_.TakeAccesses().size(), kept + 1);

  for (std::size_t i = 0; i < kept + 1; ++i) memory_.WriteMemory(0, last, 1, most.data());
  EXPECT_EQ(target_.TakeAccesses().size(), kept);
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
  EXPECT_EQ(blocks_.WriteBlock(0x10, 0x10, 0, 1, byte.data()), platform::S_OK);
  target_.FailWrites(kTargetAccessFailed);
  byte = {0xCD};
  EXPECT_EQ(memory_.ReadDirectLittle(0x10, 0x11, 2, Bytes(2).data()), platform::S_OK);
  EXPECT_EQ(blocks_.WriteBlock(0x10, 0x10, 0, 1, byte.data()), kTargetAccessFailed);
  EXPECT_EQ(memory_.WriteMemory(0x10, 0x10, 1, byte.data()), kTargetAccessFailed);
  EXPECT_EQ(Peek(0x10, 1), Bytes{0xAB});
  target_.FailNothing();
  EXPECT_EQ(memory_.WriteMemory(0x10, 0x10, 1, byte.data()), platform::S_OK);

  EXPECT_THAT(
      Accesses(),
      ElementsAre("read 00000010-00000010 width 1 plain failed", "block 00000010-00000010: AB",
                  "read 00000010-00000011 width 2 little", "block 00000010-00000010: CD failed",
                  "write 00000010-00000010 width 1: CD failed", "write 00000010-00000010 width 1: CD"));
  EXPECT_THAT(Accesses(), IsEmpty());
}

}  // namespace
}  // namespace ioview
