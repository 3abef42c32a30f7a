#include "ioview/host/data_manager.h"

#include <string>

namespace ioview {

namespace {

SessionValues::Names NamesOf(platform::BSTR workspace, platform::BSTR project, platform::BSTR configuration) {
  return {std::u16string(WideText(workspace)), std::u16string(WideText(project)),
          std::u16string(WideText(configuration))};
}

}  // namespace

platform::Status DataManager::SetSessionValue(platform::BSTR workspace, platform::BSTR project,
                                              platform::BSTR configuration, platform::BSTR key,
                                              platform::BSTR value) {
  if (!Enter("SetSessionValue", workspace, project, configuration, key, value)) return platform::E_FAIL;
  values_.Set(NamesOf(workspace, project, configuration), WideText(key), WideText(value));
  return platform::S_OK;
}

platform::Status DataManager::GetSessionValue(platform::BSTR workspace, platform::BSTR project,
                                              platform::BSTR configuration, platform::BSTR key,
                                              platform::BSTR* value) {
  if (!Enter("GetSessionValue", workspace, project, configuration, key)) return platform::E_FAIL;
  *value = nullptr;
  const std::u16string* stored = values_.Find(NamesOf(workspace, project, configuration), WideText(key));
  if (stored == nullptr) return platform::E_FAIL;
  *value = platform::SysAllocString(*stored);
  return platform::S_OK;
}

}  // namespace ioview
