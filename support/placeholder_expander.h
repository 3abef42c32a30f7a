// Placeholders `$(NAME)` in a text, replaced by what they stand for, so that a stored path still finds its
// file when a workspace has moved.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/component_host.h"
#include "host/workspace_services.h"
#include "support/custom_placeholders.h"
#include "support/placeholder_table.h"

namespace pvw {

using CustomPlaceholderMap = std::map<std::string, CCustomPlaceholderInfo>;

// Made for one job. Nothing here reports an error: at worst an unknown placeholder disappears from the text.
class CPlaceholderExpander {
 public:
  // Asks the host for its path service and its custom placeholders; null for no host.
  explicit CPlaceholderExpander(IQComponentHost* host);

  // The text with each placeholder replaced by its value, from the left, 9999 of them at most. A value isn't
  // looked at again. A placeholder without a value disappears; one whose value isn't known here, such as
  // `$(LINE)` or, without a workspace, `$(CONFIGDIR)`, stays with its long name. `file` is what the names
  // about a file are taken from; without one they stay.
  std::string Expand(std::string_view text, std::optional<std::string_view> file = std::nullopt) const;

  // True when every placeholder is one of the allowed indices, which end at a 0 or at the end of the span, or
  // the user's own. Each is taken out of the text before the next is looked for.
  bool ValidatePlaceholders(std::string_view text, std::span<const std::uint32_t> allowedIndices) const;

  // Adds the user's placeholders. A name of the workspace's list that the map has already isn't added.
  void CollectCustomPlaceholders(CustomPlaceholderMap& map) const;

  // What one index of the table stands for; empty for no value.
  std::string ValueOf(PlaceholderIndex index, std::optional<std::string_view> file = std::nullopt) const;

 private:
  std::string Resolve(std::string_view name, std::optional<std::string_view> file) const;
  std::string CustomValueOf(std::string_view name) const;

  // Not owned, good until the component disconnects.
  IQPathService* pathService;
  IQCustomPlaceholders* customPlaceholders;
};

// The path with the configuration's, else the project's, else the workspace's directory replaced by its
// placeholder, where it is found first and wherever it stands, without regard to case. The rest of the path
// keeps its case. The path itself when none is in it.
std::string ToPlaceholderForm(IQComponentHost* host, std::string_view path);

}  // namespace pvw
