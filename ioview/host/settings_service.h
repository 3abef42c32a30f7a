// IQSettings over the settings of the user.
#pragma once

#include "host/workspace_services.h"
#include "ioview/host/service.h"
#include "ioview/store/stored_values.h"

namespace ioview {

// A read fails when the key is missing or holds a value of the other type; a text is null then, a number
// stays as it was.
class SettingsService : public Service<pvw::IQSettings, pvw::IID_IQSettings> {
 public:
  explicit SettingsService(UserSettings& settings) : settings_(settings) {}

  platform::Status WriteSectionInt(platform::BSTR section, platform::BSTR key, std::int32_t value) override;
  platform::Status WriteInt(platform::BSTR key, std::int32_t value) override;
  platform::Status WriteString(platform::BSTR key, platform::BSTR text) override;
  platform::Status ReadSectionInt(platform::BSTR section, platform::BSTR key, std::int32_t* value) override;
  platform::Status ReadInt(platform::BSTR key, std::int32_t* value) override;
  platform::Status ReadString(platform::BSTR key, platform::BSTR* text) override;

 private:
  platform::Status GiveInt(std::u16string_view section, std::u16string_view key, std::int32_t* value) const;

  UserSettings& settings_;
};

}  // namespace ioview
