// The host operations that the component called, in order, for a script to print.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace ioview {

class CallLog {
 public:
  // What is kept when nobody takes it; older calls are dropped then.
  static constexpr std::size_t kMostCalls = 1'000'000;
  static constexpr std::size_t kMostBytes = std::size_t{64} << 20;  // of their texts

  // Off at first: nobody may ever take the log.
  void Switch(bool on) { on_ = on; }
  bool IsOn() const { return on_; }
  // `call` is the operation with its arguments: `ReadDirect(16711680, 16711680, 1, *)`. `service` stays
  // valid.
  void Add(std::string_view service, std::string call);
  // The calls since the last Take, as SERVICE.OPERATION(ARGUMENTS); with a service only its own. Forgets all
  // of them.
  std::vector<std::string> Take(std::string_view service = {});

 private:
  struct Call {
    std::string_view service;
    std::string text;
  };

  bool on_ = false;
  std::deque<Call> calls_;
  std::size_t bytes_ = 0;
};

}  // namespace ioview
