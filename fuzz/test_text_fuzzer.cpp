// Reads any bytes as two snapshots that the test framework hands over, compares them, and turns the results
// into words; reads them as a result as well.
//
// An input is up to two snapshots, parted by a line "===". The last byte chooses the code page.

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/memory_file.h"
#include "platform/base/text.h"
#include "support/list_text.h"
#include "testclient/comparison.h"
#include "testclient/result_text.h"
#include "testclient/test_data_text.h"

namespace {

using namespace pvw;
using fuzz::Require;

void CheckWritten(const TestData& data) {
  const TestData again = ParseTestData(MakeTestData("device", data.ignoreAddress == true, data.registers));
  Require(again.registers == data.registers);
  Require(again.ignoreAddress == (data.ignoreAddress == true));
}

void CheckComparison(const TestData& first, const TestData& second, bool ignoreAddress) {
  const Comparison result = CompareRegisters(first.registers, second.registers, ignoreAddress);
  Require((result.status == 0) == result.summary.empty());
  Require((result.status == 0) == result.detail.empty());
  StringList lines;
  const std::size_t count = SplitEscapedList(result.detail, lines, '&', '\\');
  Require(count <= first.registers.size() + second.registers.size());
  StringList words;
  Require(SplitEscapedList(WordsOfResult(result.detail), words, '&', '\\') == count);
  Require(std::ranges::none_of(words, &std::string::empty));
  if (result.status != 0) Require(!WordsOfResult(result.summary).empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::array<unsigned, 3> kPages = {65001, 932, 1252};
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  platform::SetAnsiCodePage(kPages[bytes.empty() ? 0 : data[size - 1] % kPages.size()]);

  constexpr std::string_view kSeparator = "\n===\n";
  const std::size_t end = std::min(bytes.find(kSeparator), size);
  const TestData first = ParseTestData(bytes.substr(0, end));
  const TestData second = ParseTestData(bytes.substr(std::min(end + kSeparator.size(), size)));
  CheckWritten(first);
  CheckWritten(second);
  CheckComparison(first, second, false);
  CheckComparison(second, first, true);
  ComparedRegisters compared;
  for (const CompareEntry& entry : first.registers) compared.Enter(entry);
  const CompareEntries& once = compared.GetEntries();
  Require(once.size() <= first.registers.size());
  Require(CompareRegisters(once, once, false).status == 0);
  WordsOfResult(bytes);
  return 0;
}
