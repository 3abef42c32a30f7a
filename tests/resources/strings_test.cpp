#include "resources/strings.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "resources/ids.h"

namespace pvw {
namespace {

TEST(ComponentStrings, EachIdStandsOnceAndIsFound) {
  std::set<std::uint32_t> seen;
  for (const platform::StringResource& string : ComponentStrings()) {
    EXPECT_TRUE(seen.insert(string.id).second) << string.id;
    EXPECT_EQ(platform::LoadString(string.id), string.text);
  }
}

// Texts with an insert, a quote, a line feed or a spelling that invites correction, by bare number.
const std::pair<std::uint32_t, const char*> kTexts[] = {
    {2113, "File \"%1\" does not exist.\nPlease enter an existing file."},
    {32772, "Edit %s at %s"},
    {32778, "Open Customise toolbar dialog"},
    {32815, "The entered value is too big.\nMust be less than or equal to %s."},
    {32826, "Lock Refresh IO View\nLockRefresh"},
    {32906,
     "'%1' Register Size format is wrong.\nThe Register Size format must be only B (Byte),W(Word) or L(Long "
     "Word)."},
    {32907,
     "'%1' Register Address format is wrong.\nThe Register Address format must be with prefix "
     "0x.Eg:0x0000FFFF."},
    {32908,
     "'%1' Register output format is wrong.\nThe Register output format value must be "
     "H(Hexadecimal),D(Decimal) or "
     "B(Binary)"},
    {32915, "The IO File has been modified. Please reload it again."},
    {32916, "'%1' Absolute format is wrong.\nThe Absolute flag format must be I, A or R.\n"},
};

TEST(ComponentStrings, TextsAreExactToTheCharacter) {
  for (const auto& [id, text] : kTexts) EXPECT_EQ(platform::LoadString(id), text) << id;
}

}  // namespace
}  // namespace pvw
