// The component's five functions, by which a host loads it.

#include "component/pvw_io_app.h"

#define PVW_EXPORT extern "C" __attribute__((visibility("default")))

using namespace pvw;

PVW_EXPORT platform::Status LibraryRegister2(IQLibraryRegistrar* registrar) {
  return theApp.RegisterLibrary(registrar);
}
PVW_EXPORT platform::Status QueryInterface2(void* instance, const platform::GUID* iid, void** out) {
  return theApp.QueryInterface(instance, iid, out);
}
PVW_EXPORT platform::Status CreateInstance(void* instance) {
  return theApp.CreateInstance(instance);
}
PVW_EXPORT platform::Status DestroyInstance(void* instance) {
  return theApp.DestroyInstance(instance);
}
PVW_EXPORT platform::Status GetComponentVersion(std::uint32_t* major, std::uint32_t* minor) {
  return theApp.GetVersion(major, minor);
}
