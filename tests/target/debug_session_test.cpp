// Reads, writes and expressions of a session, and what the host is asked for them.

#include "target/debug_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "host/ids.h"
#include "tests/support/fake_host.h"

namespace pvw {
namespace {

using ::testing::ElementsAre;

constexpr platform::Status kBroken = static_cast<platform::Status>(0x80040001u);

// A little-endian area at 1000 to 1FFF, and at both 1000 and 2000 the bytes 34 12 78 56.
class SessionTest : public testing::Test {
 protected:
  SessionTest() {
    host_.SetLittle(0x1000, 0x1FFF);
    host_.Poke(0x1000, {0x34, 0x12, 0x78, 0x56});
    host_.Poke(0x2000, {0x34, 0x12, 0x78, 0x56});
    host_.error_texts = {{kBroken, "broken"},
                         {platform::E_FAIL, "failed"},
                         {kStatusTooManyBytes, "too many bytes"},
                         {kStatusValueTooHigh, "too high"},
                         {kStatusValueTooLow, "too low"}};
  }

  // A session as the host now is; the transcript doesn't show how it was made.
  CDebugSession& NewSession(bool debug_platform = false) {
    debug_platform ? host_.Offer(IID_IQDebugPlatform) : host_.Lack(IID_IQDebugPlatform);
    session_ = std::make_unique<CDebugSession>(&host_);
    host_.ClearTranscript();
    return *session_;
  }

