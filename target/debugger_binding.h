// Binding of hosts: what stands behind each debugger entry, decided per host when its target connects.
//
// Behind an entry is either a function of the debugger library that the host hands out, fetched by name, or
// an operation of a CDebugSession over the host's services. Several hosts can be bound at once; g_debugHost
// says which one an entry acts for. User-interface thread only.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

#include "target/debug_entries.h"
#include "target/debug_session.h"

namespace pvw {

// The functions of one host.
struct CDebugBinding {
  virtual ~CDebugBinding() = default;

  std::unique_ptr<CDebugSession> m_pSession;  // null when the binding is for no host
  // True when the last entry called went to the library: that side then has the error text.
  bool m_bLibraryCall = false;

  // Functions of the library; null where the host has none. m_pfnExpEval64 alone is the component's own, the
  // 64-bit form over whichever EXP_Eval counts.
  decltype(DebugEntries::IN1_Get_mcu_info) m_pfnGetMcuInfo = nullptr;
  decltype(DebugEntries::IN1_Get_service_info) m_pfnGetServiceInfo = nullptr;
  decltype(DebugEntries::IN1_Get_regtbl_num) m_pfnGetRegtblNum = nullptr;
  decltype(DebugEntries::IN1_Get_regtbl_no) m_pfnGetRegtblNo = nullptr;
  decltype(DebugEntries::IN1_Get_regtbl_name) m_pfnGetRegtblName = nullptr;
  decltype(DebugEntries::IN1_Get_regtbl_menu) m_pfnGetRegtblMenu = nullptr;
  decltype(DebugEntries::IN1_GetMapInfo) m_pfnGetMapInfo = nullptr;
  decltype(DebugEntries::EXP_Eval) m_pfnExpEval = nullptr;
  decltype(DebugEntries::EXP_Eval64) m_pfnExpEval64 = nullptr;
  decltype(DebugEntries::EXP_ASM_Eval) m_pfnExpAsmEval = nullptr;
  decltype(DebugEntries::IN1_Get_rram_area) m_pfnGetRramArea = nullptr;
  decltype(DebugEntries::IN1_Get_rram_size) m_pfnGetRramSize = nullptr;
  decltype(DebugEntries::IN1_Get_PDVersion) m_pfnGetPdVersion = nullptr;
  decltype(DebugEntries::LOAD_HasAsmInfo) m_pfnHasAsmInfo = nullptr;
  decltype(DebugEntries::ERR_GetErrMsg) m_pfnGetErrMsg = nullptr;
  decltype(DebugEntries::IN1_Get_rram) m_pfnGetRram = nullptr;
  decltype(DebugEntries::IN1_Check_RramArea) m_pfnCheckRramArea = nullptr;
};

// A note of each bound host, made and removed with its binding.
struct DebugHostEntry {
  std::string text;
  std::uint32_t number = 0;
};

extern std::unordered_map<IQComponentHost*, std::unique_ptr<CDebugBinding>> g_debugBindings;
extern std::unordered_map<IQComponentHost*, DebugHostEntry> g_debugHostEntries;

// Binds a host whose target has connected, afresh if it was bound before, and makes it the current host.
// `mode` is always 1. Without a host an empty binding is made, after every other has gone.
//
// The library counts only for a host that gives IQDebugPlatform. A host that then gives no IQDebugLibrary, or
// no handle, simply has no library, and all entries go to the session. A library that lacks one of the 16
// functions is the wrong one: the user hears a beep and reads a box that names the function, and the name is
// thrown as a `const char*`, on purpose and out of the host's call. The literal is part of this module: copy
// it before the module is unloaded. What is left behind is the binding with its session and no library
// functions, the current host set, and g_debugEntries as it was, null unless another host is bound.
void BindDebuggerFunctions(IQComponentHost* host, std::uint32_t mode);

// Removes the binding of a host, or with null every binding. The last one takes the entries with it.
void UnbindDebuggerFunctions(IQComponentHost* host);

// The binding of the current host for the length of one entry call. The host may unbind itself in the midst
// of it, when the target drops off while it is read: what the call stands on then lives until the outermost
// call is over.
class BindingInUse {
 public:
  BindingInUse();
  BindingInUse(const BindingInUse&) = delete;
  BindingInUse& operator=(const BindingInUse&) = delete;
  ~BindingInUse();

  // False when the current host has no binding, or that has no session.
  explicit operator bool() const { return binding_ != nullptr; }
  CDebugBinding& operator*() const { return *binding_; }
  CDebugBinding* operator->() const { return binding_; }

 private:
  CDebugBinding* binding_ = nullptr;
};

}  // namespace pvw
