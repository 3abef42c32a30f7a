// IQCustomPlaceholders: the placeholders that the user of this host has defined.
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>
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

// In the order in which their names were first set.
class PlaceholderList {
 public:
  // One of a name that is there already takes its place.
  void Set(CustomPlaceholder placeholder);
  const std::vector<CustomPlaceholder>& Entries() const { return entries_; }

 private:
  std::vector<CustomPlaceholder> entries_;
  std::unordered_map<std::string, std::size_t> places_;
};

class CustomPlaceholders : public Service<pvw::IQCustomPlaceholders, pvw::IID_IQCustomPlaceholders> {
 public:
  explicit CustomPlaceholders(const Workspace& workspace) : workspace_(workspace) {}

  void SetGlobal(CustomPlaceholder placeholder) { global_.Set(std::move(placeholder)); }
  void SetOfWorkspace(CustomPlaceholder placeholder) { of_workspace_.Set(std::move(placeholder)); }

  platform::Status GetGlobalPlaceholders(platform::VARIANT* list) override;
  // Fails, and gives an empty VARIANT, for another workspace than the open one.
  platform::Status GetWorkspacePlaceholders(platform::BSTR workspace, platform::VARIANT* list) override;

 private:
  const Workspace& workspace_;
  PlaceholderList global_;
  PlaceholderList of_workspace_;
};

}  // namespace ioview
