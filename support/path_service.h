// What the host's path service says of the current workspace, as text.
#pragma once

#include <string>

#include "host/workspace_services.h"
#include "platform/base/bstr.h"

namespace pvw {

// Asks for one text; it comes out empty when the service is missing or fails.
template <typename... Parameters, typename... Arguments>
void AskPathService(IQPathService* service, platform::ScopedBstr& text,
                    platform::Status (IQPathService::*operation)(Parameters...), Arguments... arguments) {
  platform::BSTR* out = text.Receive();
  if (service != nullptr && platform::Failed((service->*operation)(arguments..., out))) text.Receive();
}

// The same, in the ANSI code page.
template <typename... Parameters, typename... Arguments>
std::string PathServiceText(IQPathService* service,
                            platform::Status (IQPathService::*operation)(Parameters...),
                            Arguments... arguments) {
  platform::ScopedBstr text;
  AskPathService(service, text, operation, arguments...);
  return text.Text();
}

bool IsWorkspaceOpen(IQPathService* service);

// A directory or display name of the current workspace, project or configuration.
struct WorkspaceText {
  bool named = false;  // all names that the question needs are there; without them it wasn't asked
  std::string text;
};

using WorkspaceQuestion = platform::Status (IQPathService::*)(platform::BSTR, platform::BSTR*);
using ProjectQuestion = platform::Status (IQPathService::*)(platform::BSTR, platform::BSTR, platform::BSTR*);
using ConfigurationQuestion = platform::Status (IQPathService::*)(platform::BSTR, platform::BSTR,
                                                                  platform::BSTR, platform::BSTR*);
WorkspaceText AskOfWorkspace(IQPathService* service, WorkspaceQuestion question);
WorkspaceText AskOfProject(IQPathService* service, ProjectQuestion question);
WorkspaceText AskOfConfiguration(IQPathService* service, ConfigurationQuestion question);

}  // namespace pvw
