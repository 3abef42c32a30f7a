#include "target/debug_entries.h"

namespace pvw {

DebugEntries g_debugEntries{};
IQComponentHost* g_debugHost = nullptr;

void SetCurrentDebugHost(IQComponentHost* host) {
  g_debugHost = host;
}

}  // namespace pvw
