#include "model/io_register_id.h"

#include <cstdio>
#include <utility>

#include "host/host_ptr.h"
#include "host/ids.h"
#include "model/watch.h"
#include "platform/base/bstr.h"
#include "platform/base/message_box.h"
#include "target/debug_entries.h"

namespace pvw {
namespace {

// The access that fits the register: an odd address is read byte by byte, an even one by the register's
// width.
struct Access {
  DebugEntries::ReadValues* read;
  std::uint32_t unit;
};

Access AccessFor(std::uint32_t address, std::uint32_t size) {
  if (address % 2 != 0) return {g_debugEntries.IN1_Get_Mem_EndianNC, size};
  if (size == 2) return {g_debugEntries.IN1_Get_Mem_Endian2NC, 2};
  if (size == 4) return {g_debugEntries.IN1_Get_Mem_Endian4NC, 4};
  return {g_debugEntries.IN1_Get_Mem_EndianNC, 1};
}

// The text of a failed write. Without the entry that should have written, none is about this failure.
std::string WriteErrorText() {
  if (g_debugEntries.IN1_Put_Value == nullptr || g_debugEntries.ERR_GetErrMsg == nullptr) return {};
  const char* text = g_debugEntries.ERR_GetErrMsg();
  return text != nullptr ? text : "";
}

std::string FillCommand(std::uint32_t address, std::uint32_t size, std::uint32_t value) {
  const char* unit = size == 2 ? "WORD" : size == 4 ? "LONG" : "BYTE";
  char command[64];
  std::snprintf(command, sizeof command, "memory_fill 0x%X 0x%X 0x%X %s", address, address + size - 1, value,
                unit);
  return command;
}

// `width` characters of the number, filled with `fill` in front. A radix that is known when the program is
// compiled needs no division.
template <std::uint32_t kRadix>
std::string Digits(std::uint32_t value, std::size_t width, char fill) {
  std::string text(width, fill);
  for (std::size_t at = width; at > 0; value /= kRadix) {
    text[--at] = "0123456789ABCDEF"[value % kRadix];
    if (value < kRadix) break;
  }
  return text;
}

}  // namespace

CIORegisterID::CIORegisterID(const CIORegisterID& other) : m_pHost(nullptr) {
  *this = other;
}

CIORegisterID::~CIORegisterID() {
  Watch<CIORegisterID>::OnGone(this);
}

CIORegisterID& CIORegisterID::operator=(const CIORegisterID& other) {
  if (this == &other) return *this;
  m_name = other.m_name;
  m_address = other.m_address;
  m_size = other.m_size;
  m_radix = other.m_radix;
  m_value = other.m_value;
  m_bitSection = other.m_bitSection != nullptr ? std::make_unique<BitSection>(*other.m_bitSection) : nullptr;
  m_pHost = other.m_pHost;
  return *this;
}

void CIORegisterID::Set(RegisterDescription description) {
  m_pNumberFormat = GetService<IQNumberFormat>(m_pHost, IID_IQNumberFormat);
  m_pAddressFormat = GetService<IQAddressFormat>(m_pHost, IID_IQAddressFormat);
  m_name = std::move(description.name);
  m_address = description.address;
  m_size = description.size;
  m_bAbsolute = description.absolute;
  m_radix = description.radix;
  if (m_bitSection != nullptr || !description.bitSection.empty()) {
    MakeBitSection().name = std::move(description.bitSection);
  }
  m_bSet = true;
}

void CIORegisterID::SetProtection(std::string tag, std::uint32_t value) {
  BitSection& section = MakeBitSection();
  section.protectionTag = std::move(tag);
  section.protectionValue = value;
}

CIORegisterID::BitSection& CIORegisterID::MakeBitSection() {
  if (m_bitSection == nullptr) m_bitSection = std::make_unique<BitSection>();
  return *m_bitSection;
}

platform::Status CIORegisterID::Read(IQDebugger* target) {
  SetCurrentDebugHost(m_pHost);
  if (target == nullptr) return platform::E_FAIL;
  std::uint32_t word = 0;
  const Access access = AccessFor(m_address, m_size);
  const Watch<CIORegisterID> watch(this);
  if (access.read == nullptr || access.read(m_address, 1, access.unit, &word) == 0) return platform::E_FAIL;
  if (!watch.Stands()) return platform::E_FAIL;
  m_value = m_value >> 32 << 32 | word;
  return platform::S_OK;
}

platform::Status CIORegisterID::Write(IQDebugger* /*target*/) {
  SetCurrentDebugHost(m_pHost);
  const auto write = g_debugEntries.IN1_Put_Value;
  const std::string command = FillCommand(m_address, m_size, GetLowWord());
  const Watch<CIORegisterID> watch(this);
  if (write == nullptr || write(m_address, m_size, GetLowWord(), 0, 0) == 0) {
    platform::MessageBox(WriteErrorText(), platform::MB_ICONEXCLAMATION);
    return platform::E_FAIL;
  }
  if (!watch.Stands()) return platform::E_FAIL;
  const CRecorderPtr recorder(m_pHost);
  if (recorder.IsActive()) recorder.AddCommand(command);
  return platform::S_OK;
}

void CIORegisterID::Relocate(std::uint32_t delta) {
  if (!m_bAbsolute) m_address -= delta;
}

std::string CIORegisterID::GetAddressText(std::uint32_t offset) const {
  // A register that no section has described still shows where it stands.
  IQAddressFormat* const format =
      m_bSet ? m_pAddressFormat : GetService<IQAddressFormat>(m_pHost, IID_IQAddressFormat);
  platform::ScopedBstr text;
  if (format == nullptr ||
      platform::Failed(format->FormatAddress(m_address + offset, 0, 0xFFFFFFFF, 0, text.Receive()))) {
    return {};
  }
  return text.Text();
}

std::string CIORegisterID::GetValueText() const {
  if (m_size != 1 && m_size != 2 && m_size != 4) return {};
  const std::uint32_t bits = m_size * 8;
  const std::uint32_t value = GetLowWord() & 0xFFFFFFFF >> (32 - bits);
  switch (m_radix) {
    case Radix::kHexadecimal:
      return Digits<16>(value, bits / 4, '0');
    case Radix::kBinary:
      return Digits<2>(value, bits, '0');
    case Radix::kDecimal:
      break;
  }
  if (m_size == 4) return Digits<10>(value, 10, ' ');
  return Digits<10>(value, m_size == 1 ? 3 : 5, '0');
}

}  // namespace pvw
