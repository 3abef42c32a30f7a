// A record of one target register, the child of a module. Each file version parses its own form of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/io_rec.h"

namespace pvw {

class CIORecReg : public CIORec {
 public:
  // `name` is the register's name in the file: its key or its section.
  CIORecReg(std::string name, CIORec* parent);

  // Says what the register is called and where it is. Until then, and while it is missing, the register is
  // neither read nor written.
  void Define(RegisterDescription description);

  // Registers don't hand it on: bit fields have no address.
  void Relocate(std::uint32_t delta) override;
  bool IsEditable() const override { return true; }
  // A value that the register has already is not written.
  bool SetValue(IQDebugger* target, std::uint64_t value) override;
  bool EditValue(IQDebugger* target, IQNumberFormat* numberFormat, IQComponentHost* host) override;
  bool HasChildren() const override { return !m_bChildrenKnown || !m_children.empty(); }
  platform::Status ReadValue(IQDebugger* target) override;
  platform::Status WriteValue(IQDebugger* target) override;
  const std::string& GetName() const override { return m_register.GetName(); }
  std::string GetAddressText(std::uint32_t offset) const override {
    return m_register.GetAddressText(offset);
  }
  std::string GetValueText() const override { return m_register.GetValueText(); }

  CIORegisterID* GetRegister() override { return &m_register; }

 protected:
  // What the letters of a register's description stand for, in either case; nothing for any other.
  static std::optional<std::uint32_t> SizeOf(char letter);
  static std::optional<Radix> RadixOf(char letter);
  // Applies the absolute flag to an address as written in the file: A leaves it, R adds the file base, I
  // moves it with the effective base. Any other letter acts as I and gives false.
  [[nodiscard]] static bool ApplyAbsoluteFlag(char letter, const CIODataFile& file,
                                              RegisterDescription& description);

  CIORegisterID m_register;

 private:
  bool IsOnTarget() const { return m_register.IsSet() && !m_bMissing; }
};

}  // namespace pvw
