// Sessions and settings on disk: what comes back, and what becomes of files that can't be used.

#include "ioview/store/store_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ioview/store/store_text.h"
#include "tests/support/temp_dir.h"

namespace ioview {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class StoreFiles : public testing::Test {
 protected:
  std::string Native(std::string_view name) const { return dir_.Native(name).string(); }
  std::string Content(std::string_view name) const {
    std::ifstream file(dir_.Native(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  pvw::test::TempDir dir_;
  LoadNotes notes_;
  std::string why_;
};

TEST(StoredText, GivesEveryTextBack) {
  using namespace std::string_literals;
  struct {
    const char* name;
    std::u16string text;
    std::string stored;
  } const cases[] = {
      {"one to three bytes", u"a\u00E9\u20AC", "a\xC3\xA9\xE2\x82\xAC"},
      {"the first and the last pair", u"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
      {"a lone lead at the end", u"a"s + char16_t(0xD800), "a\0D800"s},
      {"a trail before its lead", std::u16string{0xDC80, 0xD800, u'x'}, "\0DC80\0D800x"s},
      {"a zero that looks like a mark", u"\0DC80"s, "\0"s + "0000DC80"},
      {"a zero at the end", u"a\0"s, "a\0"s + "0000"},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(StoredText(row.text), row.stored) << row.name;
    EXPECT_EQ(TextFromStore(StoredText(row.text)), row.text) << row.name;
  }
  EXPECT_EQ(TextFromStore("\0xyz1\0"s), u"\0xyz1\0"s);
  EXPECT_EQ(TextFromStore("\x80\xE2\x82"), u"\uFFFD\uFFFD\uFFFD");
}

TEST_F(StoreFiles, ASessionComesBackInItsOrder) {
  using namespace std::string_literals;
  SessionValues values;
  values.Set({u"w", u"p", u"Release"}, u"z", u"1");
  values.Set({u"w", u"p", u"Debug"}, u"b", u"line\n\"quoted\"\\");
  values.Set({u"w", u"p", u"Debug"}, u"a\0"s, std::u16string{0xDC81});
  values.Set({u"w", u"p", u"Release"}, u"", u"");
  const std::string path = SessionFileOf(Native("work"));
  ASSERT_TRUE(SaveSessionFile(path, values, why_)) << why_;

  const SessionValues again = LoadSessionFile(path, notes_);
  EXPECT_THAT(notes_.lines, IsEmpty());
  EXPECT_EQ(again.AllNames(), values.AllNames());
  const auto same = [](const auto& a, const auto& b) { return a.key == b.key && a.value == b.value; };
  for (const SessionValues::Names& names : values.AllNames()) {
    EXPECT_TRUE(std::ranges::equal(again.Entries(names), values.Entries(names), same));
  }
  EXPECT_TRUE(LoadSessionFile(Native("elsewhere"), notes_).AllNames().empty());
  EXPECT_THAT(notes_.lines, IsEmpty());
}

TEST_F(StoreFiles, SettingsComeBackAndANoteOfTheUserStays) {
  dir_.Write("s.json", R"({"note": {"mine": [1]}, "settings": [], "window": "00"})");
  SettingsContents contents;
  contents.settings.Set(u"S", u"K", -2147483647 - 1);
  contents.settings.Set(u"", u"K", u"text");
  contents.settings.Set(u"S", u"L", 2147483647);
  contents.global_placeholders = {{"N", "V", "D"}, {"M", "", ""}};
  contents.window_layout = std::string("\0\xFF\x7Fz", 4);
  const std::string path = Native("s.json");
  ASSERT_TRUE(SaveSettingsFile(path, contents, why_)) << why_;

  const SettingsContents again = LoadSettingsFile(path, notes_);
  EXPECT_THAT(notes_.lines, IsEmpty());
  EXPECT_EQ(again.window_layout, contents.window_layout);
  EXPECT_TRUE(std::ranges::equal(again.settings.Entries(), contents.settings.Entries(),
                                 [](const auto& a, const auto& b) {
                                   return a.section == b.section && a.key == b.key && a.value == b.value;
                                 }));
  ASSERT_EQ(again.global_placeholders.size(), 2u);
  EXPECT_EQ(again.global_placeholders[0].description, "D");
  EXPECT_THAT(Content("s.json"), HasSubstr("\"mine\""));
}

TEST_F(StoreFiles, ABadFileIsKeptAsideAndTheStoreStartsEmpty) {
  const std::string deep(100'000, '[');
  const char* const no_number = "neither text nor a number of 32 bits";
  struct {
    const char* name;
    std::string content;
    const char* fault;
  } const cases[] = {
      {"cut off", "{\n\"sessions\": [", "it isn't JSON from line 2 on"},
      {"empty", "", "it isn't JSON"},
      {"not UTF-8", "{\"sessions\": \"\xFF\"}", "it isn't JSON"},
      {"a lone surrogate", R"({"sessions": "\ud800"})", "it isn't JSON"},
      {"a number that no double holds", "{\"x\": 1e999}", "a number beyond all bounds"},
      {"a list", "[]", "it holds no object"},
      {"nested without end", deep, "nested too deeply"},
      {"nested below a member of others", "{\"x\":" + deep.substr(0, 64) + std::string(64, ']') + "}",
       "nested too deeply"},
      {"sessions of another type", R"({"sessions": {}})", "\"sessions\" is no list"},
      {"a session that is none", R"({"sessions": [1]})", "\"sessions\" is no list of objects"},
      {"a session without names", R"({"sessions": [{}]})", "\"workspace\" is missing"},
      {"a value that is a number",
       R"({"sessions": [{"workspace": "", "project": "", "configuration": "", "values": {"a": "b", "k": 5}}]})",
       "\"values\" is no text"},
      {"settings: too large", R"({"settings": [{"key": "K", "value": 2147483648}]})", no_number},
      {"settings: too small", R"({"settings": [{"key": "K", "value": -2147483649}]})", no_number},
      {"settings: 65 bits", R"({"settings": [{"key": "K", "value": 18446744073709551616}]})", no_number},
      {"settings: a fraction", R"({"settings": [{"key": "K", "value": 1.0}]})", no_number},
      {"settings: a key", R"({"settings": [{"key": 1, "value": 1}]})", "\"key\" is no text"},
      {"settings: no value", R"({"settings": [{"key": "K"}]})", "\"value\" is missing"},
      {"settings: placeholders", R"({"placeholders": [{"value": "V"}]})", "\"name\" is missing"},
      {"settings: no digit", R"({"window": "0g"})", "\"window\" is no row of hexadecimal digits"},
      {"settings: half a byte", R"({"window": "000"})", "\"window\" is no row of hexadecimal digits"},
  };
  const std::string path = Native("store.json");
  for (const auto& row : cases) {
    SCOPED_TRACE(row.name);
    dir_.Write("store.json", row.content);
    notes_ = {};
    if (std::string_view(row.name).starts_with("settings")) {
      EXPECT_TRUE(LoadSettingsFile(path, notes_).settings.Entries().empty());
    } else {
      EXPECT_TRUE(LoadSessionFile(path, notes_).AllNames().empty());
    }
    EXPECT_THAT(notes_.lines,
                ElementsAre(testing::AllOf(StartsWith(path + " can't be used: "), HasSubstr(row.fault),
                                           testing::EndsWith("It is kept as " + path + ".bad."))));
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(Content("store.json.bad"), row.content);
    fs::remove(path + ".bad");
  }
  // What is no file at all isn't the program's to move: the user named the wrong thing.
  fs::create_directory(path);
  EXPECT_TRUE(LoadSessionFile(path, notes_).AllNames().empty());
  EXPECT_THAT(notes_.lines.back(), HasSubstr("It can't be kept aside, so nothing will be stored"));
  EXPECT_FALSE(SaveSessionFile(path, {}, why_));
  EXPECT_TRUE(fs::is_directory(path));
}

TEST_F(StoreFiles, WhatCannotBeWrittenStaysAsItWas) {
  // A file that went bad after it was loaded is kept aside as well.
  dir_.Write("session.json", "{,}");
  SessionValues values;
  values.Set({}, u"k", u"v");
  EXPECT_TRUE(SaveSessionFile(Native("session.json"), values, why_));
  EXPECT_EQ(Content("session.json.bad"), "{,}");
  dir_.Write("session.json", R"({"sessions": "mine"})");
  EXPECT_TRUE(SaveSessionFile(Native("session.json"), values, why_));
  EXPECT_EQ(Content("session.json.bad2"), R"({"sessions": "mine"})");

  // Nothing is left aside when nothing comes in its place.
  SessionValues large;
  large.Set({}, u"k", std::u16string(std::size_t{65} << 20, u'x'));
  dir_.Write("large.json", "{,}");
  EXPECT_FALSE(SaveSessionFile(Native("large.json"), large, why_));
  EXPECT_THAT(why_, HasSubstr("larger than 64 MiB"));
  EXPECT_EQ(Content("large.json"), "{,}");

  const std::string before = Content("session.json");
  fs::permissions(Native("session.json"), fs::perms::owner_read);
  values.Set({}, u"k", u"w");
  EXPECT_FALSE(SaveSessionFile(Native("session.json"), values, why_));
  EXPECT_THAT(why_, StartsWith(Native("session.json") + " can't be written: "));
  EXPECT_EQ(Content("session.json"), before);

  // A file where the folder should be, and no place at all.
  dir_.Write(".ioview", "mine");
  EXPECT_FALSE(SaveSessionFile(SessionFileOf(dir_.Native().string()), values, why_));
  EXPECT_THAT(why_, HasSubstr("its folder can't be made"));
  EXPECT_FALSE(SaveSettingsFile("", {}, why_));
}

TEST_F(StoreFiles, SettingsLieWhereTheUserKeepsConfigurations) {
  setenv("HOME", "/home/ann", 1);
  setenv("XDG_CONFIG_HOME", "/cfg", 1);
  EXPECT_EQ(DefaultSettingsFile(), "/cfg/ioview/settings.json");
  setenv("XDG_CONFIG_HOME", "relative", 1);
  EXPECT_EQ(DefaultSettingsFile(), "/home/ann/.config/ioview/settings.json");
  unsetenv("HOME");
  EXPECT_THAT(DefaultSettingsFile(), testing::EndsWith("/.config/ioview/settings.json"));
  unsetenv("XDG_CONFIG_HOME");
}

}  // namespace
}  // namespace ioview
