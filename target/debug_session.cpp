#include "target/debug_session.h"

#include <array>
#include <limits>
#include <span>
#include <vector>

#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/bstr.h"
#include "support/language.h"
#include "target/bus_width.h"
#include "target/debug_entries.h"

namespace pvw {

namespace {

constexpr std::uint32_t kServiceInfoAvailable = 1015;
constexpr std::uint32_t kLongestValue = 8;
constexpr std::uint32_t kAreaLittleEndian = 1;

}  // namespace

CDebugSession::CDebugSession(IQComponentHost* host)
    : CDebugInterfaces(host),
      ErrorManager(host),
      m_pHost(host),
      m_pRegisterInfo(GetService<IQRegisterInfo>(host, IID_IQRegisterInfo)),
      m_pAddressFormat(GetService<IQAddressFormat>(host, IID_IQAddressFormat)) {
  ResetError();
  m_bDebugPlatform = GetService<IQDebugPlatform>(host, IID_IQDebugPlatform) != nullptr;
}

bool CDebugSession::Succeeded(platform::Status status) {
  if (!platform::Failed(status)) return true;
  SetError(status);
  return false;
}

bool CDebugSession::GetAreaInfo(std::uint32_t address, std::uint32_t* endian, std::uint32_t* start,
                                std::uint32_t* end) {
  *endian = static_cast<std::uint32_t>(ByteOrder::kBig);
  *start = 0;
  *end = 0xFFFFFFFF;
  const CHostPtr<IQMemoryMap> map(m_pHost, IID_IQMemoryMap);
  if (!map) return false;
  // A failing map may have written to its outputs all the same.
  std::uint32_t first = *start;
  std::uint32_t last = *end;
  std::uint32_t code = 0;
  if (platform::Failed(map->GetAreaInfo(address, &first, &last, &code))) return false;
  *start = first;
  *end = last;
  if (code == kAreaLittleEndian) *endian = static_cast<std::uint32_t>(ByteOrder::kLittle);
  return true;
}

ByteOrder CDebugSession::ByteOrderAt(std::uint32_t address) {
  std::uint32_t endian = 0;
  std::uint32_t start = 0;
  std::uint32_t end = 0;
  GetAreaInfo(address, &endian, &start, &end);
  return static_cast<ByteOrder>(endian);
}

bool CDebugSession::GetValuesDirect(std::uint32_t address, std::uint32_t count, std::uint32_t unit,
                                    std::uint32_t width, std::uint32_t* out) {
  const bool unit_fits = unit >= 1 && unit <= 4;
  const std::uint64_t size = std::uint64_t{count} * unit;
  // A range can't say that it is empty: its last address would lie before the first.
  if (size == 0) return unit_fits;
  if (size > kMaxReadBytes) return Succeeded(platform::E_FAIL);

  // A register fits the first of the two.
  std::array<std::uint8_t, 32> small{};
  std::vector<std::uint8_t> large;
  if (size > small.size()) large.resize(size);
  std::uint8_t* const buffer = large.empty() ? small.data() : large.data();

  const ByteOrder order = ByteOrderAt(address);
  const std::uint32_t last = address + static_cast<std::uint32_t>(size) - 1;
  platform::Status status = platform::E_FAIL;
  if (targetMemory != nullptr) {
    status = !m_bDebugPlatform && order != ByteOrder::kBig
                 ? targetMemory->ReadDirectLittle(address, last, width, buffer)
                 : targetMemory->ReadDirect(address, last, width, buffer);
  }
  if (!Succeeded(status)) return false;
  if (!unit_fits) return false;

  // The host sees the area looked up once for the read and once for the values.
  const ByteOrder value_order = ByteOrderAt(address);
  for (std::uint32_t i = 0; i < count; ++i) {
    out[i] = UnpackValue(std::span(buffer + std::size_t{i} * unit, unit), value_order);
  }
  return true;
}

bool CDebugSession::PutValue(std::uint32_t address, std::uint32_t size, std::uint32_t low, std::uint32_t high,
                             std::uint32_t flag) {
  const ByteOrder order = ByteOrderAt(address);
  if (size > kLongestValue) return Succeeded(kStatusTooManyBytes);
  if (size == 0) return true;
  const std::uint64_t value = std::uint64_t{high} << 32 | low;
  return m_bDebugPlatform ? WriteByWidth(address, size, value, order)
                          : WriteAsBlock(address, size, value, flag);
}

bool CDebugSession::WriteByWidth(std::uint32_t address, std::uint32_t size, std::uint64_t value,
                                 ByteOrder order) {
  std::array<std::uint8_t, kLongestValue> buffer{};
  PackValue(value, order, std::span(buffer).first(size));
  // The library knows the bus, when the host has one.
  const auto ask = g_debugEntries.IN1_Get_mcu_info;
  const std::uint32_t bus = ask != nullptr ? ask(kMcuInfoBusWidth) : GetMcuInfo(kMcuInfoBusWidth);
  const std::uint32_t width = WriteAccessWidth(address, size, bus);
  // Such a host is asked for its platform before every write; the answer doesn't count.
  GetService<IQDebugPlatform>(m_pHost, IID_IQDebugPlatform);
  if (targetMemory == nullptr) return Succeeded(platform::E_FAIL);
  return Succeeded(targetMemory->WriteMemory(address, address + size - 1, width, buffer.data()));
}

bool CDebugSession::WriteAsBlock(std::uint32_t address, std::uint32_t size, std::uint64_t value,
                                 std::uint32_t flag) {
  std::array<std::uint8_t, kLongestValue> buffer{};
  PackValue(value, ByteOrder::kBig, std::span(buffer).first(size));
  if (blockMemory == nullptr) return Succeeded(platform::E_FAIL);
  return Succeeded(
      blockMemory->WriteBlock(address, address + size - 1, flag != 0 ? 0xFFFFFFFF : 0, size, buffer.data()));
}

std::uint32_t CDebugSession::GetMcuInfo(std::uint32_t item) const {
  return item == kMcuInfoBusWidth ? 32 : 0;
}

std::uint32_t CDebugSession::GetServiceInfo(std::uint32_t item) const {
  return item == kServiceInfoAvailable ? 1 : 0;
}

std::uint32_t CDebugSession::GetLanguage() const {
  return IsLanguageNotJapanese() ? 1 : 0;
}

bool CDebugSession::ExpEval(const char* text, std::uint32_t radix, std::uint32_t /*flag*/,
                            std::uint32_t* out) {
  if (m_pAddressFormat == nullptr) return Succeeded(platform::E_FAIL);
  if (radix != 16 && radix != 10 && radix != 8 && radix != 2) radix = 0;
  const platform::ScopedBstr expression(text);
  std::int64_t value = 0;
  platform::Status status = m_pAddressFormat->EvaluateExpression(expression.Get(), radix, &value);
  if (platform::Failed(status)) {
    status = m_pAddressFormat->EvaluateExpression2(expression.Get(), radix, &value);
  }
  if (platform::Failed(status)) {
    SetMessageFrom(m_pAddressFormat, status);
    return false;
  }
  if (value > std::numeric_limits<std::uint32_t>::max()) return Succeeded(kStatusValueTooHigh);
  if (value < std::numeric_limits<std::int32_t>::min()) return Succeeded(kStatusValueTooLow);
  *out = static_cast<std::uint32_t>(value);
  return true;
}

}  // namespace pvw
