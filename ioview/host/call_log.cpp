#include "ioview/host/call_log.h"

#include <utility>

namespace ioview {

void CallLog::Add(std::string_view service, std::string call) {
  bytes_ += call.size();
  calls_.push_back({service, std::move(call)});
  while (calls_.size() > kMostCalls || bytes_ > kMostBytes) {
    bytes_ -= calls_.front().text.size();
    calls_.pop_front();
  }
}

std::vector<std::string> CallLog::Take(std::string_view service) {
  std::vector<std::string> lines;
  for (const Call& call : std::exchange(calls_, {})) {
    if (!service.empty() && call.service != service) continue;
    std::string line(call.service);
    line += '.';
    lines.push_back(line += call.text);
  }
  bytes_ = 0;
  return lines;
}

}  // namespace ioview
