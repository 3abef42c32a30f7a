// Turns the host's news of single steps into refreshes, so that a run of quiet steps costs one.
#pragma once

#include <cstdint>

#include "host/component_clients.h"

namespace pvw {

// The operations of IQUnknown are the subclass's.
class CSteppingClient : public IQSteppingClient {
 public:
  // Each gives 0, whatever came of it.
  platform::Status OnStepBegin(std::uint32_t step_count, std::uint32_t kind) override;
  platform::Status OnStep() override;
  // Refreshes always, also without a begin, and is idle afterwards.
  platform::Status OnStepEnd() override;

  virtual ~CSteppingClient() = default;
  virtual void OnRefreshNeeded() = 0;
  // The end of a stop without steps.
  virtual void OnRefreshAtEnd() { OnRefreshNeeded(); }
  // A begin without steps.
  virtual void OnNoSteps() {}
  // Behind each step, refreshed or not.
  virtual void OnStepDone() {}

 protected:
  bool stepInProgress = false;  // from a begin with steps to the end; a stop without steps doesn't count
  std::uint32_t stepCount = 0;
  bool quietSteps = false;  // no refresh at a single step
};

}  // namespace pvw
