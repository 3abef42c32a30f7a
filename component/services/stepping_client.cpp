#include "component/services/stepping_client.h"

namespace pvw {

namespace {

constexpr std::uint32_t kQuiet = 7;

}  // namespace

platform::Status CSteppingClient::OnStepBegin(std::uint32_t step_count, std::uint32_t kind) {
  stepCount = step_count;
  if (kind == kQuiet) quietSteps = true;
  if (stepCount == 0) {
    OnNoSteps();
  } else {
    stepInProgress = true;
  }
  return platform::S_OK;
}

platform::Status CSteppingClient::OnStep() {
  if (!quietSteps) OnRefreshNeeded();
  OnStepDone();
  return platform::S_OK;
}

platform::Status CSteppingClient::OnStepEnd() {
  // Still in progress meanwhile: an event that the refresh itself brings about is dropped.
  if (stepCount == 0) {
    OnRefreshAtEnd();
  } else {
    OnRefreshNeeded();
  }
  stepInProgress = false;
  quietSteps = false;
  stepCount = 0;
  return platform::S_OK;
}

}  // namespace pvw
