// Reads, writes and expressions of a session, and what the host is asked for them.

#include "target/debug_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST_F(SessionTest, ReadsInTheByteOrderOfTheArea) {
  struct Row {
    const char* name;
    bool debug_platform;
    std::uint32_t address, unit, width;
    std::uint32_t value;
    std::string asked;
  };
  const Row rows[] = {
      {"big-endian", false, 0x2000, 2, 2, 0x3412, "ReadDirect 00002000-00002001 width 2"},
      {"little-endian", false, 0x1000, 2, 2, 0x1234, "ReadDirectLittle 00001000-00001001 width 2"},
      {"little-endian with a platform", true, 0x1000, 2, 2, 0x1234, "ReadDirect 00001000-00001001 width 2"},
      {"a long by bytes", false, 0x1000, 4, 1, 0x56781234, "ReadDirectLittle 00001000-00001003 width 1"},
      {"past the end", false, 0xFFFFFFFE, 4, 2, 0xFEFF0001, "ReadDirect FFFFFFFE-00000001 width 2"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    CDebugSession& session = NewSession(row.debug_platform);
    std::uint32_t values[] = {0, 0xCAFE};
    EXPECT_TRUE(session.GetValuesDirect(row.address, 1, row.unit, row.width, values));
    EXPECT_THAT(values, ElementsAre(row.value, 0xCAFE));
    EXPECT_THAT(host_.Asked("Read"), ElementsAre(row.asked));
  }
}

TEST_F(SessionTest, AReadOfAnySizeIsSane) {
  struct Row {
    const char* name;
    std::uint32_t count, unit;
    bool done;
    std::size_t reads;
    const char* text = "(S_OK)";
  };
  const Row rows[] = {
      {"no values", 0, 4, true, 0},
      {"values of no bytes", 1, 0, false, 0},
      {"values of 5 bytes are read, then refused", 1, 5, false, 1},
      {"far beyond the address space", 0xFFFFFFFF, 0xFFFFFFFF, false, 0, "failed"},
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
  host_.Lack(IID_IQMemoryMap);
  EXPECT_THAT(area(), ElementsAre(273, 0, 0xFFFFFFFF, 0));
}

TEST_F(SessionTest, WritesOneNumberAsTheHostTakesIt) {
  CDebugSession& session = NewSession();
  EXPECT_TRUE(session.PutValue(0x1000, 4, 0x12345678, 0, 0));
  EXPECT_TRUE(session.PutValue(0x2001, 1, 0xABCD, 0, 1));
  EXPECT_TRUE(session.PutValue(0x2000, 8, 0x55667788, 0x11223344, 0));
  EXPECT_TRUE(session.PutValue(0x2000, 0, 1, 1, 0));
  EXPECT_THAT(host_.Asked("Write"),
              ElementsAre("WriteBlock 00001000-00001003 flag 0: 12 34 56 78",
                          "WriteBlock 00002001-00002001 flag FFFFFFFF: CD",
                          "WriteBlock 00002000-00002007 flag 0: 11 22 33 44 55 66 77 88"));

  CDebugSession& wide = NewSession(true);
  EXPECT_TRUE(wide.PutValue(0x1002, 4, 0x12345678, 0, 1));
  EXPECT_TRUE(wide.PutValue(0x2004, 4, 0x12345678, 0, 0));
  EXPECT_TRUE(wide.PutValue(0x1000, 8, 0x55667788, 0x11223344, 0));
  EXPECT_TRUE(wide.PutValue(0x2000, 0, 1, 1, 0));
  EXPECT_THAT(host_.Asked("Write"),
              ElementsAre("WriteMemory 00001002-00001005 width 2: 78 56 34 12",
                          "WriteMemory 00002004-00002007 width 4: 12 34 56 78",
                          "WriteMemory 00001000-00001007 width 4: 88 77 66 55 44 33 22 11"));
}

TEST_F(SessionTest, AFailureLeavesItsTextAndGivesFalse) {
  struct Row {
    const char* failing;
    bool debug_platform;
    std::uint32_t address, write_size;  // 0 reads
    const char* text = "broken";
  };
  const Row rows[] = {
      {"ReadDirect", false, 0x2000, 0},         {"ReadDirectLittle", false, 0x1000, 0},
      {"WriteBlock", false, 0x2000, 4},         {"WriteMemory", true, 0x2000, 4},
      {"", false, 0x2000, 9, "too many bytes"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.failing);
    host_.FailNext(row.failing, kBroken);
    CDebugSession& session = NewSession(row.debug_platform);
    std::uint32_t value = 0xCAFE;
    EXPECT_FALSE(row.write_size == 0 ? session.GetValuesDirect(row.address, 1, 4, 4, &value)
                                     : session.PutValue(row.address, row.write_size, 1, 0, 0));
    EXPECT_EQ(value, 0xCAFEu);
    EXPECT_EQ(session.GetErrorMessage(), row.text);
  }
  std::uint32_t value = 0xCAFE;
  host_.FailNext("ReadDirect", 1);
  EXPECT_TRUE(NewSession().GetValuesDirect(0x2000, 1, 4, 4, &value)) << "a positive status is no failure";
  EXPECT_EQ(value, 0u) << "what the host leaves out is zero";
  for (const platform::GUID& service : {IID_IQTargetMemory, IID_IQBlockMemory}) host_.Lack(service);
  EXPECT_FALSE(NewSession().PutValue(0x2000, 4, 1, 0, 0));
  EXPECT_FALSE(session_->GetValuesDirect(0x2000, 1, 4, 4, &value));
  EXPECT_EQ(session_->GetErrorMessage(), "failed");
}

TEST_F(SessionTest, AnExpressionMustFit32Bits) {
  const std::pair<std::int64_t, const char*> rows[] = {{0xFFFFFFFF, "(S_OK)"},
                                                       {0x100000000, "too high"},
                                                       {-0x80000000LL, "(S_OK)"},
                                                       {-0x80000001LL, "too low"}};
  for (const auto& [value, text] : rows) {
    host_.expressions["x"] = value;
    std::uint32_t result = 0xCAFE;
    const bool fits = NewSession().ExpEval("x", 16, 0, &result);
    EXPECT_EQ(result, fits ? static_cast<std::uint32_t>(value) : 0xCAFE) << value;
    EXPECT_EQ(session_->GetErrorMessage(), text);
  }
}

TEST_F(SessionTest, AnExpressionIsTriedTwiceAndExplainedByItsOwnService) {
  CDebugSession& session = NewSession();
  std::uint32_t value = 0;
  host_.expressions = {{"x", 5}};
  host_.FailNext("EvaluateExpression");
  EXPECT_TRUE(session.ExpEval("x", 7, 0, &value) && value == 5);
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
