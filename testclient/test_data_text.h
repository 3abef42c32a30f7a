// A snapshot of registers as one text, which the host's test framework stores.
//
// Its items are joined by `&`, with `\` in front of an `&` or a `\` of an item:
//
//   1.0 & device & flag & count & PDATA H'00FF0000 1 a5 & ...
//
// The flag says whether addresses don't count. Each item from the fifth on is one register: name, address,
// size and value with one blank between them. All numbers are hexadecimal. A name with a blank can't be
// carried: it comes back as other fields.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "testclient/compared_registers.h"

namespace pvw {

struct TestData {
  std::optional<bool> ignoreAddress;  // nothing when the text ends before it
  CompareEntries registers;           // in the order of the text, repeated names included
};

// Any text is taken. One of fewer than four items has no registers, and a register of fewer than four fields
// is left out; a number with anything but hexadecimal digits is 0. The count isn't looked at.
TestData ParseTestData(std::string_view text);

std::string MakeTestData(std::string_view device, bool ignoreAddress,
                         std::span<const CompareEntry> registers);

}  // namespace pvw
