#include "model/io_rec_reg.h"

#include <tuple>
#include <utility>

namespace pvw {

CIORecReg::CIORecReg(std::string name, CIORec* parent)
    : CIORec(std::move(name), parent), m_register(m_pHost) {}

void CIORecReg::Define(RegisterDescription description) {
  Charge(description.name.size() + description.bitSection.size());
  m_register.Set(std::move(description));
}

void CIORecReg::Relocate(std::uint32_t delta) {
  m_register.Relocate(delta);
}

bool CIORecReg::SetValue(IQDebugger* target, std::uint64_t value) {
  if (!IsOnTarget()) return false;
  const Watch<CIORec> watch(this);
  std::ignore = m_register.Read(target);
  if (!watch.Stands()) return false;
  const std::uint32_t bits = m_register.GetSize() * 8;
  if (value >> bits != 0) {
    ShowTooBig((std::uint64_t{1} << bits) - 1);
    return false;
  }
  if (value == m_register.GetValue()) return false;
  m_register.SetValue(value);
  return !platform::Failed(m_register.Write(target));
}

bool CIORecReg::EditValue(IQDebugger* target, IQNumberFormat* numberFormat, IQComponentHost* host) {
  if (!IsOnTarget()) return false;
  const Watch<CIORec> watch(this);
  std::ignore = m_register.Read(target);
  if (!watch.Stands()) return false;
  std::uint64_t value = m_register.GetValue();
  const std::uint32_t bits = m_register.GetSize() * 8;
  const std::string address = m_register.GetAddressText(0);
  if (!watch.Stands() || !RunEditDialog(numberFormat, host, value, bits, address)) return false;
  m_register.SetValue(value);
  return !platform::Failed(m_register.Write(target));
}

platform::Status CIORecReg::ReadValue(IQDebugger* target) {
  if (!IsOnTarget()) return platform::S_OK;
  // The bit fields below are cut out of the register's value: there is nothing of their own to read, and a
  // refresh doesn't touch them.
  const platform::Status status = m_register.Read(target);
  return platform::Failed(status) ? status : platform::S_OK;
}

platform::Status CIORecReg::WriteValue(IQDebugger* target) {
  if (!IsOnTarget()) return platform::S_OK;
  const platform::Status status = m_register.Write(target);
  return platform::Failed(status) ? status : CIORec::WriteValue(target);
}

std::optional<std::uint32_t> CIORecReg::SizeOf(char letter) {
  switch (letter) {
    case 'B':
    case 'b':
      return 1;
    case 'W':
    case 'w':
      return 2;
    case 'L':
    case 'l':
      return 4;
    default:
      return std::nullopt;
  }
}

std::optional<Radix> CIORecReg::RadixOf(char letter) {
  switch (letter) {
    case 'H':
    case 'h':
      return Radix::kHexadecimal;
    case 'D':
    case 'd':
      return Radix::kDecimal;
    case 'B':
    case 'b':
      return Radix::kBinary;
    default:
      return std::nullopt;
  }
}

bool CIORecReg::ApplyAbsoluteFlag(char letter, const CIODataFile& file, RegisterDescription& description) {
  switch (letter) {
    case 'A':
    case 'a':
      description.absolute = true;
      return true;
    case 'R':
    case 'r':
      description.absolute = true;
      description.address += file.GetFileBase();
      return true;
    default:
      description.absolute = false;
      description.address += file.GetEffectiveBase() - file.GetFileBase();
      return letter == 'I' || letter == 'i';
  }
}

}  // namespace pvw
