// Hosts that connect and disconnect, and what then stands behind the debugger entries.

#include "target/debugger_binding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "host/ids.h"
#include "platform/base/paths.h"
#include "platform/base/system.h"
#include "tests/support/fake_host.h"
#include "tests/support/recording_presenter.h"

namespace pvw {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::size_t NullEntries() {
  std::array<const void*, 75> pointers;
  std::memcpy(pointers.data(), &g_debugEntries, sizeof pointers);
  return static_cast<std::size_t>(std::ranges::count(pointers, nullptr));
}

class BindingTest : public testing::Test {
 protected:
  ~BindingTest() override {
    UnbindDebuggerFunctions(nullptr);
    g_debugHostEntries.clear();
    SetCurrentDebugHost(nullptr);
    if (library_ != nullptr) platform::FreeLibrary(library_);
  }

  // Lets the host hand out a debugger library.
  void GiveLibrary(const char* name) {
    library_ =
        platform::LoadLibrary(platform::FromNativePath(BINARY_DIR "/bin/" + std::string(name)).value());
    ASSERT_NE(library_, nullptr);
    host_.library = library_;
    host_.Offer(IID_IQDebugPlatform);
  }

  test::FakeHost host_;
  test::RecordingPresenter presenter_;

 private:
  platform::HMODULE library_ = nullptr;
};

TEST_F(BindingTest, EntriesAreFilledWhileAHostIsBoundAndEachConnectStartsAfresh) {
  BindDebuggerFunctions(&host_, 1);
  EXPECT_EQ(g_debugHost, &host_);
  EXPECT_EQ(NullEntries(), 18u);
  EXPECT_EQ(g_debugEntries.IN1_Put_Value(0, 9, 0, 0, 0), 0);
  BindDebuggerFunctions(&host_, 1);
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "(S_OK)");
  EXPECT_EQ(g_debugBindings.size(), 1u);
  UnbindDebuggerFunctions(&host_);
  EXPECT_EQ(NullEntries(), 75u);
  EXPECT_THAT(g_debugBindings, IsEmpty());
}

TEST_F(BindingTest, WithoutALibraryWhatTheComponentUsesAnswers) {
  BindDebuggerFunctions(&host_, 1);
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 32u);
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(297), 0u);
  EXPECT_EQ(g_debugEntries.IN1_Get_service_info(1015), 1u);
  EXPECT_EQ(g_debugEntries.ENV_Get_LANG(), 1u);
  platform::System().language = "JPN";
  EXPECT_EQ(g_debugEntries.ENV_Get_LANG(), 0u);
  platform::System().language = "eng";

  std::uint32_t value = 0;
  EXPECT_EQ(g_debugEntries.IN1_Get_Mem_EndianNC(0x11, 1, 4, &value), 1);
  EXPECT_EQ(g_debugEntries.IN1_Get_Mem_Endian2NC(0x12, 1, 2, &value), 1);
  EXPECT_EQ(g_debugEntries.IN1_Get_Mem_Endian4NC(0x14, 1, 4, &value), 1);
  EXPECT_EQ(value, 0x14151617u);
  EXPECT_THAT(host_.Asked("ReadDirect"),
              ElementsAre("ReadDirect 00000011-00000014 width 1", "ReadDirect 00000012-00000013 width 2",
                          "ReadDirect 00000014-00000017 width 4"));
}

TEST_F(BindingTest, OnlyTheCurrentHostActsAndOneThatIsUnboundGivesNothing) {
  test::FakeHost other;
  BindDebuggerFunctions(&host_, 1);
  BindDebuggerFunctions(&other, 1);
  EXPECT_EQ(g_debugEntries.IN1_Put_Value(0, 9, 0, 0, 0), 0);
  UnbindDebuggerFunctions(&other);
  EXPECT_EQ(NullEntries(), 18u);
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 0u);
  SetCurrentDebugHost(&host_);
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "(S_OK)") << "the failure was the other's";

  BindDebuggerFunctions(nullptr, 1);
  EXPECT_EQ(g_debugBindings.size(), 1u) << "a connect without a host first drops every other";
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 0u);
  UnbindDebuggerFunctions(nullptr);
  EXPECT_EQ(NullEntries(), 75u);
}

