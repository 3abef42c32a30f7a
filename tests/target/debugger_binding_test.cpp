// Hosts that connect and disconnect, and what then stands behind the debugger entries.

#include "target/debugger_binding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>

#include "host/ids.h"
#include "platform/base/paths.h"
#include "platform/base/system.h"
#include "tests/support/fake_host.h"
#include "tests/support/recording_presenter.h"

namespace pvw {
namespace {

using E = DebugEntries;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kNeverFilled = std::to_array(
    {&E::IN1_Get_Mem_Endian, &E::IN1_Get_Mem_Endian2, &E::IN1_Get_Mem_Endian4, &E::IN1_IsStep,
     &E::LOAD_ChkSrcInfo, &E::LOAD_GetSRCname, &E::LOAD_GetSRCname2, &E::LOAD_GetOBJname, &E::LOAD_GetNowObj,
     &E::LOAD_BitToVal, &E::LOAD_GlobalSymToVal, &E::LOAD_LocalSymToVal, &E::LOAD_GlobalBitToVal,
     &E::LOAD_LocalBitToVal, &E::EVT_Happen, &E::EVT_ChkLoadfile, &E::Mangle_demangle, &E::GetCppDB});

constexpr auto kFilled = std::make_tuple(
    &E::IN1_Get_mcu_info, &E::IN1_Get_service_info, &E::IN1_Get_PC, &E::IN1_Get_reg, &E::IN1_Put_reg,
    &E::IN1_Get_regtbl_num, &E::IN1_Get_regtbl_no, &E::IN1_Get_regtbl_name, &E::IN1_Get_regtbl_menu,
    &E::IN1_Get_Mem_EndianNC, &E::IN1_Get_Mem_Endian2NC, &E::IN1_Get_Mem_Endian4NC, &E::IN1_Get_Mem,
    &E::IN1_Get_Mem2, &E::IN1_Get_Mem4, &E::IN1_Get_MemNC, &E::IN1_Get_Mem2NC, &E::IN1_Get_Mem4NC,
    &E::IN1_Put_Mem_Endian, &E::IN1_Put_Mem_Endian2, &E::IN1_Put_Mem_Endian4, &E::IN1_Put_Mem,
    &E::IN1_Put_Mem2, &E::IN1_Put_Mem4, &E::IN1_Put_Value, &E::IN1_Fill, &E::IN1_Fill_Value, &E::IN1_Move,
    &E::IN1_Move2, &E::IN1_Move4, &E::IN1_Search_Value, &E::IN1_GetMapInfo, &E::IN1_Check_Map,
    &E::IN1_Get_Area, &E::IN1_Check_run, &E::IN1_Check_running, &E::IN1_Set_BP, &E::IN1_Reset_BP,
    &E::IN1_All_Reset_BP, &E::IN1_Disable_BP, &E::IN1_All_Disable_BP, &E::IN1_All_Enable_BP,
    &E::IN1_Search_BP, &E::IN1_Get_BP, &E::IN1_Get_rram, &E::IN1_Check_RramArea, &E::EXP_Eval, &E::EXP_Eval64,
    &E::EXP_ASM_Eval, &E::LOAD_ValToSym, &E::LOAD_SymToVal, &E::ENV_Get_LANG, &E::IN1_Get_rram_area,
    &E::IN1_Get_rram_size, &E::IN1_Get_PDVersion, &E::LOAD_HasAsmInfo, &E::ERR_GetErrMsg);
static_assert(std::tuple_size_v<decltype(kFilled)> + std::size(kNeverFilled) == 75);

// An argument of whatever type: 0, or room for an output, which reads as the empty text.
struct AnyArgument {
  operator std::uint32_t() const { return 0; }
  template <typename T>
  operator T*() const {
    static std::uint64_t room;
    room = 0;
    return reinterpret_cast<T*>(&room);
  }
};

template <typename Result, typename... Arguments>
bool Answers(Result (*entry)(Arguments...)) {
  return entry(static_cast<Arguments>(AnyArgument{})...) != Result{};
}

// Calls each of the 57, and counts those that answer anything but 0.
std::size_t CountAnswers() {
  return std::apply([](auto... members) { return (std::size_t{0} + ... + Answers(g_debugEntries.*members)); },
                    kFilled);
}

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

  CDebugBinding& Binding() { return *g_debugBindings.at(&host_); }

  test::FakeHost host_;
  test::RecordingPresenter presenter_;

