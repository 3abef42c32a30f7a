// Numbers as bytes of target memory, and the access width that a write takes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "target/bus_width.h"
#include "target/byte_order.h"

namespace pvw {
namespace {

TEST(ByteOrder, BytesAndValuesMeetInBothOrders) {
  struct Row {
    std::uint64_t value;              // its bytes above `bytes` are cut off
    std::vector<std::uint8_t> bytes;  // lowest first
  };
  const Row rows[] = {{0xFFFF, {}},
                      {0x1234, {0x34, 0x12}},
                      {0xFF830201, {0x01, 0x02, 0x83}},
                      {0x1084030201, {0x01, 0x02, 0x03, 0x84}},
                      {0x8807060504030201, {1, 2, 3, 4, 5, 6, 7, 0x88}}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.bytes.size());
    for (const ByteOrder order : {ByteOrder::kLittle, ByteOrder::kBig}) {
      std::vector<std::uint8_t> bytes = row.bytes;
      if (order == ByteOrder::kBig) std::ranges::reverse(bytes);
      std::vector<std::uint8_t> packed(bytes.size(), 0xEE);
      PackValue(row.value, order, packed);
      EXPECT_EQ(packed, bytes);
      if (bytes.size() > 4) continue;
      const std::uint64_t kept = (std::uint64_t{1} << (8 * bytes.size())) - 1;
      EXPECT_EQ(UnpackValue(bytes, order), row.value & kept);
    }
  }
}

TEST(WriteAccessWidth, FollowsAddressSizeAndBus) {
  struct Row {
    const char* name;
    std::uint32_t address, size, bus, width;
  };
  const Row rows[] = {
      {"a word on 32 bits goes by words, since it is one", 4, 2, 32, 2},
      {"a long on 32 bits at 2 modulo 4: the bus counts as 16", 6, 4, 32, 2},
      {"a long on 64 bits at 2 modulo 4: the bus counts as 16", 6, 4, 64, 2},
      {"a long on 64 bits at 4 modulo 8: the bus counts as 32", 4, 4, 64, 4},
      {"eight bytes on 64 bits go by longs at most", 8, 8, 64, 4},
      {"a long on 8 bits", 4, 4, 8, 1},
      {"a byte goes by bytes on 32 bits", 8, 1, 32, 1},
      {"an odd address goes by bytes, whatever the bus", 0xFFFFFFFF, 4, 64, 1},
      {"a bus that nobody knows", 4, 4, 0, 4},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(WriteAccessWidth(row.address, row.size, row.bus), row.width) << row.name;
  }
}

}  // namespace
}  // namespace pvw
