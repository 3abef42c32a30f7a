// IQDataManager over the values of sessions.
#pragma once

#include "host/workspace_services.h"
#include "ioview/host/service.h"
#include "ioview/store/stored_values.h"

namespace ioview {

// Keeps values under any names, those of the open workspace or not.
class DataManager : public Service<pvw::IQDataManager, pvw::IID_IQDataManager> {
 public:
  explicit DataManager(SessionValues& values) : values_(values) {}

  platform::Status SetSessionValue(platform::BSTR workspace, platform::BSTR project,
                                   platform::BSTR configuration, platform::BSTR key,
                                   platform::BSTR value) override;
  // Fails, and gives null, when the key is missing.
  platform::Status GetSessionValue(platform::BSTR workspace, platform::BSTR project,
                                   platform::BSTR configuration, platform::BSTR key,
                                   platform::BSTR* value) override;

 private:
  SessionValues& values_;
};

}  // namespace ioview
