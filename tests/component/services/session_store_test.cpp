#include "component/services/session_store.h"

#include <gtest/gtest.h>

#include "host/host_ptr.h"
#include "tests/support/fake_host.h"

namespace pvw {
namespace {

class SessionStoreTest : public testing::Test {
 protected:
  std::int32_t ReadInt(const std::string& key, std::int32_t default_value) {
    std::int32_t value = 77;
    EXPECT_EQ(store.ReadInt(key, default_value, &value), 0);
    return value;
  }
  std::string ReadString(const std::string& key) {
    std::string value = "left over";
    EXPECT_EQ(store.ReadString(key, "default", value), 0);
    return value;
  }

  test::FakeHost host;
  const platform::ScopedBstr any{"x"};
  CSessionStore store{GetService<IQDataManager>(&host, IID_IQDataManager),
                      any.Get(),
                      any.Get(),
                      any.Get(),
                      any.Get(),
                      ID_SessionStore};
};

TEST_F(SessionStoreTest, GivesTheDefaultForWhatTheHostDoesntGive) {
  EXPECT_EQ(ReadString("missing"), "default");
  EXPECT_EQ(ReadInt("missing", -1), -1);
  host.FailNext("SetSessionValue", -3);
  EXPECT_EQ(store.WriteString("missing", "text"), -3) << "and the host's status of a write";

  store.WriteString("there", "text");
  host.text_on_failure = "not an answer";
  host.FailNext("GetSessionValue", platform::E_FAIL);
  EXPECT_EQ(ReadString("there"), "default") << "a text that comes with a failure is no answer";
  host.FailNext("GetSessionValue", 1);
  EXPECT_EQ(ReadString("there"), "default") << "only the status 0 says that there is a value";
}

TEST_F(SessionStoreTest, ReadsNumbersAsFarAsTheyGo) {
  const std::pair<std::string, std::int32_t> rows[] = {
      {" \t\r\n\v\f+12", 12},
      {"- 1", 5},  // the default
      {std::string("1\0002", 3), 1},
      {"-2147483649", -2147483647 - 1},
      {std::string(5000, '9'), 2147483647},
  };
  for (const auto& [text, value] : rows) {
    store.WriteString("key", text);
    EXPECT_EQ(ReadInt("key", 5), value) << text;
  }
}

}  // namespace
}  // namespace pvw