TEST_F(BindingTest, ALibraryComesFirst) {
  GiveLibrary("debugger_library.dll");
  BindDebuggerFunctions(&host_, 1);
  const DebugEntries& entries = g_debugEntries;
  std::uint32_t map = 0, value = 0, assembled = 0, first, last;
  std::uint64_t wide = 0;
  EXPECT_EQ(entries.IN1_GetMapInfo(5, &first, &last, &map) + entries.EXP_Eval("abc", 16, 1, &value) +
                entries.EXP_Eval64("abcd", 10, 0, &wide) + entries.EXP_ASM_Eval("ab", 2, 0, &assembled),
            4);
  EXPECT_THAT((std::vector<std::uint64_t>{
                  entries.IN1_Get_mcu_info(1), entries.IN1_Get_service_info(2), entries.IN1_Get_regtbl_num(),
                  entries.IN1_Get_regtbl_no(4), entries.IN1_Get_regtbl_name(5),
                  entries.IN1_Get_regtbl_menu(6), map, value, wide, assembled, entries.IN1_Get_rram(11),
                  entries.IN1_Check_RramArea(12), entries.IN1_Get_rram_area(13),
                  entries.IN1_Get_rram_size(14), entries.IN1_Get_PDVersion(), entries.LOAD_HasAsmInfo()}),
              ElementsAre(1001, 2002, 3000, 4004, 5005, 6006, 7000, 9163, 8104, 9022, 11011, 12012, 13013,
                          14014, 15000, 16000));
}

TEST_F(BindingTest, TheErrorTextComesFromTheSideThatFailed) {
  GiveLibrary("debugger_library.dll");
  host_.error_texts = {{platform::E_FAIL, "from the host"}};
  BindDebuggerFunctions(&host_, 1);
  std::uint64_t wide = 0;
  EXPECT_EQ(g_debugEntries.EXP_Eval64("", 16, 0, &wide), 0);
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "from the library");

  // The write asks the library for the width of the bus on its way.
  host_.FailNext("WriteMemory");
  EXPECT_EQ(g_debugEntries.IN1_Put_Value(0x1000, 4, 1, 0, 0), 0);
  EXPECT_THAT(host_.Asked("Write"), ElementsAre("WriteMemory 00001000-00001003 width 2: 00 00 00 01"));
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "from the host");
}

TEST_F(BindingTest, ALibraryThatLacksAFunctionIsNamedAndThrownOut) {
  GiveLibrary("debugger_library_lacking.dll");
  const auto bind = [&] {
    try {
      BindDebuggerFunctions(&host_, 1);
      return std::string("bound");
    } catch (const char* name) {
      return std::string(name);
    }
  };
  EXPECT_EQ(bind(), "LOAD_HasAsmInfo");
  EXPECT_THAT(
      presenter_.Lines(),
      ElementsAre("beep", "message \"Error\": Can not get the address of the function LOAD_HasAsmInfo."));
  EXPECT_EQ(NullEntries(), 75u);

  test::FakeHost other;
  BindDebuggerFunctions(&other, 1);
  EXPECT_EQ(bind(), "LOAD_HasAsmInfo");
  EXPECT_EQ(g_debugHost, &host_);
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 32u) << "the other host's entries lead to the session";
}

TEST_F(BindingTest, AHostWithoutALibraryAfterAllLeavesEveryEntryToTheSession) {
  host_.Offer(IID_IQDebugPlatform);
  BindDebuggerFunctions(&host_, 1);
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 32u) << "the handle is refused";
  host_.Lack(IID_IQDebugLibrary);
  BindDebuggerFunctions(&host_, 1);
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 32u) << "no service hands it out";
  EXPECT_THAT(presenter_.Lines(), IsEmpty());
}

TEST_F(BindingTest, ATargetMayDropOffWhileItIsBound) {
  for (int number = 0;; ++number) {
    int left = number;
    host_.during["GetService"] = [&] {
      if (left-- == 0) UnbindDebuggerFunctions(&host_);
    };
    BindDebuggerFunctions(&host_, 1);
    if (left >= 0) break;
    EXPECT_TRUE(g_debugBindings.empty()) << number;
    EXPECT_EQ(NullEntries(), 75u) << number;
  }
}

TEST_F(BindingTest, ATargetMayDropOffInTheMidstOfARead) {
  BindDebuggerFunctions(&host_, 1);
  host_.FailNext("ReadDirect");
  host_.during["ReadDirect"] = [this] { UnbindDebuggerFunctions(&host_); };
  std::uint32_t value = 0xCAFE;
  EXPECT_EQ(g_debugEntries.IN1_Get_Mem_EndianNC(0, 1, 1, &value), 0);
  EXPECT_EQ(value, 0xCAFEu);
  EXPECT_EQ(NullEntries(), 75u);
}

}  // namespace
}  // namespace pvw
