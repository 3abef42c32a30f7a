// The dialog for a value: what it shows, what it refuses, what it keeps.

#include "host/host_ptr.h"
#include "platform/gui/controls.h"
#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"
#include "view/dlg_edit_memory.h"

namespace pvw::test {
namespace {

using platform::CComboBox;
using platform::CDialog;
namespace user = platform::user;
using Steps = std::vector<platform::DialogStep>;

class EditDialog : public PaneStage {
 protected:
  // Runs it with these steps of its user: the value, or "cancelled".
  std::string Run(std::uint64_t value, std::uint32_t bits, Steps steps) {
    display.Give(platform::DialogAnswer{std::move(steps)});
    CDlgEditMemory dialog(numbers, value, bits, "Edit R", &host, nullptr);
    return dialog.DoModal() == static_cast<int>(platform::IDOK) ? std::to_string(dialog.GetValue())
                                                                : "cancelled";
  }
  static CComboBox& Box(CDialog& dialog, platform::UINT id = 312) {
    return static_cast<CComboBox&>(*dialog.GetDlgItem(id));
  }
  static std::function<void(CDialog&)> Enter(const char* text) {
    return [text](CDialog&) { user::TypeText(text), user::PressKey(platform::VK_RETURN); };
  }
  static void Cancel(CDialog&) { user::PressKey(platform::VK_ESCAPE); }

  std::string& kept = host.session["ws prj cfg MRULABELS_DATAMANAGER_KEY"];
  IQNumberFormat* numbers = GetService<IQNumberFormat>(&host, IID_IQNumberFormat);
};

TEST_F(EditDialog, ShowsTheValueTwiceAndLimitsTheNewOneToItsWidth) {
  const struct {
    std::uint64_t value;
    std::uint32_t bits;
    const char *text, *typed, *limit;  // an empty limit: accepted
    const char* result = "cancelled";
  } kRows[] = {{0, 8, "0", "100", "FF"},
               {0x0A, 8, "A", "FF", "", "255"},
               {2, 3, "2", "8", "7"},
               {0, 0, "0", "1", "0"},
               {0x1234, 16, "1234", "h'ffff", "", "65535"},
               {0x7FFFFFFF, 31, "7FFFFFFF", "80000000", "7FFFFFFF"},
               {0xFFFFFFFF, 32, "FFFFFFFF", "100000000", "FFFFFFFF"},
               {0x123456789A, 63, "123456789A", "8000000000000000", "7FFFFFFFFFFFFFFF"},
               {5, 64, "5", "FFFFFFFFFFFFFFFF", "", "18446744073709551615"}};
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::to_string(row.bits) + " bits, " + row.typed);
    shown.clear();
    const auto look = [&](CDialog& dialog) {
      EXPECT_EQ(Box(dialog, 311).GetText(), row.text);
      EXPECT_EQ(Box(dialog).GetText(), row.text);
      host.ClearTranscript();
    };
    const std::string limit = row.limit;
    const Steps refused = {look, Enter(row.typed), &EditDialog::Cancel};
    EXPECT_EQ(Run(row.value, row.bits, limit.empty() ? Steps{look, Enter(row.typed)} : refused), row.result);
    const std::string message =
        "message [exclamation]: The entered value is too big.\\nMust be less than or equal to " + limit +
        ".\n";
    EXPECT_EQ(shown, "dialog: Edit R\n" + (limit.empty() ? "" : message));
    EXPECT_EQ(host.Asked("FormatQuad").size(), limit.empty() ? 0u : 1u) << "the limit in 64 bits";
  }
}

TEST_F(EditDialog, StaysOpenOnTheFaultyTextAndKeepsWhatItAccepts) {
  host.error_texts[static_cast<platform::Status>(0x80040906u)] = "Invalid number.";
  kept = "3|0x2b";
  const auto press_ok = [](CDialog& dialog) { user::TypeText("xyz"), user::PressOk(dialog); };
  const auto look = [&](CDialog& dialog) {
    EXPECT_EQ(platform::GetFocus(), Box(dialog).GetHandle());
    EXPECT_EQ(Box(dialog).GetText(), "xyz");
    EXPECT_EQ(Box(dialog).GetEditSelEnd(), 3u) << "typing replaces it";
    EXPECT_THAT(Box(dialog).GetStrings(), testing::ElementsAre("3", "0x2b"));
    EXPECT_THAT(Box(dialog, 311).GetStrings(), testing::IsEmpty());
  };
  EXPECT_EQ(Run(1, 8, {press_ok, look, &EditDialog::Cancel}), "cancelled");
  EXPECT_EQ(shown, "dialog: Edit R\nmessage [exclamation]: Invalid number.\n");
  EXPECT_EQ(kept, "3|0x2b");
  const auto pick = [](CDialog&) {
    user::PressKey('N', platform::MK_ALT);
    for (const platform::UINT key : {platform::VK_DOWN, platform::VK_DOWN, platform::VK_RETURN}) {
      user::PressKey(key);
    }
  };
  EXPECT_EQ(Run(1, 8, {pick}), "43");
  EXPECT_EQ(kept, "0x2b|3");
}

TEST_F(EditDialog, LivesWithoutServicesAndDiesInItsOwnMessage) {
  numbers = nullptr;
  host.Lack(IID_IQErrorService);
  EXPECT_EQ(Run(7, 8, {Enter("3"), &EditDialog::Cancel}), "cancelled");
  EXPECT_THAT(shown, testing::HasSubstr("message [exclamation]: INTERNAL ERROR"));
  const auto destroy = [this](CDialog& dialog) {
    meanwhile = [&dialog] { dialog.DestroyWindow(); };
    user::PressKey(platform::VK_RETURN);
  };
  EXPECT_EQ(Run(7, 8, {destroy}), "cancelled");
}

}  // namespace
}  // namespace pvw::test
