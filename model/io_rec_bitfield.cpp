#include "model/io_rec_bitfield.h"

#include <utility>

namespace pvw {
namespace {

constexpr std::uint32_t Count32(std::int32_t n) {
  return static_cast<std::uint32_t>(n) % 32;
}
constexpr std::uint32_t Count64(std::int32_t n) {
  return static_cast<std::uint32_t>(n) % 64;
}
constexpr std::uint64_t Mask64(std::int32_t length) {
  return (std::uint64_t{1} << Count64(length)) - 1;
}

}  // namespace

CIORecBitfield::CIORecBitfield(std::string name, CIORec* parent, CIORegisterID* registerId)
    : CIORec(std::move(name), parent), m_pRegister(registerId) {
  m_bChildrenKnown = true;
}

void CIORecBitfield::SetField(std::string name, std::int32_t bit, std::int32_t length) {
  Charge(name.size());
  m_fieldName = std::move(name);
  m_bit = bit;
  m_length = length;
}

std::uint32_t CIORecBitfield::GetFieldValue() const {
  if (m_pRegister == nullptr) return 0;
  const auto shifted =
      static_cast<std::uint32_t>(static_cast<std::int32_t>(m_pRegister->GetLowWord()) >> Count32(m_bit));
  // A field of 32 bits would have an empty mask; in a register of that width it is the whole of it.
  if (m_length == 32 && m_pRegister->GetSize() == 4) return shifted;
  return shifted & ((std::uint32_t{1} << Count32(m_length)) - 1);
}

std::uint64_t CIORecBitfield::WithField(std::uint64_t value) const {
  const std::uint64_t field = Mask64(m_length) << Count64(m_bit);
  return (m_pRegister->GetValue() & ~field) + (value << Count64(m_bit));
}

bool CIORecBitfield::Write(IQDebugger* target, std::uint64_t registerValue) {
  m_pRegister->SetValue(registerValue);
  return !platform::Failed(m_pRegister->Write(target));
}

bool CIORecBitfield::SetValue(IQDebugger* target, std::uint64_t value) {
  if (!IsOnTarget()) return false;
  if (value >> Count64(m_length) != 0) {
    ShowTooBig(Mask64(m_length));
    return false;
  }
  const std::uint64_t registerValue = WithField(value);
  if (registerValue == m_pRegister->GetValue()) return false;
  return Write(target, registerValue);
}

bool CIORecBitfield::EditValue(IQDebugger* target, IQNumberFormat* numberFormat, IQComponentHost* host) {
  if (!IsOnTarget()) return false;
  std::uint64_t value = GetFieldValue();
  const Watch<CIORec> watch(this);
  const std::string address = m_pRegister->GetAddressText(0);
  if (!watch.Stands()) return false;
  if (!RunEditDialog(numberFormat, host, value, static_cast<std::uint32_t>(m_length), address)) return false;
  return Write(target, WithField(value));
}

std::string CIORecBitfield::GetValueText() const {
  return GetNumberText(GetFieldValue(), static_cast<std::uint32_t>(m_length));
}

void CIORecBitfield::OnAdopted() {
  m_pRegister = GetParent()->GetRegister();
}

}  // namespace pvw
