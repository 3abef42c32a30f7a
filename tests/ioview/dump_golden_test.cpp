// The example device in each version of the format, dumped in every way: tests/ioview/golden has the texts.

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "tests/ioview/run_program.h"

namespace ioview::test {
namespace {

constexpr char kSelection[] = "{timer?{TCOUNT?GONE?}PORT?{P DATA?{FAN?}PPIN?}OLD?{LAMP?}CLOCK?EMPTY?}";

using Way = std::tuple<const char*, const char*, const char*>;  // file, page, rows that are opened

class DumpGolden : public testing::TestWithParam<Way> {};

TEST_P(DumpGolden, IsWhatTheViewShows) {
  const auto [file, page, open] = GetParam();

  const Outcome outcome = RunIoview({"dump", std::string(file) + ".io", "--memory", "lumen.mem", "--pane",
                                     page, "--open", open, "--selection", kSelection},
                                    {.directory = SOURCE_DIR "/examples"});

  const std::string name = std::string(file) + '_' + page + '_' + open + ".txt";
  EXPECT_EQ(outcome.out, ReadFile(SOURCE_DIR "/tests/ioview/golden/" + name));
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Examples, DumpGolden,
                         testing::Combine(testing::Values("lumen1", "lumen2", "lumen3"),
                                          testing::Values("all", "selected"),
                                          testing::Values("none", "modules", "all")),
                         [](const testing::TestParamInfo<Way>& way) {
                           return std::string(std::get<0>(way.param)) + '_' + std::get<1>(way.param) + '_' +
                                  std::get<2>(way.param);
                         });

}  // namespace
}  // namespace ioview::test
