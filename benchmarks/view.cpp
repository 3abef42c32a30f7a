#include "benchmarks/view.h"

#include "platform/base/text.h"

namespace bench {

View::View(const Definition& definition) : m_definition(definition) {
  const std::string& path = definition.Path();
  m_instance.host.device.SetDefaultIOPath(path.substr(0, path.size() - 3));
  m_instance.host.workspace = {"demo", "demo", "Debug", "c:\\"};
  m_instance.Start(true);
}

void View::Select(const std::string& selection) {
  m_instance.host.session_values.Set({u"demo", u"demo", u"Debug"},
                                     u"{F866DB60-6186-11D5-8BBE-0004E2013C71}IOSelection IOWnd0",
                                     platform::ToWide(selection));
  m_instance.LoadSession();
}

void View::Open() {
  ioview::Instance::RunCommand(ioview::kOpenViewCommand, m_instance.Frame());
}

// From row to row by their links: asking for a row by its place costs more than opening it.
void View::ExpandAll() {
  platform::SECTreeCtrl& grid = Grid();
  platform::HTREEITEM row = grid.GetRootItem();
  while (row != 0) {
    grid.Expand(row, platform::TVE_EXPAND);
    platform::HTREEITEM next = grid.GetChildItem(row);
    while (next == 0 && row != 0) {
      next = grid.GetNextSiblingItem(row);
      row = grid.GetParentItem(row);
    }
    row = next;
  }
}

void View::ChangeEverything() {
  ++m_value;
  const std::vector<std::uint8_t> bytes(4 * static_cast<std::size_t>(m_definition.Shape().registers),
                                        m_value);
  m_instance.host.target.Poke(0xFF0000, bytes);
}

}  // namespace bench
