// The bases that answer the host for a client which cares for some of its calls only.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/services/stepping_client.h"
#include "component/services/workspace_client.h"

namespace pvw {
namespace {

using platform::Status;

template <typename Base>
class Client : public Base {
 public:
  Status QueryInterface(const platform::GUID*, void**) override { return platform::E_NOINTERFACE; }
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }
};

class SavingClient final : public Client<CWSClient2> {
 public:
  Status SaveSessionData(platform::BSTR, platform::BSTR, platform::BSTR) override { return 5; }
};

TEST(WorkspaceClient, TakesNoPartAndClearsItsOutputs) {
  SavingClient client;
  IQWorkSpaceClient2& face = client;
  std::uint32_t answer = 7;
  EXPECT_EQ(face.Reserved12(0, &answer), 0);
  EXPECT_EQ(answer, 0u);
  answer = 7;
  EXPECT_EQ(face.IsSessionDataDirty(nullptr, nullptr, nullptr, &answer), 0);
  EXPECT_EQ(answer, 0u);

  EXPECT_EQ(face.SaveSessionData(nullptr, nullptr, nullptr), 5) << "the one that it overrides";
  EXPECT_EQ(face.LoadSessionData(nullptr, nullptr, nullptr, nullptr), 0);
  EXPECT_EQ(face.Reserved1(1, 2) | face.Reserved23(1, 2, 3, 4) | face.Reserved45(1, 2, 3, 4), 0);
}

// Says what it is told: R for a refresh, E for one at the end of a stop without steps, 0 for a begin without
// steps, a dot for a step that is done.
class Steps final : public Client<CSteppingClient> {
 public:
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
  bool Busy() const { return stepInProgress; }
  bool Idle() const { return !stepInProgress && !quietSteps && stepCount == 0; }

  std::string said;
  bool busy_in_refresh = false;
};

TEST(SteppingClient, RefreshesOnceForARunOfQuietSteps) {
  struct Row {
    const char* name;
    bool begin;
    std::uint32_t count, kind;
    int steps;
    const char* said;
    bool busy;  // between begin and end
  };
  const Row rows[] = {
      {"quiet steps", true, 1, 7, 5, ".....R", true},
      {"plain steps", true, 1, 0, 5, "R.R.R.R.R.R", true},
      {"a kind beside the quiet one", true, 3, 8, 1, "R.R", true},
      {"a stop without steps, though quiet", true, 0, 7, 1, "0.ER", false},
      {"a stop without steps", true, 0, 0, 1, "0R.ER", false},
      {"a step and an end without a begin", false, 0, 0, 1, "R.ER", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Steps client;
    const Status begun = row.begin ? client.OnStepBegin(row.count, row.kind) : platform::S_OK;
    EXPECT_EQ(begun, 0);
    for (int i = 0; i < row.steps; ++i) EXPECT_EQ(client.OnStep(), 0);
    EXPECT_EQ(client.Busy(), row.busy);
    EXPECT_EQ(client.OnStepEnd(), 0);
    EXPECT_EQ(client.said, row.said);
    EXPECT_EQ(client.busy_in_refresh, row.busy) << "the end refreshes before it ends";
    EXPECT_TRUE(client.Idle());
  }
}

}  // namespace
}  // namespace pvw
