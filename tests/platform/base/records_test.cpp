#include <gmock/gmock.h>

#include <cstdlib>
#include <cstring>

#include "platform/base/bstr.h"
#include "platform/base/guid.h"
#include "platform/base/system.h"
#include "platform/base/variant.h"
#include "tests/platform/base/scratch.h"

namespace platform {
namespace {

TEST(GuidTest, TextGoesBothWays) {
  constexpr std::string_view kText = "{80D58C53-E47D-11D3-8AF5-00AA0026624A}";
  constexpr GUID kGuid = MakeGuid(kText);
  EXPECT_EQ(kGuid.data1, 0x80D58C53u);
  EXPECT_EQ(kGuid.data3, 0x11D3);
  EXPECT_THAT(kGuid.data4, testing::ElementsAre(0x8A, 0xF5, 0x00, 0xAA, 0x00, 0x26, 0x62, 0x4A));
  EXPECT_EQ(GuidText(kGuid), kText);
  EXPECT_EQ(ParseGuid("{80d58c53-e47d-11d3-8af5-00aa0026624a}"), kGuid);
  for (const char* text :
       {"80D58C53-E47D-11D3-8AF5-00AA0026624A", "{80D58C53-E47D-11D3-8AF5-00AA0026624G}",
        "{80D58C53+E47D-11D3-8AF5-00AA0026624A}", "{80D58C53-E47D-11D3-8AF5-00AA0026624A} "}) {
    EXPECT_EQ(ParseGuid(text), std::nullopt) << text;
  }
}

TEST(BstrTest, CarriesItsLengthInFrontAndGoesThroughThePage) {
  ScopedBstr text(std::u16string_view(u"a\0\u00e9", 3));
  EXPECT_EQ(SysStringLen(text.Get()), 3u);
  EXPECT_EQ(text.Get()[3], 0);
  std::uint32_t bytes = 0;
  std::memcpy(&bytes, reinterpret_cast<const char*>(text.Get()) - 4, 4);
  EXPECT_EQ(bytes, 6u);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(text.Get()) % 16, 0u);
  EXPECT_EQ(BstrText(nullptr), "");
  EXPECT_NE(ScopedBstr("").Get(), nullptr);
  const CodePageScope scope(1252);
  EXPECT_EQ(text.Text(), std::string("a\0\xE9", 3));
  *text.Receive() = NewBstr("na\xEFve");  // frees the one before
  EXPECT_EQ(std::u16string_view(text.Get()), u"na\u00efve");
}

TEST(VariantTest, AnArrayOwnsItsElementsOfOneType) {
  ScopedVariant list;
  SAFEARRAY* array = SafeArrayCreateVector(VT_VARIANT, 2);
  *list.Receive() = VARIANT{VT_ARRAY | VT_BSTR, {.parray = array}};  // the array itself says what it holds
  EXPECT_EQ(SafeArrayVariantAt(array, 1)->vt, VT_EMPTY);
  *SafeArrayVariantAt(array, 0) = VARIANT{VT_BSTR, {NewBstr("freed with the array")}};
  EXPECT_EQ(SafeArrayVariantAt(array, 2), nullptr);
  EXPECT_EQ(SafeArrayBstrAt(array, 0), nullptr);

  array = SafeArrayCreateVector(VT_BSTR, 2);
  *list.Receive() = VARIANT{VT_ARRAY | VT_BSTR, {.parray = array}};
  *SafeArrayBstrAt(array, 1) = NewBstr("freed with the array");
  EXPECT_EQ(SafeArrayVariantAt(array, 0), nullptr);
  EXPECT_EQ(SafeArrayCreateVector(VT_UI1, 1), nullptr);
  EXPECT_EQ(SafeArrayCreateVector(VT_BSTR, ~std::size_t{0}), nullptr);
}

TEST(VariantTest, NestingOfAnyDepthIsFreed) {
  VARIANT outer;
  for (int depth = 0; depth < 200'000; ++depth) {
    SAFEARRAY* array = SafeArrayCreateVector(VT_VARIANT, 1);
    *SafeArrayVariantAt(array, 0) = outer;
    outer.vt = VT_ARRAY | VT_VARIANT;
    outer.parray = array;
  }
  VariantClear(&outer);
  EXPECT_EQ(outer.vt, VT_EMPTY);
}

class SystemTest : public ScratchTest {
 protected:
  ~SystemTest() override { tmpdir_.empty() ? unsetenv("TMPDIR") : setenv("TMPDIR", tmpdir_.c_str(), 1); }

  pvw::test::SystemAnswers system;

 private:
  const std::string tmpdir_ = std::getenv("TMPDIR") != nullptr ? std::getenv("TMPDIR") : "";
};

TEST_F(SystemTest, TheMachineAnswersWhatTheRecordLeavesOpen) {
  setenv("TMPDIR", Native("t").c_str(), 1);
  EXPECT_EQ(GetTempPath(), "d:\\t\\");
  setenv("TMPDIR", "relative", 1);
  EXPECT_EQ(GetTempPath(), "c:\\tmp\\");
  SetDriveRoot('c', root + "/c");
  SetDriveRoot('d', "");
  EXPECT_EQ(GetTempPath(), "c:\\windows\\") << "no drive shows the machine's own";
  system->temp_directory = "q:\\temp\\";
  EXPECT_EQ(GetTempPath(), "q:\\temp\\");

  setenv("USER", "j\u00f6rg", 1);
  const CodePageScope scope(1252);
  EXPECT_EQ(GetUserName(), "j\xF6rg");
  system->user = "anna";
  EXPECT_EQ(GetUserName(), "anna");
}

TEST_F(SystemTest, TheProfileKnowsTheLanguageAlone) {
  EXPECT_EQ(GetProfileString("INTL", "slanguage", "xyz", 9), "eng");
  system->language = "japanese.long";
  EXPECT_EQ(GetProfileString("intl", "sLanguage", "eng", 9), "japanese");
  EXPECT_EQ(GetProfileString("intl", "sLanguage", "eng", 0), "");
  EXPECT_EQ(GetProfileString("intl", "sCountry", "none", 9), "none");
}

}  // namespace
}  // namespace platform
