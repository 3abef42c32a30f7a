#include "component/services/session_store.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace pvw {

namespace {

std::u16string_view ViewOf(platform::BSTR text) {
  return text != nullptr ? std::u16string_view(text, platform::SysStringLen(text)) : std::u16string_view();
}

bool IsBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

// Reads as far as a number goes.
std::optional<std::int32_t> ScanInt(std::string_view text) {
  constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };

  std::size_t at = 0;
  while (at < text.size() && IsBlank(text[at])) ++at;
  const bool negative = at < text.size() && text[at] == '-';
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
  if (at == text.size() || !is_digit(text[at])) return std::nullopt;
  std::int64_t value = 0;
  for (; at < text.size() && is_digit(text[at]); ++at) {
    value = std::min(value * 10 + (text[at] - '0'), kHighest + 1);
  }
  return static_cast<std::int32_t>(std::clamp(negative ? -value : value, kLowest, kHighest));
}

}  // namespace

CSessionStore::CSessionStore(IQDataManager* store_manager, platform::BSTR workspace_name,
                             platform::BSTR project_name, platform::BSTR session_name,
                             platform::BSTR configuration_name, const platform::GUID& identity)
    : manager(store_manager),
      workspace(ViewOf(workspace_name)),
      project(ViewOf(project_name)),
      name(ViewOf(session_name)),
      configuration(ViewOf(configuration_name)),
      keyPrefix(platform::GuidText(identity)) {}

platform::Status CSessionStore::WriteString(std::string_view key, std::string_view value) {
  if (manager == nullptr) return platform::E_FAIL;
  const platform::ScopedBstr full_key(FullKey(key));
  const platform::ScopedBstr text(value);
  return manager->SetSessionValue(workspace.Get(), project.Get(), configuration.Get(), full_key.Get(),
                                  text.Get());
}

platform::Status CSessionStore::ReadString(std::string_view key, std::string_view defaultValue,
                                           std::string& out) {
  const platform::ScopedBstr full_key(FullKey(key));
  platform::ScopedBstr text;
  const bool found =
      manager != nullptr && manager->GetSessionValue(workspace.Get(), project.Get(), configuration.Get(),
                                                     full_key.Get(), text.Receive()) == platform::S_OK;
  out = found ? text.Text() : std::string(defaultValue);
  return platform::S_OK;
}

platform::Status CSessionStore::WriteInt(std::string_view key, std::int32_t value) {
  return WriteString(key, std::to_string(value));
}

platform::Status CSessionStore::ReadInt(std::string_view key, std::int32_t defaultValue, std::int32_t* out) {
  std::string text;
  ReadString(key, std::to_string(defaultValue), text);
  *out = ScanInt(text).value_or(defaultValue);
  return platform::S_OK;
}

}  // namespace pvw