  test::FakeHost host_;
  std::unique_ptr<CDebugSession> session_;
};

TEST_F(SessionTest, AsksForWhatItKeepsInOrder) {
  const CDebugSession session(&host_);
  EXPECT_THAT(
      host_.Transcript(),
      ElementsAre("GetService IQDebugSession", "GetService IQDebugExtra", "GetService IQDebugger",
                  "GetService IQTargetMemory", "GetService IQBlockMemory", "GetService IQBreakpoints",
                  "GetService IQCpuRegisters", "GetService IQDebugExtra2", "GetService IQRegisterInfo",
                  "GetService IQAddressFormat", "GetService IQDebugPlatform"));
}

TEST_F(SessionTest, ReadsInTheByteOrderOfTheArea) {
  struct Row {
    const char* name;
    bool debug_platform;
    std::uint32_t address, unit, width;
    std::vector<std::uint32_t> values;
    std::string asked;
  };
  const Row rows[] = {
      {"big-endian", false, 0x2000, 2, 2, {0x3412}, "ReadDirect 00002000-00002001 width 2"},
      {"little-endian", false, 0x1000, 2, 2, {0x1234}, "ReadDirectLittle 00001000-00001001 width 2"},
      {"little-endian with a platform", true, 0x1000, 2, 2, {0x1234}, "ReadDirect 00001000-00001001 width 2"},
      {"a long by bytes", false, 0x1000, 4, 1, {0x56781234}, "ReadDirectLittle 00001000-00001003 width 1"},
      {"three bytes", false, 0x2001, 3, 1, {0x127856}, "ReadDirect 00002001-00002003 width 1"},
      {"two at once", false, 0x2000, 2, 2, {0x3412, 0x7856}, "ReadDirect 00002000-00002003 width 2"},
      {"past the end", false, 0xFFFFFFFE, 4, 2, {0xFEFF0001}, "ReadDirect FFFFFFFE-00000001 width 2"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    CDebugSession& session = NewSession(row.debug_platform);
    std::vector<std::uint32_t> values(row.values.size());
    const auto count = static_cast<std::uint32_t>(values.size());
    EXPECT_TRUE(session.GetValuesDirect(row.address, count, row.unit, row.width, values.data()));
    EXPECT_EQ(values, row.values);
    const std::string area = "GetAreaInfo " + row.asked.substr(row.asked.find(' ') + 1, 8);
    EXPECT_THAT(host_.Transcript(),
                ElementsAre("GetService IQMemoryMap", area, row.asked, "GetService IQMemoryMap", area));
  }
}

TEST_F(SessionTest, AReadOfAnySizeIsSane) {
  struct Row {
    const char* name;
    std::uint32_t count, unit;
    bool done;
    std::size_t reads;
    const char* text;
  };
  const Row rows[] = {
      {"no values", 0, 4, true, 0, "(S_OK)"},
      {"values of no bytes", 1, 0, false, 0, "(S_OK)"},
      {"values of 5 bytes are read, then refused", 1, 5, false, 1, "(S_OK)"},
      {"far beyond the address space", 0xFFFFFFFF, 0xFFFFFFFF, false, 0, "failed"},
      {"4 bytes modulo 2 to the 32nd", 0x40000001, 4, false, 0, "failed"},
      {"one value too many", kMaxReadBytes / 4 + 1, 4, false, 0, "failed"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    CDebugSession& session = NewSession();
    std::uint32_t value = 0xCAFE;
    EXPECT_EQ(session.GetValuesDirect(0x2000, row.count, row.unit, 1, &value), row.done);
    EXPECT_EQ(value, 0xCAFEu);
    EXPECT_EQ(host_.Asked("ReadDirect").size(), row.reads);
    EXPECT_EQ(session.GetErrorMessage(), row.text);
  }
  std::vector<std::uint32_t> values(1000);
  EXPECT_TRUE(NewSession().GetValuesDirect(0x3000, 1000, 4, 4, values.data()));
  EXPECT_EQ(values[999], 0x9C9D9E9Fu);
}

TEST_F(SessionTest, AMapWithoutAnAnswerIsOneBigEndianArea) {
  CDebugSession& session = NewSession();
  const auto area = [&] {
    std::vector<std::uint32_t> result(3, 0xCAFE);
    result.push_back(session.GetAreaInfo(0x1000, &result[0], &result[1], &result[2]));
    return result;
  };
  EXPECT_THAT(area(), ElementsAre(274, 0x1000, 0x1FFF, 1));
  host_.FailNext("GetAreaInfo");
  EXPECT_THAT(area(), ElementsAre(273, 0, 0xFFFFFFFF, 0));
  host_.GiveNull(IID_IQMemoryMap);
  EXPECT_THAT(area(), ElementsAre(273, 0, 0xFFFFFFFF, 0));
  host_.Lack(IID_IQMemoryMap);
  EXPECT_THAT(area(), ElementsAre(273, 0, 0xFFFFFFFF, 0));
  std::uint32_t value = 0;
  EXPECT_TRUE(session.GetValuesDirect(0x1000, 1, 2, 2, &value));
  EXPECT_EQ(value, 0x3412u);
}

TEST_F(SessionTest, WritesOneNumberAsTheHostTakesIt) {
  CDebugSession& session = NewSession();
  EXPECT_TRUE(session.PutValue(0x1000, 4, 0x12345678, 0, 0));
  EXPECT_THAT(host_.Transcript(), ElementsAre("GetService IQMemoryMap", "GetAreaInfo 00001000",
                                              "WriteBlock 00001000-00001003 flag 0: 12 34 56 78"));
  host_.ClearTranscript();
  EXPECT_TRUE(session.PutValue(0x2001, 1, 0xABCD, 0, 1));
  EXPECT_TRUE(session.PutValue(0x2000, 8, 0x55667788, 0x11223344, 0));
  EXPECT_TRUE(session.PutValue(0x2000, 0, 1, 1, 0));
  EXPECT_THAT(host_.Asked("Write"),
              ElementsAre("WriteBlock 00002001-00002001 flag FFFFFFFF: CD",
                          "WriteBlock 00002000-00002007 flag 0: 11 22 33 44 55 66 77 88"));

  CDebugSession& wide = NewSession(true);
  EXPECT_TRUE(wide.PutValue(0x1002, 4, 0x12345678, 0, 1));
  EXPECT_THAT(host_.Transcript(),
              ElementsAre("GetService IQMemoryMap", "GetAreaInfo 00001002", "GetService IQDebugPlatform",
                          "WriteMemory 00001002-00001005 width 2: 78 56 34 12"));
  host_.ClearTranscript();
  EXPECT_TRUE(wide.PutValue(0x2004, 4, 0x12345678, 0, 0));
  EXPECT_TRUE(wide.PutValue(0x1000, 8, 0x55667788, 0x11223344, 0));
  EXPECT_TRUE(wide.PutValue(0x2000, 0, 1, 1, 0));
  EXPECT_THAT(host_.Asked("Write"),
              ElementsAre("WriteMemory 00002004-00002007 width 4: 12 34 56 78",
                          "WriteMemory 00001000-00001007 width 4: 88 77 66 55 44 33 22 11"));
}

TEST_F(SessionTest, AFailureLeavesItsTextAndGivesFalse) {
  struct Row {
    const char* name;
    bool debug_platform;
    std::uint32_t address, write_size;  // 0 reads
    const char* failing;
    const platform::GUID* lacking;
    const char* text;
  };
  const Row rows[] = {
      {"a read", false, 0x2000, 0, "ReadDirect", nullptr, "broken"},
      {"a little-endian read", false, 0x1000, 0, "ReadDirectLittle", nullptr, "broken"},
      {"a write", false, 0x2000, 4, "WriteBlock", nullptr, "broken"},
      {"a write by width", true, 0x2000, 4, "WriteMemory", nullptr, "broken"},
      {"nine bytes", false, 0x2000, 9, "", nullptr, "too many bytes"},
      {"nine bytes by width", true, 0x2000, 9, "", nullptr, "too many bytes"},
      {"a read without target memory", false, 0x2000, 0, "", &IID_IQTargetMemory, "failed"},
      {"a write without target memory", true, 0x2000, 4, "", &IID_IQTargetMemory, "failed"},
      {"a write without block memory", false, 0x2000, 4, "", &IID_IQBlockMemory, "failed"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    if (row.lacking != nullptr) host_.Lack(*row.lacking);
    host_.FailNext(row.failing, kBroken);
    CDebugSession& session = NewSession(row.debug_platform);
    std::uint32_t value = 0xCAFE;
    EXPECT_FALSE(row.write_size == 0 ? session.GetValuesDirect(row.address, 1, 4, 4, &value)
                                     : session.PutValue(row.address, row.write_size, 1, 0, 0));
    EXPECT_EQ(value, 0xCAFEu);
    EXPECT_EQ(session.GetErrorMessage(), row.text);
    if (row.lacking != nullptr) host_.Offer(*row.lacking);
  }
  // A positive status is none; what the host leaves out of the buffer is zero.
  host_.FailNext("ReadDirect", 1);
  std::uint32_t value = 0xCAFE;
  EXPECT_TRUE(NewSession().GetValuesDirect(0x2000, 1, 4, 4, &value));
  EXPECT_EQ(value, 0u);
}

TEST_F(SessionTest, AnExpressionMustFit32Bits) {
  struct Row {
    std::int64_t value;
    const char* text;
  };
  const Row rows[] = {{0xFFFFFFFF, "(S_OK)"},
                      {0x100000000, "too high"},
                      {std::numeric_limits<std::int64_t>::max(), "too high"},
                      {-0x80000000LL, "(S_OK)"},
                      {-0x80000001LL, "too low"},
                      {std::numeric_limits<std::int64_t>::min(), "too low"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.value);
    host_.expressions["x"] = row.value;
    CDebugSession& session = NewSession();
    std::uint32_t result = 0xCAFE;
    const bool fits = session.ExpEval("x", 16, 0, &result);
    EXPECT_EQ(result, fits ? static_cast<std::uint32_t>(row.value) : 0xCAFE);
    EXPECT_EQ(session.GetErrorMessage(), row.text);
  }
  host_.Lack(IID_IQAddressFormat);
  std::uint32_t result = 0;
  EXPECT_FALSE(NewSession().ExpEval("x", 16, 0, &result));
  EXPECT_EQ(session_->GetErrorMessage(), "failed");
}

TEST_F(SessionTest, AnExpressionIsTriedTwiceAndExplainedByItsOwnService) {
  CDebugSession& session = NewSession();
  std::uint32_t value = 0;
  host_.expressions = {{"x", 5}};
  host_.FailNext("EvaluateExpression");
  EXPECT_TRUE(session.ExpEval("x", 7, 0, &value));
  EXPECT_EQ(value, 5u);
  host_.FailNext("EvaluateExpression");
  host_.FailNext("EvaluateExpression2", kBroken);
  EXPECT_FALSE(session.ExpEval("x", 2, 0, &value));
  EXPECT_THAT(host_.Transcript(), ElementsAre("EvaluateExpression x radix 0", "EvaluateExpression2 x radix 0",
                                              "EvaluateExpression x radix 2", "EvaluateExpression2 x radix 2",
                                              "QueryInterface IQErrorReporter", "GetErrorText 80040001"));
  EXPECT_EQ(session.GetErrorMessage(), "broken");
}

}  // namespace
}  // namespace pvw
