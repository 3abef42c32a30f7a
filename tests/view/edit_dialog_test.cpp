// The dialog for a value: the widths that no file gives, and its end in the midst of its own message.

#include "host/host_ptr.h"
#include "platform/headless/user.h"
#include "tests/view/pane_stage.h"
#include "view/dlg_edit_memory.h"

namespace pvw::test {
namespace {

using platform::CDialog;
namespace user = platform::user;

// Runs it with these steps of its user: the value, or "cancelled".
std::string RunDialog(FakeHost& host, platform::HeadlessDisplay& display, std::uint32_t bits,
                      std::vector<platform::DialogStep> steps) {
  display.Give(platform::DialogAnswer{std::move(steps)});
  CDlgEditMemory dialog(GetService<IQNumberFormat>(&host, IID_IQNumberFormat), 0, bits, "Edit R", &host,
                        nullptr);
  return dialog.DoModal() == static_cast<int>(platform::IDOK) ? std::to_string(dialog.GetValue())
                                                              : "cancelled";
}

TEST_F(PaneStage, TheEditDialogLimitsTheNewValueToItsWidth) {
  const struct {
    std::uint32_t bits;
    const char *typed, *limit;  // an empty limit: accepted
    const char* result = "cancelled";
  } kRows[] = {{0, "1", "0"},
               {33, "1FFFFFFFF", "", "8589934591"},
               {63, "8000000000000000", "7FFFFFFFFFFFFFFF"},
               {64, "FFFFFFFFFFFFFFFF", "", "18446744073709551615"}};
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::to_string(row.bits) + " bits, " + row.typed);
    shown.clear();
    const auto enter = [&](CDialog&) { user::TypeText(row.typed), user::PressKey(platform::VK_RETURN); };
    const auto cancel = [](CDialog&) { user::PressKey(platform::VK_ESCAPE); };
    const std::string limit = row.limit;
    std::vector<platform::DialogStep> steps = {enter};
    if (!limit.empty()) steps.push_back(cancel);
    EXPECT_EQ(RunDialog(host, display, row.bits, std::move(steps)), row.result);
    const std::string message =
        "message [exclamation]: The entered value is too big.\\nMust be less than or equal to " + limit +
        ".\n";
    EXPECT_EQ(shown, "dialog: Edit R\n" + (limit.empty() ? "" : message));
  }
}

TEST_F(PaneStage, TheEditDialogMayGoInItsOwnMessage) {
  const auto destroy = [this](CDialog& dialog) {
    meanwhile = [&dialog] { dialog.DestroyWindow(); };
    user::TypeText("x"), user::PressKey(platform::VK_RETURN);
  };
  EXPECT_EQ(RunDialog(host, display, 8, {destroy}), "cancelled");
  EXPECT_FALSE(meanwhile) << "there was a message";
}

}  // namespace
}  // namespace pvw::test
