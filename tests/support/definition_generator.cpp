#include "tests/support/definition_generator.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

namespace pvw::test {
namespace {

constexpr std::uint32_t kFileBase = 0xFF0000;

std::string Hex(std::uint32_t value) {
  std::array<char, 9> text{};
  std::snprintf(text.data(), text.size(), "%X", value);
  return text.data();
}

class Generator {
 public:
  explicit Generator(const DefinitionShape& shape) : m_shape(shape) {}

  std::string Run() {
    const int modules = (m_shape.registers + m_shape.registersPerModule - 1) / m_shape.registersPerModule;
    Line("[Modules]");
    Line("BaseAddress=0x" + Hex(kFileBase));
    Line("FileVersion=" + std::to_string(m_shape.version));
    for (int m = 1; m <= modules; ++m) {
      Line("Module" + std::to_string(m) + "=MODULE" + std::to_string(m));
    }
    if (m_shape.dependencies) DependencyRegister();
    for (int m = 1; m <= modules; ++m) Module(m);
    return std::move(m_text);
  }

 private:
  void Line(const std::string& line) { m_text.append(line).append("\r\n"); }

  void DependencyRegister() {
    if (m_shape.version == 1) return;
    Line("[CLKCTL_DESC]");
    if (m_shape.version == 2) {
      Line("id=CLKCTL 0xFE0000 L A H");
    } else {
      Line("name=CLKCTL");
      Line("reladdr=10");
      Line("size=32");
    }
  }

  void Module(int module) {
    const int first = (module - 1) * m_shape.registersPerModule;
    const int count = std::min(m_shape.registersPerModule, m_shape.registers - first);
    const std::string prefix = "M" + std::to_string(module) + "R";
    Line("; module " + std::to_string(module));
    Line("[MODULE" + std::to_string(module) + "]");
    if (m_shape.version == 1) {
      for (int r = 0; r < count; ++r) Line(prefix + std::to_string(r) + "=" + AddressAndSize(first + r));
      return;
    }
    if (m_shape.version == 3) Line("addr=" + Hex(kFileBase));
    if (m_shape.dependencies) Dependency(module % 32);
    for (int r = 0; r < count; ++r) {
      Line("reg" + std::to_string(r) + "=" + prefix + std::to_string(r) + "_DESC");
    }
    for (int r = 0; r < count; ++r) {
      Register(prefix + std::to_string(r), first + r);
    }
  }

  void Dependency(int bit) {
    if (m_shape.version == 2) {
      Line("dep=CLKCTL_DESC " + std::to_string(bit) + " 0");
      return;
    }
    Line("dep_reg=CLKCTL_DESC");
    Line("dep_bit=" + std::to_string(bit));
    Line("dep_val=0");
  }

  void Register(const std::string& name, int number) {
    const char radix = "HDB"[number / 3 % 3];
    Line("[" + name + "_DESC]");
    if (m_shape.version == 2) {
      const std::string bits = m_shape.fieldsPerRegister > 0 ? " " + name + "_BITS" : "";
      Line("id=" + name + " 0x" + AddressAndSize(number) + " " + radix + bits);
      if (m_shape.fieldsPerRegister > 0) Line("[" + name + "_BITS]");
    } else {
      Line("name=" + name);
      Line("reladdr=" + Hex(static_cast<std::uint32_t>(number) * 4));
      Line("size=" + std::to_string(8 << number % 3));
      Line(std::string("radix=") + radix);
      Line(std::string("read=") + (number % 7 == 0 ? "0" : "1"));
      Line(std::string("write=") + (number % 5 == 0 ? "0" : "1"));
    }
    Fields(name);
  }

  void Fields(const std::string& name) {
    if (m_shape.version == 2) {
      for (int f = 0; f < m_shape.fieldsPerRegister; ++f) {
        Line("bit" + std::to_string(2 * f) + "=F" + std::to_string(f) + " 2");
      }
      return;
    }
    for (int f = 0; f < m_shape.fieldsPerRegister; ++f) {
      Line("bitfield" + std::to_string(f) + "=" + name + "F" + std::to_string(f));
    }
    for (int f = 0; f < m_shape.fieldsPerRegister; ++f) {
      Line("[" + name + "F" + std::to_string(f) + "]");
      Line("name=F" + std::to_string(f));
      Line("bit=" + std::to_string(2 * f));
      Line("len=2");
    }
  }

  std::string AddressAndSize(int number) const {
    return Hex(kFileBase + static_cast<std::uint32_t>(number) * 4) + " " + "BWL"[number % 3] + " I";
  }

  const DefinitionShape m_shape;
  std::string m_text;
};

}  // namespace

std::string GenerateDefinition(const DefinitionShape& shape) {
  return Generator(shape).Run();
}

}  // namespace pvw::test
