#include "component/services/session_store.h"

#include <gtest/gtest.h>

#include <limits>

#include "host/host_ptr.h"
#include "tests/support/fake_host.h"

namespace pvw {
namespace {

using test::FakeHost;

class SessionStoreTest : public testing::Test {
 protected:
  std::int32_t ReadInt(const std::string& key, std::int32_t default_value) {
    std::int32_t value = 77;
    EXPECT_EQ(store.ReadInt(key, default_value, &value), 0);
    return value;
  }
  std::string ReadString(const std::string& key, const std::string& default_value) {
    std::string value = "left over";
    EXPECT_EQ(store.ReadString(key, default_value, value), 0);
    return value;
  }

  FakeHost host;
  platform::ScopedBstr workspace{"ws"}, project{"prj"}, name{"name"}, configuration{"cfg"};
  CSessionStore store{GetService<IQDataManager>(&host, IID_IQDataManager),
                      workspace.Get(),
                      project.Get(),
                      name.Get(),
                      configuration.Get(),
                      ID_SessionStore};
};

TEST_F(SessionStoreTest, GivesTheDefaultForWhatTheHostDoesntGive) {
  EXPECT_EQ(ReadString("missing", "default"), "default");
  EXPECT_EQ(ReadInt("missing", -1), -1);
  host.FailNext("SetSessionValue", -3);
  EXPECT_EQ(store.WriteString("missing", "text"), -3) << "and the host's status of a write";

  store.WriteString("there", "text");
  host.text_on_failure = "not an answer";
  host.FailNext("GetSessionValue", platform::E_FAIL);
  EXPECT_EQ(ReadString("there", "default"), "default") << "a text that comes with a failure is no answer";
  host.FailNext("GetSessionValue", 1);
  EXPECT_EQ(ReadString("there", "default"), "default") << "only the status 0 says that there is a value";
}

TEST_F(SessionStoreTest, ReadsNumbersAsFarAsTheyGo) {
  constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
  const struct {
    const char* name;
    std::string text;
    std::int32_t value;  // 5 is the default
  } rows[] = {
      {"letters behind it", "12abc", 12},
      {"blanks of every kind before it", " \t\r\n\v\f12", 12},
      {"a plus sign", "+12", 12},
      {"no number", "abc", 5},
      {"a sign without digits", "- 1", 5},
      {"a hexadecimal prefix", "0x10", 0},
      {"a zero byte", std::string("1\0002", 3), 1},
      {"the smallest", "-2147483648", kMin},
      {"one too large", "2147483648", kMax},
      {"one too small", "-2147483649", kMin},
      {"far beyond 64 bits", std::string(5000, '9'), kMax},
  };
  for (const auto& row : rows) {
    store.WriteString("key", row.text);
    EXPECT_EQ(ReadInt("key", 5), row.value) << row.name;
  }
  store.WriteInt("key", kMin);
  EXPECT_EQ(ReadInt("key", 5), kMin);
}

TEST(SessionStore, WithoutADataManagerReadsDefaultsAndRefusesWrites) {
  CSessionStore store(nullptr, nullptr, nullptr, nullptr, nullptr, ID_SessionStore);
  std::string text;
  std::int32_t number = 0;
  store.ReadString("key", "default", text);
  store.ReadInt("key", 9, &number);
  EXPECT_EQ(text, "default");
  EXPECT_EQ(number, 9);
  EXPECT_EQ(store.WriteInt("key", 1), platform::E_FAIL);
}

}  // namespace
}  // namespace pvw
