// A top-level record: a named group of registers, which can depend on one bit of one register.
//
// What all file versions share stands here: the one walk over the registers of the module's section, and the
// dependency. A version answers how its registers are named, made and parsed. A module shows only its name.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/io_rec.h"
#include "model/io_rec_reg.h"

namespace pvw {

class CIORecModule : public CIORec {
 public:
  // `name` is the module's name and that of its section.
  CIORecModule(std::string name, IQComponentHost* host) : CIORec(std::move(name), host) {}

  bool HasChildren() const override { return !m_bLoaded || !m_children.empty(); }
  // An attempt after one that failed makes the registers anew. Selection records that the module has adopted
  // stay, behind the registers of the file. In the midst of an attempt another one fails.
  bool LoadChildren(CIODataFile* file, IQDebugger* target) override;
  // Reads the dependency's register, whose failure leaves the last value in force, and the registers. Gives 0
  // while the module is there: one register that fails stops nothing.
  platform::Status ReadValue(IQDebugger* target) override;
  const std::string& GetName() const override { return m_name; }

  // Reads the module's own keys, which are those of its dependency. False on a fault of the file, which
  // leaves the module without one.
  virtual bool LoadDependency(CIODataFile* file) = 0;
  // The module's values can be edited while bit `bit` modulo 32 of a register has that value. Keeps a copy of
  // the register; without memory for it the module has no dependency.
  void SetDependency(const CIORegisterID& registerId, std::uint32_t bit, std::uint32_t value);
  // Null without a dependency.
  const CIORegisterID* GetDependency() const { return m_pDepRegister.get(); }

  std::uint32_t GetAddress() const { return m_address; }

 protected:
  // Whether there is nothing to load now.
  virtual bool TestLoaded() { return m_bLoaded; }
  // Makes, parses and reads the registers; other children than missing ones there are none. Here they are
  // those of the list reg0, reg1, ..., all of them made before the first is parsed.
  virtual bool LoadRegisters(CIODataFile* file, IQDebugger* target);
  // What a module that lists no registers loads to.
  virtual bool OnNoRegisters() const { return true; }
  // Null when there is no room for it.
  virtual std::unique_ptr<CIORecReg> MakeRegister(std::string name) = 0;
  // False stops the module at a register that the version doesn't put up with.
  virtual bool ParseRegister(CIORecReg& reg, CIODataFile* file) = 0;

  bool IsConditionMet() const override;

  bool m_bLoaded = false;
  bool m_bLoading = false;
  std::uint32_t m_address = 0;  // added to those of its registers
  bool m_bAbsolute = false;     // kept; changes nothing

 private:
  std::unique_ptr<CIORegisterID> m_pDepRegister;
  std::uint32_t m_depBit = 0;
  std::uint32_t m_depValue = 0;
};

}  // namespace pvw
