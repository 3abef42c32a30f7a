// When a client of the stepping service refreshes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/services/stepping_client.h"

namespace pvw {
namespace {

using platform::Status;

// Says what it is told: R for a refresh, E for one at the end of a stop without steps, 0 for a begin without
// steps, a dot for a step that is done.
class Steps final : public CSteppingClient {
 public:
  Status QueryInterface(const platform::GUID*, void**) override { return platform::E_NOINTERFACE; }
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }
  void OnRefreshNeeded() override {
    said += 'R';
    busy_in_refresh = stepInProgress;
  }
  void OnRefreshAtEnd() override {
    said += 'E';
    CSteppingClient::OnRefreshAtEnd();
  }
  void OnNoSteps() override { said += '0'; }
  void OnStepDone() override { said += '.'; }
  bool Idle() const { return !stepInProgress && !quietSteps && stepCount == 0; }

  std::string said;
  bool busy_in_refresh = false;
};

TEST(SteppingClient, RefreshesOnceForARunOfQuietSteps) {
  const struct {
    const char* name;
    bool begin;
    std::uint32_t count, kind;
    int steps;
    const char* said;
    bool busy;  // between begin and end
  } rows[] = {
      {"quiet steps", true, 1, 7, 5, ".....R", true},
      {"plain steps", true, 1, 0, 5, "R.R.R.R.R.R", true},
      {"a kind beside the quiet one", true, 3, 8, 1, "R.R", true},
      {"a stop without steps, though quiet", true, 0, 7, 1, "0.ER", false},
      {"a stop without steps", true, 0, 0, 1, "0R.ER", false},
      {"a step and an end without a begin", false, 0, 0, 1, "R.ER", false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Steps client;
    if (row.begin) client.OnStepBegin(row.count, row.kind);
    for (int i = 0; i < row.steps; ++i) client.OnStep();
    EXPECT_EQ(client.OnStepEnd(), 0);
    EXPECT_EQ(client.said, row.said);
    EXPECT_EQ(client.busy_in_refresh, row.busy) << "the end refreshes before it ends";
    EXPECT_TRUE(client.Idle());
  }
}

}  // namespace
}  // namespace pvw
