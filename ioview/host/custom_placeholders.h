// IQCustomPlaceholders: the placeholders that the user of this host has defined.
#pragma once

#include <string>
#include <vector>

#include "host/workspace_services.h"
#include "ioview/host/service.h"
#include "ioview/host/workspace.h"

namespace ioview {

// All in the ANSI code page; `$(name)` stands for the value.
struct CustomPlaceholder {
  std::string name;
  std::string value;
  std::string description;
};

class CustomPlaceholders : public Service<pvw::IQCustomPlaceholders, pvw::IID_IQCustomPlaceholders> {
 public:
  explicit CustomPlaceholders(const Workspace& workspace) : workspace_(workspace) {}

  // One of a name that is there already takes its place.
  void SetGlobal(CustomPlaceholder placeholder);
  void SetOfWorkspace(CustomPlaceholder placeholder);

  platform::Status GetGlobalPlaceholders(platform::VARIANT* list) override;
  // Fails, and gives an empty VARIANT, for another workspace than the open one.
  platform::Status GetWorkspacePlaceholders(platform::BSTR workspace, platform::VARIANT* list) override;

 private:
  const Workspace& workspace_;
  std::vector<CustomPlaceholder> global_;
  std::vector<CustomPlaceholder> of_workspace_;
};

}  // namespace ioview
