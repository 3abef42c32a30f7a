#include "support/error_manager.h"

#include <gmock/gmock.h>

#include "host/host_ptr.h"
#include "tests/support/fake_host.h"
#include "tests/support/recording_presenter.h"
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
  EXPECT_EQ(TextAfter(kAccessFailed), "Target access failed.");
  host.Lack(IID_IQErrorService);
  EXPECT_EQ(TextAfter(platform::E_FAIL), "Target access failed.") << "no service, and the text before stays";
  errors.ResetError();
  EXPECT_EQ(TextAfter(kAccessFailed), kMissing) << "unless there was none";
  host.Offer(IID_IQErrorService);
  host.text_on_failure = "left behind";
  host.FailAll("GetErrorText");
  EXPECT_EQ(TextAfter(kAccessFailed), kMissing) << "a call that fails, with a text all the same";
}

TEST_F(ErrorManagerTest, TheMissingTextFollowsTheLanguage) {
  test::SystemAnswers system;
  const test::CodePage page(932);
  for (const char* language : {"jpn", "JPN"}) {
    system->language = language;
    errors.ResetError();
    EXPECT_EQ(TextAfter(kUnknown),
              "\x93\xE0\x95\x94\x83\x47\x83\x89\x81\x5B: "
              "\x83\x47\x83\x89\x81\x5B\x83\x81\x83\x62\x83\x5A\x81\x5B"
              "\x83\x57\x82\xAA\x90\xDD\x92\xE8\x82\xB3\x82\xEA\x82\xC4\x82\xA2\x82\xDC\x82\xB9\x82\xF1"
              " (ErrorManager)");
  }
  for (const char* language : {"jp", "deu", ""}) {
    system->language = language;
    EXPECT_EQ(TextAfter(kUnknown), kMissing) << language;
  }
}

TEST_F(ErrorManagerTest, AnObjectMayExplainItsOwnStatus) {
  auto* format = GetService<IQAddressFormat>(&host, IID_IQAddressFormat);
  errors.SetMessageFrom(format, kAccessFailed);
  EXPECT_EQ(errors.GetErrorMessage(), "Target access failed.");
  EXPECT_EQ(errors.LastStatus(), 0);

  host.error_texts[kAccessFailed] = "another text";
  host.FailNext("QueryInterface");
  errors.SetMessageFrom(format, kAccessFailed);
  EXPECT_EQ(errors.GetErrorMessage(), "Target access failed.") << "no reporter, so the text stays";
}

TEST_F(ErrorManagerTest, AStatusIsShownWithATextInAnyCase) {
  host.error_texts[kUnknown] = "Unknown error.";
  test::RecordingPresenter shown;
  ShowStatus(&host, kAccessFailed);
  ShowStatus(&host, platform::E_FAIL);
  host.Lack(IID_IQErrorService);
  ShowStatus(&host, kAccessFailed);
  const std::string box = "message [exclamation]: ";
  EXPECT_THAT(shown.Lines(),
              ElementsAre(box + "Target access failed.", box + "Unknown error.", box + kMissing));
}

}  // namespace
}  // namespace pvw
