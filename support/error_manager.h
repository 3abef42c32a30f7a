// Statuses as texts that can be shown. The host owns the texts; where it has none, a fixed one stands in.
#pragma once

#include <string>

#include "host/component_host.h"

namespace pvw {

// The last status of one debugger session, and its text.
class ErrorManager {
 public:
  // `host` is where the texts come from, not owned; null for none.
  explicit ErrorManager(IQComponentHost* host) : errorHost(host) { ResetError(); }

  void ResetError();
  // Remembers a status. Its text is "(S_OK)" for every status that isn't negative, else the host's, else the
  // fixed text. A host without an error service leaves the text before, unless that is empty.
  void SetError(platform::Status status);
  // For an object that explains its own statuses: the text alone becomes what its IQErrorReporter gives, or
  // stays as it is when the object, or its reporter, is missing.
  void SetMessageFrom(IQUnknown* object, platform::Status status);

  platform::Status LastStatus() const { return lastStatus; }
  // The text of the last status; "(S_OK)" when none has been recorded.
  std::string GetErrorMessage();
  // The same, good until the next SetError, SetMessageFrom or ResetError.
  const char* GetErrorMessagePointer();

 private:
  IQComponentHost* errorHost;
  platform::Status lastStatus = 0;
  std::string lastMessage;
};

// Shows a status in a message box with the exclamation icon: the host's text for it, else the host's text for
// an unknown status, else the fixed text.
void ShowStatus(IQComponentHost* host, platform::Status status);

}  // namespace pvw