 private:
  platform::HMODULE library_ = nullptr;
};

TEST_F(BindingTest, EntriesAreFilledWhileAHostIsBoundAndEachConnectStartsAfresh) {
  BindDebuggerFunctions(&host_, 1);
  EXPECT_EQ(g_debugHost, &host_);
  EXPECT_EQ(NullEntries(), 18u);
  for (const auto member : kNeverFilled) EXPECT_EQ(g_debugEntries.*member, nullptr);

  EXPECT_EQ(g_debugEntries.IN1_Put_Value(0, 9, 0, 0, 0), 0);
  BindDebuggerFunctions(&host_, 1);
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "(S_OK)");
  EXPECT_EQ(g_debugBindings.size(), 1u);
  EXPECT_EQ(g_debugHostEntries.size(), 1u);

  UnbindDebuggerFunctions(&host_);
  EXPECT_EQ(NullEntries(), 75u);
  EXPECT_THAT(g_debugBindings, IsEmpty());
  EXPECT_THAT(g_debugHostEntries, IsEmpty());
}

TEST_F(BindingTest, WithoutALibraryOnlyWhatTheComponentUsesAnswers) {
  BindDebuggerFunctions(&host_, 1);
  EXPECT_EQ(CountAnswers(), 4u) << "a write of no bytes, the area, the language and the error text";
  std::uint32_t value = 0;
  EXPECT_EQ(g_debugEntries.IN1_Get_Area(0, &value, &value, &value), 1);
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 32u);
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(297), 0u);
  EXPECT_EQ(g_debugEntries.IN1_Get_service_info(1015), 1u);
  EXPECT_EQ(g_debugEntries.ENV_Get_LANG(), 1u);
  platform::System().language = "JPN";
  EXPECT_EQ(g_debugEntries.ENV_Get_LANG(), 0u);
  platform::System().language = "eng";
  EXPECT_FALSE(Binding().m_bLibraryCall);

  host_.ClearTranscript();
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
  host_.ClearTranscript();
  EXPECT_EQ(g_debugEntries.IN1_Put_Value(0, 9, 0, 0, 0), 0);
  EXPECT_THAT(host_.Transcript(), IsEmpty());

  UnbindDebuggerFunctions(&other);
  EXPECT_EQ(NullEntries(), 18u);
  EXPECT_EQ(CountAnswers(), 0u);
  SetCurrentDebugHost(&host_);
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "(S_OK)");

  BindDebuggerFunctions(nullptr, 1);
  EXPECT_EQ(g_debugBindings.size(), 1u) << "a connect without a host first drops every other";
  EXPECT_EQ(CountAnswers(), 0u);
  UnbindDebuggerFunctions(nullptr);
  EXPECT_EQ(NullEntries(), 75u);
}

TEST_F(BindingTest, ALibraryIsAskedForFunctionByFunctionAndComesFirst) {
  GiveLibrary("debugger_library.dll");
  BindDebuggerFunctions(&host_, 1);
  std::vector<std::string> expected = {"GetService IQDebugPlatform", "GetService IQDebugPlatform"};
  for (int i = 0; i < 16; ++i) {
    expected.insert(expected.end(), {"GetService IQDebugLibrary", "GetLibraryHandle"});
  }
  std::vector<std::string> tail = host_.Transcript();
  tail.erase(tail.begin(), tail.end() - static_cast<std::ptrdiff_t>(expected.size()));
  EXPECT_EQ(tail, expected);

  const E& entries = g_debugEntries;
  std::uint32_t map = 0, value = 0, assembled = 0, first, last;
  std::uint64_t wide = 0;
  EXPECT_EQ(entries.IN1_GetMapInfo(5, &first, &last, &map), 1);
  EXPECT_EQ(entries.EXP_Eval("abc", 16, 1, &value), 1);
  EXPECT_EQ(entries.EXP_Eval64("abcd", 10, 0, &wide), 1);
  EXPECT_EQ(entries.EXP_ASM_Eval("ab", 2, 0, &assembled), 1);
  EXPECT_THAT((std::vector<std::uint64_t>{
                  entries.IN1_Get_mcu_info(1), entries.IN1_Get_service_info(2), entries.IN1_Get_regtbl_num(),
                  entries.IN1_Get_regtbl_no(4), entries.IN1_Get_regtbl_name(5),
                  entries.IN1_Get_regtbl_menu(6), map, value, wide, assembled, entries.IN1_Get_rram(11),
                  entries.IN1_Check_RramArea(12), entries.IN1_Get_rram_area(13),
                  entries.IN1_Get_rram_size(14), entries.IN1_Get_PDVersion(), entries.LOAD_HasAsmInfo()}),
              ElementsAre(1001, 2002, 3000, 4004, 5005, 6006, 7000, 9163, 8104, 9022, 11011, 12012, 13013,
                          14014, 15000, 16000));
  EXPECT_TRUE(Binding().m_bLibraryCall);
}

