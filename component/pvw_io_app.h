// The component's application object: its identity, and one data control for each instance of the host's.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include "component/pvw_io_data_ctrl.h"
#include "platform/base/app.h"

namespace pvw {

// The five exported functions act on it. An instance's handle is the host's, and isn't looked into.
class CPvwIOApp : public platform::CWinApp {
 public:
  CPvwIOApp() = default;
  // Controls that the host hasn't destroyed are left alone: their host may be gone.
  ~CPvwIOApp() override;

  // Each gives 0, whatever came of it.
  platform::Status RegisterLibrary(IQLibraryRegistrar* registrar);
  platform::Status GetVersion(std::uint32_t* major, std::uint32_t* minor);
  // A handle that is there gets a new control, and its old one is destroyed.
  platform::Status CreateInstance(void* instance);
  platform::Status DestroyInstance(void* instance);

  // Status 0, or E_NOINTERFACE with null for any failure and for an instance that isn't there.
  platform::Status QueryInterface(void* instance, const platform::GUID* iid, void** out);

 private:
  // Null for one that there was no memory for.
  std::unordered_map<void*, std::unique_ptr<CPvwIODataCtrl>> m_instances;
};

extern CPvwIOApp theApp;

}  // namespace pvw
