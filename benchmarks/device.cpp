#include "benchmarks/device.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <thread>
#include <vector>

#include "platform/base/paths.h"

namespace bench {

namespace {

std::string TempFile() {
  const char* directory = std::getenv("TMPDIR");
  std::string name = std::string(directory == nullptr ? "/tmp" : directory) + "/pvwio-benchmark-XXXXXX.io";
  const int descriptor = mkstemps(name.data(), 3);
  if (descriptor >= 0) close(descriptor);
  return name;
}

}  // namespace

Definition::Definition(int version, int registers) : m_native(TempFile()) {
  m_shape.version = version;
  m_shape.registers = registers;
  std::ofstream(m_native, std::ios::binary) << GenerateDefinition(m_shape);
  m_path = platform::FromNativePath(m_native).value();
  // A file that was just written is read again at each look, until no further write could go unseen.
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

Definition::~Definition() {
  std::remove(m_native.c_str());
}

std::string Definition::Selection(int one_in) const {
  std::string text = "{";
  for (int r = 0; r < m_shape.registers; ++r) {
    const std::string module = std::to_string(r / m_shape.registersPerModule + 1);
    const int place = r % m_shape.registersPerModule;
    if (place == 0) text += (r == 0 ? "MODULE" : "}MODULE") + module + "?{";
    if (r % one_in == 0) text += "M" + module + "R" + std::to_string(place) + "?";
  }
  return text + "}}";
}

int Definition::FieldCount() const {
  return m_shape.version == 1 ? 0 : m_shape.registers * m_shape.fieldsPerRegister;
}

std::size_t Definition::LookupCount() const {
  const std::size_t registers = m_shape.registers;
  const std::size_t fields = FieldCount();
  const std::size_t modules = (registers + m_shape.registersPerModule - 1) / m_shape.registersPerModule;
  switch (m_shape.version) {
    case 1:
      return 2 * modules + registers;  // its key list; each entry
    case 2:
      return 4 * modules + 3 * registers + fields;  // reg, id, the key list; each bit
    default:
      return 7 * modules + 8 * registers + 4 * fields;  // reg, six keys, the last bitfield; bitfield, three
  }
}

void OpenModules(pvw::CIODataFile& file, pvw::CIOData& data, bool apply_selection) {
  for (std::size_t m = 0; pvw::CIORec* module = data.GetModule(m); ++m) {
    if (!module->AreChildrenKnown()) {
      module->LoadChildren(&file, nullptr);
      if (apply_selection) data.ApplyChildSelection(module, {module->GetName()});
      module->SetChildrenKnown(true);
    }
    for (const auto& child : module->GetChildren()) {
      if (child->AreChildrenKnown()) continue;
      child->LoadChildren(&file, nullptr);
      if (apply_selection) data.ApplyChildSelection(child.get(), {child->GetName(), module->GetName()});
      child->SetChildrenKnown(true);
    }
  }
}

void OpenAll(const Definition& definition, ioview::HostServices& host, pvw::CIODataFile& file,
             pvw::CIOData& data) {
  file.Open(definition.Path(), 0);
  data.SetHost(&host.root);
  data.LoadModules(&file);
  OpenModules(file, data, false);
}

}  // namespace bench
