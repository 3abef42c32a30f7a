// A record of a run of bits in a register, the child of its register. It has no storage on the target: its
// value is cut out of the register's cached value, and writing it writes the whole register.
//
// The file limits neither number, so both are held to what the arithmetic takes: reading counts shifts modulo
// 32, writing modulo 64. A field may end past bit 31; it then shows what an arithmetic shift brings in.
#pragma once

#include <cstdint>
#include <string>

#include "model/io_rec.h"

namespace pvw {

class CIORecBitfield : public CIORec {
 public:
  // `name` is the field's name in the file. The register is `parent`'s and isn't owned.
  CIORecBitfield(std::string name, CIORec* parent, CIORegisterID* registerId);

  void SetField(std::string name, std::int32_t bit, std::int32_t length);
  std::uint32_t GetFieldValue() const;

  bool IsEditable() const override { return true; }
  // The cached value counts as it stands, and a value that the field has already is not written.
  bool SetValue(IQDebugger* target, std::uint64_t value) override;
  // The value that comes out of the dialog is written even when it is the same.
  bool EditValue(IQDebugger* target, IQNumberFormat* numberFormat, IQComponentHost* host) override;
  const std::string& GetName() const override { return m_fieldName; }
  // Hexadecimal without leading zeros, whatever the register's radix.
  std::string GetValueText() const override;
  CIORegisterID* GetRegister() override { return m_pRegister; }

 protected:
  void OnAdopted() override;

 private:
  bool IsOnTarget() const { return m_pRegister != nullptr && !m_bMissing; }
  // The register's value with that field value in it.
  std::uint64_t WithField(std::uint64_t value) const;
  [[nodiscard]] bool Write(IQDebugger* target, std::uint64_t registerValue);

  std::string m_fieldName;
  std::int32_t m_bit = 0;     // number of the lowest bit
  std::int32_t m_length = 1;  // in bits
  CIORegisterID* m_pRegister;
};

}  // namespace pvw
