// The I/O view as a user has it open: the component loaded through its exports, connected to a host with a
// simulated target, on the display without a screen.
#pragma once

#include <cstdint>
#include <vector>

#include "benchmarks/device.h"
#include "ioview/component/component_library.h"
#include "ioview/component/headless_stage.h"
#include "ioview/component/instance.h"

namespace bench {

class View {
 public:
  // Connected, with the device's definition; the view isn't open.
  explicit View(const Definition& definition);
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  ioview::Instance& Host() { return m_instance; }
  platform::HeadlessDisplay& Display() { return m_stage.display; }
  // The registers of the second page, in the form that a session keeps; before the view opens.
  void Select(const std::string& selection);
  void Open();
  void Close() { m_instance.CloseView(); }
  platform::SECTreeCtrl& Grid() { return *m_instance.Grid(ioview::PaneIndex::kAll); }
  // Every row that has children.
  void ExpandAll();
  // Every byte that a register reads differs from before.
  void ChangeEverything();

 private:
  const Definition& m_definition;
  ioview::HeadlessStage m_stage{{}};
  ioview::ComponentLibrary m_library;
  ioview::UserSettings m_settings;
  ioview::Instance m_instance{m_library, m_settings};
  std::uint8_t m_value = 0;
};

}  // namespace bench
