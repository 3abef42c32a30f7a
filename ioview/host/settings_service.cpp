#include "ioview/host/settings_service.h"

#include <string>
#include <variant>

namespace ioview {

platform::Status SettingsService::WriteSectionInt(platform::BSTR section, platform::BSTR key,
                                                  std::int32_t value) {
  if (!Enter("WriteSectionInt", section, key, value)) return platform::E_FAIL;
  settings_.Set(WideText(section), WideText(key), value);
  return platform::S_OK;
}

platform::Status SettingsService::WriteInt(platform::BSTR key, std::int32_t value) {
  if (!Enter("WriteInt", key, value)) return platform::E_FAIL;
  settings_.Set({}, WideText(key), value);
  return platform::S_OK;
}

platform::Status SettingsService::WriteString(platform::BSTR key, platform::BSTR text) {
  if (!Enter("WriteString", key, text)) return platform::E_FAIL;
  settings_.Set({}, WideText(key), std::u16string(WideText(text)));
  return platform::S_OK;
}

platform::Status SettingsService::ReadSectionInt(platform::BSTR section, platform::BSTR key,
                                                 std::int32_t* value) {
  if (!Enter("ReadSectionInt", section, key)) return platform::E_FAIL;
  return GiveInt(WideText(section), WideText(key), value);
}

platform::Status SettingsService::ReadInt(platform::BSTR key, std::int32_t* value) {
  if (!Enter("ReadInt", key)) return platform::E_FAIL;
  return GiveInt({}, WideText(key), value);
}

platform::Status SettingsService::ReadString(platform::BSTR key, platform::BSTR* text) {
  if (!Enter("ReadString", key)) return platform::E_FAIL;
  *text = nullptr;
  const UserSettings::Value* stored = settings_.Find({}, WideText(key));
  const auto* value = stored != nullptr ? std::get_if<std::u16string>(stored) : nullptr;
  if (value == nullptr) return platform::E_FAIL;
  *text = platform::SysAllocString(*value);
  return platform::S_OK;
}

platform::Status SettingsService::GiveInt(std::u16string_view section, std::u16string_view key,
                                          std::int32_t* value) const {
  const UserSettings::Value* stored = settings_.Find(section, key);
  const auto* number = stored != nullptr ? std::get_if<std::int32_t>(stored) : nullptr;
  if (number == nullptr) return platform::E_FAIL;
  *value = *number;
  return platform::S_OK;
}

}  // namespace ioview
