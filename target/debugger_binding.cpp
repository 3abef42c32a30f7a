#include "target/debugger_binding.h"

#include <array>
#include <utility>
#include <vector>

#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/message_box.h"
#include "platform/base/module.h"
#include "support/message_text.h"
#include "target/dispatch.h"

namespace pvw {

std::unordered_map<IQComponentHost*, std::unique_ptr<CDebugBinding>> g_debugBindings;
std::unordered_map<IQComponentHost*, DebugHostEntry> g_debugHostEntries;

namespace {

int g_entriesRunning = 0;
// Unbound while an entry runs.
std::vector<std::unique_ptr<CDebugBinding>> g_retiredBindings;

void Retire(std::unique_ptr<CDebugBinding> binding) {
  if (g_entriesRunning > 0) g_retiredBindings.push_back(std::move(binding));
}

// The host is asked for each function anew. Null when it has no library to take it from.
void* FetchFunction(IQComponentHost* host, const char* name) {
  const CHostPtr<IQDebugLibrary> library(host, IID_IQDebugLibrary);
  platform::HMODULE handle = nullptr;
  if (!library || platform::Failed(library->GetLibraryHandle(&handle)) || handle == nullptr) return nullptr;
  void* const function = platform::GetProcAddress(handle, name);
  if (function == nullptr) {
    platform::MessageBeep();
    platform::MessageBox(FormatMessageText("Can not get the address of the function %s.", name),
                         platform::MB_OK, "Error");
    throw name;
  }
  return function;
}

}  // namespace

BindingInUse::BindingInUse() {
  ++g_entriesRunning;
  const auto found = g_debugBindings.find(g_debugHost);
  if (found != g_debugBindings.end() && found->second->m_pSession != nullptr) binding_ = found->second.get();
}

BindingInUse::~BindingInUse() {
  if (--g_entriesRunning == 0) g_retiredBindings.clear();
}

void BindDebuggerFunctions(IQComponentHost* host, std::uint32_t /*mode*/) {
  UnbindDebuggerFunctions(host);
  SetCurrentDebugHost(host);
  g_debugHostEntries[host] = {};

  // The host may unbind itself, or bind anew, while it is asked: for the session's services, then for the
  // library.
  const BindingInUse asking;
  CDebugBinding& binding = *(g_debugBindings[host] = std::make_unique<CDebugBinding>());
  const auto stands = [&] {
    const auto bound = g_debugBindings.find(host);
    return bound != g_debugBindings.end() && bound->second.get() == &binding;
  };
  if (host != nullptr) {
    auto session = std::make_unique<CDebugSession>(host);
    if (!stands()) return;
    binding.m_pSession = std::move(session);
  }

  // All functions are there before the first is stored, so that a wrong library leaves none behind.
  std::array<void*, kLibraryFunctionCount> functions{};
  if (CHostPtr<IQDebugPlatform>(host, IID_IQDebugPlatform)) {
    for (std::size_t i = 0; i < functions.size(); ++i) {
      functions[i] = FetchFunction(host, LibraryFunctions()[i].name);
    }
  }
  const DebugEntries entries = DispatchFunctions();
  if (!stands()) return;
  for (std::size_t i = 0; i < functions.size(); ++i) LibraryFunctions()[i].store(binding, functions[i]);
  binding.m_pfnExpEval64 = entries.EXP_Eval64;
  g_debugEntries = entries;
}

void UnbindDebuggerFunctions(IQComponentHost* host) {
  if (host != nullptr) {
    const auto found = g_debugBindings.find(host);
    if (found != g_debugBindings.end()) {
      Retire(std::move(found->second));
      g_debugBindings.erase(found);
    }
  } else {
    for (auto& [bound, binding] : g_debugBindings) Retire(std::move(binding));
    g_debugBindings.clear();
  }
  if (g_debugBindings.empty()) g_debugEntries = {};
  g_debugHostEntries.erase(host != nullptr ? host : g_debugHost);
}

}  // namespace pvw
