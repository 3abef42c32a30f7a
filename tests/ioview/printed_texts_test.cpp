// What the built program prints, against texts that are kept.
//
// Every script of tests/scripts is run as a user runs it. // NAME.script prints what NAME.out says and
// nothing else. A script whose first line is `# exits with N` ends with that status, and the first line of
// standard error is that of NAME.err. Each runs in a copy of the folder, with the examples two folders up as
// here; the directory of both shows as DIR in the output.
//
// The example device in each version of the format is dumped in every way: tests/ioview/golden has the texts.
// tests/ioview/definitions has definition files for what each version reads in its own way, with their texts.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include "tests/ioview/run_program.h"
#include "tests/support/temp_dir.h"

namespace ioview::test {

namespace {

namespace fs = std::filesystem;

const fs::path kScripts = SOURCE_DIR "/tests/scripts";
constexpr const char* kExits = "# exits with ";

std::vector<std::string> ScriptNames() {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(kScripts)) {
    if (entry.path().extension() == ".script") names.push_back(entry.path().stem().string());
  }
  std::ranges::sort(names);
  return names;
}

std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

int ExpectedStatus(const std::string& script) {
  const std::string first = FirstLine(script);
  return first.starts_with(kExits) ? std::stoi(first.substr(std::string(kExits).size())) : 0;
}

class Script : public testing::TestWithParam<std::string> {};

TEST_P(Script, PrintsWhatItAlwaysPrinted) {
  const pvw::test::TempDir dir;
  const fs::path folder = dir.Native("tests/scripts");
  fs::create_directories(folder);
  fs::copy(kScripts, folder, fs::copy_options::recursive);
  fs::copy(SOURCE_DIR "/examples", dir.Native("examples"), fs::copy_options::recursive);

  Outcome outcome = RunIoview("script|" + GetParam() + ".script", {.directory = folder});

  for (std::string* const text : {&outcome.out, &outcome.err}) {
    ReplaceAll(*text, dir.Path(), "DIR");
    ReplaceAll(*text, dir.Native().string(), "DIR");
  }
  EXPECT_EQ(outcome.out, ReadFile(kScripts / (GetParam() + ".out")));
  EXPECT_EQ(outcome.status, ExpectedStatus(ReadFile(kScripts / (GetParam() + ".script")))) << outcome.err;
  const fs::path complaint = kScripts / (GetParam() + ".err");
  EXPECT_EQ(fs::exists(complaint), outcome.status != 0) << "what it complains of stands in a file";
  EXPECT_EQ(FirstLine(outcome.err), fs::exists(complaint) ? FirstLine(ReadFile(complaint)) : "");
}

INSTANTIATE_TEST_SUITE_P(Scripts, Script, testing::ValuesIn(ScriptNames()), [](const auto& name) {
  std::string word = name.param;
  std::ranges::replace_if(
      word, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return word;
});

TEST(ScriptFromStandardInput, OneThatCannotBeReadIsNoSuccess) {
  const Outcome outcome = RunIoview("script|-", {.input = "/"});
  EXPECT_EQ(outcome.err, "ioview: -:0: the script can't be read on\n");
  EXPECT_EQ(outcome.status, 2);
}

// Dumps -------------------------------------------------------------------------------------------------

constexpr char kSelection[] = "{timer?{TCOUNT?GONE?}PORT?{P DATA?{FAN?}PPIN?}OLD?{LAMP?}CLOCK?EMPTY?}";

using Way = std::tuple<const char*, const char*, const char*>;  // file, page, rows that are opened

class DumpGolden : public testing::TestWithParam<Way> {};

TEST_P(DumpGolden, IsWhatTheViewShows) {
  const auto [file, page, open] = GetParam();

  const Outcome outcome = RunIoview(std::string("dump|") + file + ".io|--memory|lumen.mem|--pane|" + page +
                                        "|--open|" + open + "|--selection|" + kSelection,
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

class Definition : public testing::TestWithParam<const char*> {};

TEST_P(Definition, IsReadAsItsVersionReadsIt) {
  const std::filesystem::path folder = SOURCE_DIR "/tests/ioview/definitions";
  const std::string name = GetParam();
  const Outcome outcome =
      RunIoview("dump|" + name + ".io|--base|1FF0000|--memory|low.mem|--open|all", {.directory = folder});
  EXPECT_EQ(outcome.out, ReadFile(folder / (name + ".txt")));
  EXPECT_EQ(outcome.err, name == "faults2" ? ReadFile(folder / "faults2.err") : "");
  EXPECT_EQ(outcome.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Files, Definition, testing::Values("version1", "version2", "faults2", "version3"));

}  // namespace

}  // namespace ioview::test
