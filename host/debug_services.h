// Debug services of the host: run state, target memory, the memory map and the debugger library.
//
// Addresses are 32 bits wide; a range is given by its first and its last address.
#pragma once

#include "host/unknown.h"
#include "platform/base/module.h"

namespace pvw {

class IQDebugSession : public IQUnknown {
 public:
  // 0 or above means yes.
  virtual platform::Status IsTargetRunning() = 0;

 protected:
  ~IQDebugSession() = default;
};

// Asked for, and handed to the records as the sign that there is a target. No operation is called.
class IQDebugger : public IQUnknown {
 protected:
  ~IQDebugger() = default;
};

// Asked for and kept; no operation is called.
class IQDebugExtra : public IQUnknown {
 protected:
  ~IQDebugExtra() = default;
};
class IQDebugExtra2 : public IQUnknown {
 protected:
  ~IQDebugExtra2() = default;
};
class IQBreakpoints : public IQUnknown {
 protected:
  ~IQBreakpoints() = default;
};
class IQCpuRegisters : public IQUnknown {
 protected:
  ~IQCpuRegisters() = default;
};
class IQRegisterInfo : public IQUnknown {
 protected:
  ~IQRegisterInfo() = default;
};
class IQDebugTargetInfo : public IQUnknown {
 protected:
  ~IQDebugTargetInfo() = default;
};
class IQDebugMemoryOptions : public IQUnknown {
 protected:
  ~IQDebugMemoryOptions() = default;
};

// Reads and writes by access width, which is 1, 2 or 4 bytes. `buffer` holds last - first + 1 bytes in the
// order of their addresses.
class IQTargetMemory : public IQUnknown {
 public:
  virtual platform::Status ReadDirect(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                                      std::uint8_t* buffer) = 0;
  // The same for a little-endian area on a host without IQDebugPlatform.
  virtual platform::Status ReadDirectLittle(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                                            std::uint8_t* buffer) = 0;
  virtual platform::Status WriteMemory(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                                       const std::uint8_t* buffer) = 0;

 protected:
  ~IQTargetMemory() = default;
};

class IQBlockMemory : public IQUnknown {
 public:
  // Writes one number of `size` bytes, given highest byte first whatever the byte order of the area, which
  // the host applies. `flag` is 0 or 0xFFFFFFFF.
  virtual platform::Status WriteBlock(std::uint32_t first, std::uint32_t last, std::uint32_t flag,
                                      std::uint32_t size, const std::uint8_t* buffer) = 0;

 protected:
  ~IQBlockMemory() = default;
};

class IQMemoryMap : public IQUnknown {
 public:
  // The area that `address` lies in. `*endian` is 1 for little-endian, anything else for big-endian.
  virtual platform::Status GetAreaInfo(std::uint32_t address, std::uint32_t* first, std::uint32_t* last,
                                       std::uint32_t* endian) = 0;

 protected:
  ~IQMemoryMap() = default;
};

// That the host gives it at all says that it has a debugger library.
class IQDebugPlatform : public IQUnknown {
 protected:
  ~IQDebugPlatform() = default;
};

class IQDebugLibrary : public IQUnknown {
 public:
  virtual platform::Status GetLibraryHandle(platform::HMODULE* handle) = 0;

 protected:
  ~IQDebugLibrary() = default;
};

}  // namespace pvw
