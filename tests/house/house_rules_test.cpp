// The rules of the house that a compiler can't see: which folder includes which, links that say the same, and
// no public function of the platform without a caller.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kRoot = SOURCE_DIR;

// From the ground up; each folder may include itself and what stands before it.
const std::vector<std::string> kTower = {
    "platform/base", "platform/gui", "platform/headless",  "host",           "resources",          "support",
    "target",        "model",        "component/services", "frame/controls", "component/instance", "view",
    "frame",         "testclient",   "component"};

// Folders beside the tower, with all that they may include.
const std::map<std::string, std::set<std::string>> kBeside = {
    {"platform/qt", {"platform/qt", "platform/gui", "platform/base"}},
    {"ioview", {"ioview", "host", "platform/base", "platform/gui", "platform/headless", "platform/qt"}},
};

std::string Read(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

struct Source {
  std::string path;    // from the root
  std::string folder;  // the longest known folder that it lies in
  std::string text;
};

std::string FolderOf(const std::string& path) {
  std::string best;
  const auto consider = [&](const std::string& folder) {
    if (path.starts_with(folder + "/") && folder.size() > best.size()) best = folder;
  };
  for (const std::string& folder : kTower) consider(folder);
  for (const auto& [folder, allowed] : kBeside) consider(folder);
  return best;
}

std::vector<Source> ProductSources() {
  std::vector<Source> sources;
  for (const char* top : {"platform", "host", "resources", "support", "target", "model", "component", "frame",
                          "view", "testclient", "ioview"}) {
    if (!fs::exists(kRoot / top)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(kRoot / top)) {
      const std::string extension = entry.path().extension();
      if (extension != ".h" && extension != ".cpp") continue;
      const std::string path = fs::relative(entry.path(), kRoot).generic_string();
      sources.push_back({path, FolderOf(path), Read(entry.path())});
    }
  }
  return sources;
}

// What the expression finds in the text, by its first group.
std::vector<std::string> Matches(const std::string& text, const std::regex& expression) {
  std::vector<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it) {
    found.push_back((*it)[1]);
  }
  return found;
}

// How high the folder stands; beyond the last for one that isn't in the tower.
std::size_t Floor(const std::string& folder) {
  return static_cast<std::size_t>(std::ranges::find(kTower, folder) - kTower.begin());
}

TEST(HouseRules, NoFolderIncludesOneThatStandsAboveIt) {
  const std::regex include(R"re(^\s*#\s*include\s*"([^"]+)")re", std::regex::multiline);
  std::vector<std::string> wrong;
  std::size_t seen = 0;
  for (const Source& source : ProductSources()) {
    if (source.folder.empty()) wrong.push_back(source.path + " lies in no known folder");
    for (const std::string& target : Matches(source.text, include)) {
      ++seen;
      const std::string folder = FolderOf(target);
      const auto beside = kBeside.find(source.folder);
      const bool allowed = beside != kBeside.end()
                               ? beside->second.contains(folder)
                               : Floor(folder) < kTower.size() && Floor(folder) <= Floor(source.folder);
      if (!allowed) wrong.push_back(source.path + " includes " + target);
    }
  }
  EXPECT_GT(seen, 100u);
  EXPECT_THAT(wrong, testing::IsEmpty());
}

TEST(HouseRules, TheLinksOfAFolderSayTheSameOrder) {
  const std::regex call(R"(pvw_folder\(\w+\s+LINKS([^)]*)\))");
  std::vector<std::string> wrong;
  std::size_t seen = 0;
  for (const std::string& folder : kTower) {
    for (const std::string& list : Matches(Read(kRoot / folder / "CMakeLists.txt"), call)) {
      ++seen;
      std::istringstream links(list);
      for (std::string link; links >> link;) {
        const auto linked = std::ranges::find_if(kTower, [&](std::string name) {
          std::ranges::replace(name, '/', '_');
          return link == "pvw_" + name;
        });
        const bool below = linked < kTower.begin() + static_cast<std::ptrdiff_t>(Floor(folder));
        if (link != "platform" && !below) wrong.push_back(folder + " links " + link);
      }
    }
  }
  EXPECT_GE(seen, 5u);
  EXPECT_THAT(wrong, testing::IsEmpty());
}

// How often each identifier stands in the code.
std::map<std::string, std::size_t> Identifiers(const std::string& code) {
  std::map<std::string, std::size_t> found;
  const auto in_word = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; };
  for (auto it = code.begin(); it != code.end();) {
    it = std::find_if(it, code.end(), in_word);
    const auto last = std::find_if_not(it, code.end(), in_word);
    ++found[{it, last}];
    it = last;
  }
  return found;
}

// Only tests call this: it maps drives into a directory of the test's own.
const std::set<std::string> kForTests = {"SetDriveRoot"};

TEST(HouseRules, EveryPublicFunctionOfThePlatformHasACaller) {
  // A function at namespace scope begins in the first column, and its parenthesis follows its name.
  const std::regex function(R"(^(?!template|static_assert)[A-Za-z][^(\n]*[ *&](\w+)\()",
                            std::regex::multiline);
  const std::regex comment("//[^\n]*");
  std::map<std::string, std::size_t> named, declared;
  std::set<std::string> unused;
  for (const Source& source : ProductSources()) {
    const std::string code = std::regex_replace(source.text, comment, "");
    for (const auto& [name, times] : Identifiers(code)) named[name] += times;
    for (const std::string& name : Matches(code, function)) {
      ++declared[name];
      if (source.path.starts_with("platform/") && source.path.ends_with(".h")) unused.insert(name);
    }
  }
  EXPECT_GT(unused.size(), 30u);
  std::erase_if(unused, [&](const std::string& name) { return named[name] > declared[name]; });
  EXPECT_THAT(unused, testing::UnorderedElementsAreArray(kForTests));
}

}  // namespace
