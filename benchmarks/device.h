// A generated device to measure on: its definition file, a host with a simulated target behind it, and the
// record tree as a view with everything open has it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "benchmarks/definition_generator.h"
#include "ioview/host/host_services.h"
#include "model/io_data.h"
#include "model/io_data_file.h"

namespace bench {

// A definition of `registers` registers, written to a file that goes with the object.
class Definition {
 public:
  Definition(int version, int registers);
  Definition(const Definition&) = delete;
  Definition& operator=(const Definition&) = delete;
  ~Definition();

  const DefinitionShape& Shape() const { return m_shape; }
  const std::string& NativePath() const { return m_native; }
  const std::string& Path() const { return m_path; }
  // Names one register in so many, and every module, in the form that a session keeps.
  std::string Selection(int one_in) const;
  std::string WholeSelection() const { return Selection(1); }
  // Lookups of keys that opening everything makes.
  std::size_t LookupCount() const;
  int FieldCount() const;

 private:
  DefinitionShape m_shape;
  std::string m_native;
  std::string m_path;
};

// Opens the file and makes every record of it, as a view does that opens every row.
void OpenAll(const Definition& definition, ioview::HostServices& host, pvw::CIODataFile& file,
             pvw::CIOData& data);
// Makes all that lies below the modules; with the selection applied at every level.
void OpenModules(pvw::CIODataFile& file, pvw::CIOData& data, bool apply_selection);

}  // namespace bench
