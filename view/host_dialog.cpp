#include "view/host_dialog.h"

#include <cstddef>
#include <vector>

#include "component/services/module_state.h"

namespace pvw {

namespace {

struct Running {
  platform::CDialog* dialog;
  const IQComponentHost* host;
};

// The innermost last.
std::vector<Running> g_running;

class Entry {
 public:
  explicit Entry(const Running& running) { g_running.push_back(running); }
  Entry(const Entry&) = delete;
  Entry& operator=(const Entry&) = delete;
  ~Entry() { g_running.pop_back(); }
};

}  // namespace

int RunHostDialog(platform::CDialog& dialog, IQComponentHost* host) {
  const CModuleState state;
  const Entry entry({&dialog, host});
  return dialog.DoModal();
}

void EndHostDialogs(const IQComponentHost* host) {
  for (std::size_t i = g_running.size(); i > 0; --i) {
    if (g_running[i - 1].host == host) g_running[i - 1].dialog->DestroyWindow();
  }
}

}  // namespace pvw
