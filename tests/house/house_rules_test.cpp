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

TEST(HouseRules, NoFolderIncludesOneThatStandsAboveIt) {
  const std::regex include(R"re(^\s*#\s*include\s*"([^"]+)")re", std::regex::multiline);
  std::vector<std::string> wrong;
  std::size_t seen = 0;
  for (const Source& source : ProductSources()) {
    if (source.folder.empty()) wrong.push_back(source.path + " lies in no known folder");
    for (std::sregex_iterator it(source.text.begin(), source.text.end(), include), end; it != end; ++it) {
      ++seen;
      const std::string target = (*it)[1];
      const std::string folder = FolderOf(target);
      const auto own = std::find(kTower.begin(), kTower.end(), source.folder);
      const auto other = std::find(kTower.begin(), kTower.end(), folder);
      const auto beside = kBeside.find(source.folder);
      const bool allowed =
          beside != kBeside.end() ? beside->second.contains(folder) : other != kTower.end() && other <= own;
      if (!allowed) wrong.push_back(source.path + " includes " + target);
    }
  }
  EXPECT_GT(seen, 100u);
  EXPECT_THAT(wrong, testing::IsEmpty());
}

TEST(HouseRules, TheLinksOfAFolderSayTheSameOrder) {
  const std::regex call(R"(pvw_folder\((\w+)\s+LINKS([^)]*)\))");
  std::vector<std::string> wrong;
  std::size_t seen = 0;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot)) {
    if (entry.path().filename() != "CMakeLists.txt") continue;
    const std::string path = fs::relative(entry.path(), kRoot).generic_string();
    const std::string folder = fs::path(path).parent_path().generic_string();
    if (path.starts_with("build/") || std::find(kTower.begin(), kTower.end(), folder) == kTower.end())
      continue;
    const std::string text = Read(entry.path());
    for (std::sregex_iterator it(text.begin(), text.end(), call), end; it != end; ++it) {
      ++seen;
      std::istringstream links((*it)[2]);
      for (std::string link; links >> link;) {
        if (link == "platform") continue;
        std::string linked = link.starts_with("pvw_") ? link.substr(4) : link;
        for (const std::string& known : kTower) {
          std::string name = known;
          std::replace(name.begin(), name.end(), '/', '_');
          if (name == linked) linked = known;
        }
        const auto own = std::find(kTower.begin(), kTower.end(), folder);
        const auto other = std::find(kTower.begin(), kTower.end(), linked);
        if (other == kTower.end() || other >= own) wrong.push_back(path + " links " + link);
      }
    }
  }
  EXPECT_GE(seen, 5u);
  EXPECT_THAT(wrong, testing::IsEmpty());
}

std::set<std::string> Identifiers(const std::string& text) {
  std::set<std::string> found;
  const auto in_word = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; };
  for (auto it = text.begin(); it != text.end();) {
    it = std::find_if(it, text.end(), in_word);
    const auto last = std::find_if_not(it, text.end(), in_word);
    found.emplace(it, last);
    it = last;
  }
  return found;
}

// A function at namespace scope begins in the first column of a header, and its parenthesis follows its name.
std::set<std::string> DeclaredFunctions(const std::string& header) {
  std::set<std::string> found;
  std::istringstream lines(header);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t parenthesis = line.find('(');
    if (line.empty() || std::isalpha(static_cast<unsigned char>(line.front())) == 0) continue;
    if (parenthesis == std::string::npos || parenthesis == 0) continue;
    const std::size_t blank = line.find_last_of(" *&", parenthesis);
    if (blank == std::string::npos || line.starts_with("template") || line.starts_with("static_assert"))
      continue;
    found.insert(line.substr(blank + 1, parenthesis - blank - 1));
  }
  return found;
}

// Only tests call these: one speaks of message boxes as a script's output does, the other maps drives into a
// directory of the test's own.
const std::set<std::string> kForTests = {"MessageLine", "SetDriveRoot"};

std::string WithoutComments(const std::string& text) {
  std::string code;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) code += line.substr(0, line.find("//")) + "\n";
  return code;
}

TEST(HouseRules, EveryPublicFunctionOfThePlatformHasACaller) {
  const std::vector<Source> sources = ProductSources();
  std::map<std::string, std::map<std::string, std::size_t>> users;  // identifier, folder: files that name it
  for (const Source& source : sources) {
    for (const std::string& name : Identifiers(source.text)) ++users[name][source.folder];
  }
  std::set<std::string> unused;
  std::size_t seen = 0;
  for (const Source& header : sources) {
    if (!header.path.starts_with("platform/") || !header.path.ends_with(".h")) continue;
    const std::string code = WithoutComments(header.text);
    for (const std::string& name : DeclaredFunctions(code)) {
      ++seen;
      // Its own folder names it where it is declared and where it is defined: one more is a caller there.
      const bool outside = users[name].size() > 1;
      const std::size_t first = code.find(name + "(");
      const std::size_t line = code.rfind('\n', first) + 1;
      const bool defined_here = code.substr(line, first - line).find("inline") != std::string::npos ||
                                code.substr(line, first - line).find("const") != std::string::npos;
      const bool inside = users[name][header.folder] > (defined_here ? 1u : 2u);
      const bool in_header =
          code.find(name + "(", first + 1) != std::string::npos || code.find(name + "<") != std::string::npos;
      if (!outside && !inside && !in_header) unused.insert(name);
    }
  }
  EXPECT_GT(seen, 30u);
  EXPECT_THAT(unused, testing::UnorderedElementsAreArray(kForTests));
}

}  // namespace
