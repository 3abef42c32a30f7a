// One register of the target: where it is, how wide, how it is shown, and the last value known of it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/component_host.h"
#include "host/debug_services.h"
#include "host/format_services.h"

namespace pvw {

// How the Value column shows a register.
enum class Radix : std::uint32_t { kHexadecimal = 0, kDecimal = 1, kBinary = 2 };

// What a definition file says of one register, with what holds where it says nothing.
struct RegisterDescription {
  std::string name;           // as shown
  std::uint32_t address = 0;  // on the target, base applied
  std::uint32_t size = 1;     // in bytes: 1, 2 or 4
  bool absolute = false;
  Radix radix = Radix::kHexadecimal;
  std::string bitSection;  // file version 2: the section of its bit fields; empty for none
};

class CIORegisterID {
 public:
  // `host` may be null and isn't owned. Size 1, hexadecimal, at address 0, value 0.
  explicit CIORegisterID(IQComponentHost* host = nullptr) : m_pHost(host) {}
  // A copy is for reading: it has neither the services, which only texts need, nor the absolute flag.
  CIORegisterID(const CIORegisterID& other);
  CIORegisterID& operator=(const CIORegisterID& other);
  ~CIORegisterID();

  // Asks the host for both services and stores the description. The value stays.
  void Set(RegisterDescription description);
  // Whether that was done, so that there is a register of the target behind this.
  bool IsSet() const { return m_bSet; }
  // The PROTECTION entry of a bit section. Kept; nothing acts on it.
  void SetProtection(std::string tag, std::uint32_t value);

  // Reads the register into the low word of the value. `target` only says that there is a target. On failure
  // E_FAIL: the value stays and the user sees nothing. Both operations call the host, which may destroy the
  // register meanwhile: E_FAIL as well, and nothing of it is touched any more.
  [[nodiscard]] platform::Status Read(IQDebugger* target);
  // Writes the low word of the value, and gives the command for it to the host's recorder. `target` isn't
  // looked at. On failure the user reads the debugger's text, and it gives E_FAIL; the value stays as it is.
  [[nodiscard]] platform::Status Write(IQDebugger* target);

  // The definition has moved by `delta`: so does the address, unless it is absolute.
  void Relocate(std::uint32_t delta);

  const std::string& GetName() const { return m_name; }
  std::uint32_t GetAddress() const { return m_address; }
  std::uint32_t GetSize() const { return m_size; }
  std::string GetBitSection() const { return m_bitSection != nullptr ? m_bitSection->name : std::string(); }
  std::string GetProtectionTag() const {
    return m_bitSection != nullptr ? m_bitSection->protectionTag : std::string();
  }
  std::uint32_t GetProtectionValue() const {
    return m_bitSection != nullptr ? m_bitSection->protectionValue : 0;
  }

  // The last value read or about to be written. Reads set its low word only.
  std::uint64_t GetValue() const { return m_value; }
  void SetValue(std::uint64_t value) { m_value = value; }
  std::uint32_t GetLowWord() const { return static_cast<std::uint32_t>(m_value); }
  // Bit `n` modulo 32 of the low word.
  std::uint32_t GetBit(std::uint32_t n) const { return GetLowWord() >> (n % 32) & 1; }

  // The host's text of the address plus `offset`; empty without its service, and when that fails.
  std::string GetAddressText(std::uint32_t offset) const;
  // The value in its radix, as wide as the register, without a prefix: zeros in front, but blanks for a
  // decimal number of 4 bytes.
  std::string GetValueText() const;

 private:
  // What few registers have.
  struct BitSection {
    std::string name;
    std::string protectionTag;
    std::uint32_t protectionValue = 0;
  };
  BitSection& MakeBitSection();

  // What a read and the value's text look at comes first.
  std::uint64_t m_value = 0;
  IQComponentHost* m_pHost;
  std::uint32_t m_address = 0;
  std::uint32_t m_size = 1;
  Radix m_radix = Radix::kHexadecimal;
  bool m_bAbsolute = true;
  bool m_bSet = false;
  IQAddressFormat* m_pAddressFormat = nullptr;
  IQNumberFormat* m_pNumberFormat = nullptr;
  std::unique_ptr<BitSection> m_bitSection;
  std::string m_name;
};

}  // namespace pvw
