// A selection outlives a file whose fault keeps a module from opening.

#include "tests/model/record_tree.h"

namespace pvw::test {
namespace {

const std::string kFaulty = Definition(2, "[PORT]\nreg0=A\nreg1=B\n[A]\nid=AA\n[B]\nid=BB 0x10\n");
const std::string kMended = Definition(2, "[PORT]\nreg0=A\nreg1=B\n[A]\nid=AA 0x0\n[B]\nid=BB 0x10\n");

TEST_F(RecordTreeTest, AReloadOfAMendedFileStillSelectsWhatIsBelowAModuleThatFailedToOpen) {
  data.ParseSelection("{PORT?{BB?CC?}}");
  Load(kFaulty);
  ASSERT_FALSE(Open("PORT"));

  Load(kMended);
  ASSERT_TRUE(Open("PORT"));

  EXPECT_EQ(RowsOf("PORT"), "AA | H'00000000 | 00\nBB | H'00000010 | 10 +\nCC +!\n");
}

TEST_F(RecordTreeTest, ASecondAttemptAtAMendedModuleSelectsTheRegisterInsteadOfListingItAsMissingToo) {
  data.ParseSelection("{PORT?{BB?CC?}}");
  Load(kFaulty);
  ASSERT_FALSE(Open("PORT"));
  Record("PORT").SetExpanded(false);

  dir.Write("device.io", kMended);
  ASSERT_TRUE(Open("PORT"));

  EXPECT_EQ(RowsOf("PORT"), "AA | H'00000000 | 00\nBB | H'00000010 | 10 +\nCC +!\n");
}

}  // namespace
}  // namespace pvw::test