TEST_F(BindingTest, TheErrorTextComesFromTheSideThatFailed) {
  GiveLibrary("debugger_library.dll");
  host_.error_texts = {{platform::E_FAIL, "from the host"}};
  BindDebuggerFunctions(&host_, 1);
  host_.ClearTranscript();

  std::uint64_t wide = 0;
  EXPECT_EQ(g_debugEntries.EXP_Eval64("", 16, 0, &wide), 0);
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "from the library");

  // The write asks the library for the width of the bus on its way.
  host_.FailNext("WriteMemory");
  EXPECT_EQ(g_debugEntries.IN1_Put_Value(0x1000, 4, 1, 0, 0), 0);
  EXPECT_THAT(host_.Asked("Write"), ElementsAre("WriteMemory 00001000-00001003 width 2: 00 00 00 01"));
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "from the host");

  g_debugEntries.LOAD_HasAsmInfo();
  EXPECT_STREQ(g_debugEntries.ERR_GetErrMsg(), "from the library");
}

TEST_F(BindingTest, ALibraryThatLacksAFunctionIsNamedAndThrownOut) {
  GiveLibrary("debugger_library_lacking.dll");
  const auto bind = [&] {
    std::string thrown;
    try {
      BindDebuggerFunctions(&host_, 1);
    } catch (const char* name) {
      thrown = name;
    }
    EXPECT_EQ(thrown, "LOAD_HasAsmInfo");
    EXPECT_EQ(g_debugHost, &host_);
    EXPECT_EQ(Binding().m_pfnGetMcuInfo, nullptr);
    EXPECT_NE(Binding().m_pSession, nullptr);
  };
  bind();
  EXPECT_THAT(
      presenter_.Lines(),
      ElementsAre("beep", "message \"Error\": Can not get the address of the function LOAD_HasAsmInfo."));
  EXPECT_EQ(NullEntries(), 75u);

  test::FakeHost other;
  BindDebuggerFunctions(&other, 1);
  bind();
  EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 32u) << "the other host's entries lead to the session";
}

TEST_F(BindingTest, AHostWithoutALibraryAfterAllLeavesEveryEntryToTheSession) {
  host_.Offer(IID_IQDebugPlatform);
  const std::pair<const char*, void (*)(test::FakeHost&)> rows[] = {
      {"the handle is refused", [](test::FakeHost& host) { host.library = nullptr; }},
      {"no service hands it out", [](test::FakeHost& host) { host.Lack(IID_IQDebugLibrary); }},
  };
  for (const auto& [name, spoil] : rows) {
    SCOPED_TRACE(name);
    spoil(host_);
    EXPECT_NO_THROW(BindDebuggerFunctions(&host_, 1));
    EXPECT_EQ(g_debugEntries.IN1_Get_mcu_info(298), 32u);
    EXPECT_THAT(presenter_.Lines(), IsEmpty());
  }
}

// A target that drops off while it is read: the host disconnects before the read returns.
class DroppingHost final : public IQComponentHost, public IQTargetMemory {
 public:
  platform::Status ReadDirect(std::uint32_t, std::uint32_t, std::uint32_t, std::uint8_t*) override {
    UnbindDebuggerFunctions(this);
    return platform::E_FAIL;
  }
  platform::Status GetService(const platform::GUID* id, void** out) override {
    if (*id != IID_IQTargetMemory) return platform::E_NOINTERFACE;
    *out = static_cast<IQTargetMemory*>(this);
    return platform::S_OK;
  }
  // Not called here.
  platform::Status ReadDirectLittle(std::uint32_t, std::uint32_t, std::uint32_t, std::uint8_t*) override {
    return 0;
  }
  platform::Status WriteMemory(std::uint32_t, std::uint32_t, std::uint32_t, const std::uint8_t*) override {
    return 0;
  }
  platform::Status QueryInterface(const platform::GUID*, void**) override { return platform::E_NOINTERFACE; }
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }
  platform::Status FireEvent(const QEventRecord*) override { return 0; }
  platform::Status AddClient(const platform::GUID*, void*) override { return 0; }
  platform::Status AddServer(const platform::GUID*, void*) override { return 0; }
  platform::Status RemoveClient(const platform::GUID*, void*) override { return 0; }
  platform::Status RemoveServer(const platform::GUID*, void*) override { return 0; }
};

TEST_F(BindingTest, AHostMayDisconnectInTheMidstOfARead) {
  DroppingHost host;
  BindDebuggerFunctions(&host, 1);
  std::uint32_t value = 0xCAFE;
  EXPECT_EQ(g_debugEntries.IN1_Get_Mem_EndianNC(0, 1, 1, &value), 0);
  EXPECT_EQ(value, 0xCAFEu);
  EXPECT_EQ(NullEntries(), 75u);
}

}  // namespace
}  // namespace pvw
