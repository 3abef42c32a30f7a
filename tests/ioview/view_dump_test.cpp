// What a dump asks of the target, and which rows it shows when the target or the file doesn't play along.

#include "ioview/interim/view_dump.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ioview/host/host_services.h"
#include "ioview/statuses.h"
#include "tests/support/recording_presenter.h"
#include "tests/support/temp_dir.h"

namespace ioview::interim {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ViewDump : public testing::Test {
 protected:
  ViewDump() { host_.target.LogAccesses(true); }

  // The rows of the dump, without the heading, blanks at the end, and runs of blanks in between.
  std::vector<std::string> Rows(Page page, OpenRows open, std::string selection = {}) {
    std::string text;
    WriteViewDump(host_.root, {dir_.Path("device.io"), std::move(selection), page, open},
                  [&text](std::string_view piece) { text += piece; });
    std::vector<std::string> rows;
    for (std::size_t start = 0; start < text.size();) {
      const std::size_t end = text.find('\n', start);
      std::string row;
      for (const char c : text.substr(start, end - start)) {
        if (c != ' ' || !row.ends_with(' ')) row += c;
      }
      if (row.ends_with(' ')) row.pop_back();
      rows.push_back(row);
      start = end + 1;
    }
    rows.erase(rows.begin(), rows.begin() + 2);
    return rows;
  }

  std::vector<std::string> Accesses() {
    std::vector<std::string> lines;
    for (const Access& access : host_.target.TakeAccesses()) lines.push_back(AccessText(access));
    return lines;
  }

  pvw::test::TempDir dir_;
  HostServices host_;
  pvw::test::RecordingPresenter messages_;
};

constexpr char kTwoModules[] =
    "[Modules]\nFileVersion=3\nModule1=A\nModule2=B\n"
    "[A]\naddr=100\ndep_reg=D\nreg0=R0\nreg1=R1\n[D]\nreladdr=50\n"
    "[R0]\nname=R0\nreladdr=0\nsize=16\n[R1]\nname=R1\nreladdr=5\nsize=32\nbitfield0=F\n[F]\nname=F\nbit="
    "4\nlen=4\n"
    "[B]\naddr=200\nreg0=R0\n";

TEST_F(ViewDump, ReadsOnlyWhatIsOpen) {
  dir_.Write("device.io", kTwoModules);
  const std::string r0 = "read 00000100-00000101 width 2 plain";
  const std::string r1 = "read 00000105-00000108 width 1 plain";
  const std::string b = "read 00000200-00000201 width 2 plain";

  Rows(Page::kAll, OpenRows::kNone, "{A?{R0?}}");
  EXPECT_THAT(Accesses(), IsEmpty());

  Rows(Page::kAll, OpenRows::kModules);
  EXPECT_THAT(Accesses(), ElementsAre(r0, r1, b));

  // A row that is opened is read again.
  Rows(Page::kAll, OpenRows::kAll);
  EXPECT_THAT(Accesses(), ElementsAre(r0, r1, r1, b));

  // The selected page knows the registers already, so its module is read as in a refresh, dependency first.
  Rows(Page::kSelected, OpenRows::kModules, "{A?{R0?}}");
  EXPECT_THAT(Accesses(), ElementsAre("read 00000150-00000150 width 1 plain", r0, r1));

  host_.target.SetArea({0x104, 0x1FF, ByteOrder::kLittle});
  Rows(Page::kAll, OpenRows::kModules);
  EXPECT_THAT(Accesses(), ElementsAre(r0, "read 00000105-00000108 width 1 little", b));
}

TEST_F(ViewDump, ShowsZerosWhereTheTargetCannotBeRead) {
  dir_.Write("device.io", kTwoModules);
  host_.target.Poke(0x100, std::vector<std::uint8_t>(16, 0xFF));
  host_.target.FailReads(kTargetAccessFailed);

  EXPECT_THAT(Rows(Page::kAll, OpenRows::kModules),
              ElementsAre("[-]-- A", " | |--- R0 H'00000100 0000 RW", " |[+]-- R1 H'00000105 00000000 RW",
                          "[-]-- B", " | |--- R0 H'00000200 0000 RW"));
  EXPECT_THAT(messages_.Lines(), IsEmpty());

  // Neither does a host without any target.
  host_.root.Withdraw(pvw::IID_IQDebugger);
  Accesses();
  EXPECT_EQ(Rows(Page::kAll, OpenRows::kModules).size(), 5u);
  EXPECT_THAT(Accesses(), IsEmpty());
}

}  // namespace
}  // namespace ioview::interim
