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
  EXPECT_EQ(platform::LoadString(1), "") << "an id that no table has";
}

struct Row {
  std::uint32_t id;
  const char* text;
};

// Texts with an insert, a quote, a line feed or a spelling that invites correction, by bare number.
const Row kTexts[] = {
    {1004, "%1 Not Editable"},
    {1005, "Edit %1"},
    {2113, "File \"%1\" does not exist.\nPlease enter an existing file."},
    {2114, "This entry is empty, please supply entry."},
    {32771, "Print IO view\nPrint"},
    {32772, "Edit %s at %s"},
    {32773, "Load IO File\nLoad..."},
    {32778, "Open Customise toolbar dialog"},
    {32805, "PROTECTION"},
    {32806, "Error in I/O file: register description '%1' not found."},
    {32815, "The entered value is too big.\nMust be less than or equal to %s."},
    {32820, "Find IO Name or Address\nFind"},
    {32821, "Find the next IO Name or address that matches the search text\nFind Next"},
    {32826, "Lock Refresh IO View\nLockRefresh"},
    {32827, "Error in I/O file: bit field description of register '%1' not found."},
    {32901, "Failed at %s, address is different: Src = %s, Dest = %s"},
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
    {32911, "Register Address Not found"},
    {32912, "No More Register Name found"},
    {32915, "The IO File has been modified. Please reload it again."},
    {32916, "'%1' Absolute format is wrong.\nThe Absolute flag format must be I, A or R.\n"},
    {39507, "Find IO Name or Address\nFind"},
    {50004, "ERROR"},
    {50017, "Configuration directory"},
    {50024, "Tool directory"},
    {50031, "Date, year/month/day"},
    {50037, "Align following text to the right"},
};

TEST(ComponentStrings, TextsAreExactToTheCharacter) {
  for (const Row& row : kTexts) EXPECT_EQ(platform::LoadString(row.id), row.text) << row.id;
}

}  // namespace
}  // namespace pvw
