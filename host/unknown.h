// The operations that every interface begins with.
//
// Nothing counts references: AddRef gives 1, Release gives 0, and the component calls neither on what the
// host gives it. Whoever made an object destroys it, so no interface has a virtual destructor unless it says
// so.
#pragma once

#include "platform/base/guid.h"
#include "platform/base/types.h"

namespace pvw {

class IQUnknown {
 public:
  // Sets `*out` to the face with that id, else to null with E_NOINTERFACE.
  virtual platform::Status QueryInterface(const platform::GUID* iid, void** out) = 0;
  virtual std::uint32_t AddRef() = 0;
  virtual std::uint32_t Release() = 0;

 protected:
  ~IQUnknown() = default;
};

}  // namespace pvw
