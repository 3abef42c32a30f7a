#include "benchmarks/definition_generator.h"

#include <algorithm>
#include <cstdint>
#include <sstream>

namespace bench {
namespace {

constexpr int kFileBase = 0xFF0000;

std::string Hex(int value) {
  std::ostringstream text;
  text << std::hex << std::uppercase << value;
  return text.str();
}

class Generator {
 public:
  explicit Generator(const DefinitionShape& shape) : m_shape(shape) {}

  std::string Run() {
    const int modules = (m_shape.registers + m_shape.registersPerModule - 1) / m_shape.registersPerModule;
    Line("[Modules]");
    Line("BaseAddress=0x", Hex(kFileBase));
    Line("FileVersion=", m_shape.version);
    for (int m = 1; m <= modules; ++m) Line("Module", m, "=MODULE", m);
    if (m_shape.version != 1) Line("[CLKCTL_DESC]");
    if (m_shape.version == 2) Line("id=CLKCTL 0xFE0000 L A H");
    if (m_shape.version == 3) Line("name=CLKCTL\r\nreladdr=10\r\nsize=32");
    for (int m = 1; m <= modules; ++m) Module(m);
    return m_text.str();
  }

 private:
  template <typename... Parts>
  void Line(const Parts&... parts) {
    (m_text << ... << parts) << "\r\n";
  }

  void Module(int module) {
    const int first = (module - 1) * m_shape.registersPerModule;
    const int count = std::min(m_shape.registersPerModule, m_shape.registers - first);
    const std::string prefix = "M" + std::to_string(module) + "R";
    Line("; module ", module);
    Line("[MODULE", module, "]");
    if (m_shape.version == 3) Line("addr=", Hex(kFileBase));
    if (m_shape.version == 3) Line("dep_reg=CLKCTL_DESC\r\ndep_bit=", module % 32, "\r\ndep_val=0");
    if (m_shape.version == 2) Line("dep=CLKCTL_DESC ", module % 32, " 0");
    for (int r = 0; r < count; ++r) {
      m_shape.version == 1 ? Line(prefix, r, "=", AddressAndSize(first + r))
                           : Line("reg", r, "=", prefix, r, "_DESC");
    }
    for (int r = 0; m_shape.version != 1 && r < count; ++r) {
      Register(prefix + std::to_string(r), first + r);
    }
  }

  void Register(const std::string& name, int number) {
    const char radix = "HDB"[number / 3 % 3];
    Line("[", name, "_DESC]");
    if (m_shape.version == 2) {
      Line("id=", name, " 0x", AddressAndSize(number), " ", radix, " ", name, "_BITS\r\n[", name, "_BITS]");
      for (int f = 0; f < m_shape.fieldsPerRegister; ++f) Line("bit", 2 * f, "=F", f, " 2");
      return;
    }
    Line("name=", name, "\r\nreladdr=", Hex(number * 4), "\r\nsize=", 8 << number % 3);
    Line("radix=", radix, "\r\nread=", number % 7 == 0 ? 0 : 1, "\r\nwrite=", number % 5 == 0 ? 0 : 1);
    for (int f = 0; f < m_shape.fieldsPerRegister; ++f) Line("bitfield", f, "=", name, "F", f);
    for (int f = 0; f < m_shape.fieldsPerRegister; ++f) {
      Line("[", name, "F", f, "]\r\nname=F", f, "\r\nbit=", 2 * f, "\r\nlen=2");
    }
  }

  static std::string AddressAndSize(int number) {
    return Hex(kFileBase + number * 4) + " " + "BWL"[number % 3] + " I";
  }

  const DefinitionShape m_shape;
  std::ostringstream m_text;
};

}  // namespace

std::string GenerateDefinition(const DefinitionShape& shape) {
  return Generator(shape).Run();
}

}  // namespace bench
