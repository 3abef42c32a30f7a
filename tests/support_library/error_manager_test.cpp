#include "support/error_manager.h"

#include <gmock/gmock.h>

#include "host/host_ptr.h"
#include "tests/support/fake_host.h"
#include "tests/support/scopes.h"

namespace pvw {
namespace {

using testing::ElementsAre;

constexpr platform::Status kAccessFailed = static_cast<platform::Status>(0x80040001u);
constexpr platform::Status kUnknown = static_cast<platform::Status>(0x80040905u);
const std::string kMissing = "INTERNAL ERROR: Unset err message (ErrorManager).";

class ErrorManagerTest : public testing::Test {
 protected:
  ErrorManagerTest() { host.error_texts[kAccessFailed] = "Target access failed."; }
  std::string TextAfter(platform::Status status) {
    errors.SetError(status);
    EXPECT_EQ(errors.LastStatus(), status);
    return errors.GetErrorMessage();
  }

  test::FakeHost host;
  ErrorManager errors{&host};
};

TEST_F(ErrorManagerTest, AFailureHasTheHostsTextAndASuccessItsOwn) {
  EXPECT_EQ(errors.GetErrorMessage(), "(S_OK)") << "nothing has been recorded";
  EXPECT_EQ(TextAfter(kAccessFailed), "Target access failed.");
  EXPECT_STREQ(errors.GetErrorMessagePointer(), "Target access failed.");
  EXPECT_THAT(host.Asked("GetErrorText"), ElementsAre("GetErrorText 80040001")) << "asked for once";
  EXPECT_EQ(TextAfter(1), "(S_OK)") << "a positive status is a success";
}

TEST_F(ErrorManagerTest, WhatTheHostLeavesOutIsFilledIn) {
  EXPECT_EQ(TextAfter(platform::E_FAIL), kMissing) << "an empty text";
  host.text_on_failure = "left behind";
  host.FailAll("GetErrorText");
  EXPECT_EQ(TextAfter(kAccessFailed), kMissing) << "a call that fails, with a text all the same";
}

TEST_F(ErrorManagerTest, TheMissingTextFollowsTheLanguage) {
  test::SystemAnswers system;
  const test::CodePage page(932);
  const std::pair<const char*, bool> rows[] = {
      {"jpn", true}, {"JPN", true}, {"jp", false}, {"deu", false}, {"", false}};
  for (const auto& [language, japanese] : rows) {
    system->language = language;
    errors.ResetError();
    EXPECT_EQ(TextAfter(kUnknown).starts_with("\x93\xE0\x95\x94\x83\x47"), japanese) << language;
  }
}

TEST_F(ErrorManagerTest, AnObjectMayExplainItsOwnStatus) {
  auto* format = GetService<IQAddressFormat>(&host, IID_IQAddressFormat);
  errors.SetMessageFrom(format, kAccessFailed);
  EXPECT_EQ(errors.LastStatus(), 0);
  host.error_texts[kAccessFailed] = "another text";
  host.FailNext("QueryInterface");
  errors.SetMessageFrom(format, kAccessFailed);
  EXPECT_EQ(errors.GetErrorMessage(), "Target access failed.") << "no reporter, so the text stays";
}

}  // namespace
}  // namespace pvw
