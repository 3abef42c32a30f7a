// The component's own debugger entry points over the services of one host.
//
// A session lives from the time that the target connects until it disconnects; it belongs to the host's
// binding (target/debugger_binding.h). It has operations for the entries that the component calls, for the
// memory area that reads and writes look up anyway, and for those with a fixed answer. Every other entry that
// a host without a library leaves to the session has no operation here and answers 0, its outputs untouched:
// CPU registers, raw memory and memory by array, fill, move and search, map and run state, breakpoints,
// symbols, the register table and the reserve RAM. Nothing in the component calls those, and what most of
// them would ask the host for isn't part of the services that are agreed with it.
//
// A failing host call leaves its status and text in the error part, and the operation gives false. So does a
// target or block memory that the host lacks, with E_FAIL.
#pragma once

#include <cstdint>

#include "host/debug_interfaces.h"
#include "host/format_services.h"
#include "support/error_manager.h"
#include "target/byte_order.h"

namespace pvw {

// More than this in one read is refused with E_FAIL before the host is asked.
inline constexpr std::uint32_t kMaxReadBytes = 16 * 1024 * 1024;

// The item that gives the width of the target's data bus in bits.
inline constexpr std::uint32_t kMcuInfoBusWidth = 298;

// More bytes than one write takes, an expression above 32 bits, and one below.
inline constexpr platform::Status kStatusTooManyBytes = static_cast<platform::Status>(0x80043091u);
inline constexpr platform::Status kStatusValueTooHigh = static_cast<platform::Status>(0x80040914u);
inline constexpr platform::Status kStatusValueTooLow = static_cast<platform::Status>(0x80040915u);

class CDebugSession final : public CDebugInterfaces, public ErrorManager {
 public:
  // `host` isn't null. Asks it for all that is kept: the debug services, register information, address
  // format, and whether it gives IQDebugPlatform.
  explicit CDebugSession(IQComponentHost* host);

  // Reads `count` values of `unit` bytes (1 to 4) by accesses of `width` bytes, and puts each together in the
  // byte order of the area that `address` lies in. The range may wrap at the end of the address space. A unit
  // above 4 gives false after the read; nothing to read is no access.
  [[nodiscard]] bool GetValuesDirect(std::uint32_t address, std::uint32_t count, std::uint32_t unit,
                                     std::uint32_t width, std::uint32_t* out);
  // Writes the low `size` bytes (up to 8) of one 64-bit value; 0 bytes are no access and a success.
  [[nodiscard]] bool PutValue(std::uint32_t address, std::uint32_t size, std::uint32_t low,
                              std::uint32_t high, std::uint32_t flag);
  // The area that `address` lies in: `*endian` is a ByteOrder. Without an answer from the memory map false,
  // and the whole address space as one big-endian area. The map is asked each time.
  bool GetAreaInfo(std::uint32_t address, std::uint32_t* endian, std::uint32_t* start, std::uint32_t* end);

  // 32 for the bus width, 0 for every other item.
  std::uint32_t GetMcuInfo(std::uint32_t item) const;
  // 1 for item 1015, 0 for every other.
  std::uint32_t GetServiceInfo(std::uint32_t item) const;
  // 0 when the system's language is Japanese, else 1.
  std::uint32_t GetLanguage() const;

  // The value of an expression, which must fit 32 bits, signed or unsigned; `*out` is set on success only. A
  // text that the host can't evaluate leaves the text that its own address format has for the failure.
  [[nodiscard]] bool ExpEval(const char* text, std::uint32_t radix, std::uint32_t flag, std::uint32_t* out);

 private:
  // Records a status that is negative, and says whether it wasn't.
  bool Succeeded(platform::Status status);
  ByteOrder ByteOrderAt(std::uint32_t address);
  bool WriteByWidth(std::uint32_t address, std::uint32_t size, std::uint64_t value, ByteOrder order);
  bool WriteAsBlock(std::uint32_t address, std::uint32_t size, std::uint64_t value, std::uint32_t flag);

  IQComponentHost* m_pHost;
  bool m_bDebugPlatform = false;
  IQRegisterInfo* m_pRegisterInfo = nullptr;  // asked for and kept; no operation needs it
  IQAddressFormat* m_pAddressFormat = nullptr;
};

}  // namespace pvw
