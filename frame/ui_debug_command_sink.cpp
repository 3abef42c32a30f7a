#include "frame/ui_debug_command_sink.h"

namespace pvw {

void CUiDebugCommandSink::OnTargetConnected() {
  for (std::size_t i = 0; i < m_panes.size(); ++i) m_panes[i]->OnTargetConnected();
}

void CUiDebugCommandSink::OnTargetDisconnected() {
  for (std::size_t i = 0; i < m_panes.size(); ++i) m_panes[i]->OnTargetDisconnected();
}

}  // namespace pvw
