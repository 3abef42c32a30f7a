#include "target/dispatch.h"

#include <algorithm>
#include <array>
#include <functional>
#include <type_traits>

namespace pvw {

namespace {

using E = DebugEntries;
using B = CDebugBinding;
using S = CDebugSession;

// In place of a session operation: the answer is 0, and outputs stay as they are.
constexpr std::nullptr_t kAnswersZero = nullptr;
// In place of a library function: no library has it.
constexpr std::nullptr_t kNoLibrary = nullptr;

template <auto Value>
constexpr bool kIsNone = std::is_null_pointer_v<decltype(Value)>;

template <auto Entry, auto Function, auto Operation>
struct Dispatch;

template <typename Result, typename... Arguments, Result (*E::*Entry)(Arguments...), auto Function,
          auto Operation>
struct Dispatch<Entry, Function, Operation> {
  static Result Call(Arguments... arguments) {
    const BindingInUse binding;
    if (!binding) return Result{};
    if constexpr (!kIsNone<Function>) {
      if (const auto function = (*binding).*Function; function != nullptr) {
        binding->m_bLibraryCall = true;
        return function(arguments...);
      }
    }
    Result result{};
    if constexpr (!kIsNone<Operation>) {
      result = static_cast<Result>(std::invoke(Operation, *binding->m_pSession, arguments...));
    }
    // Set behind the operation, which may have asked the library for a fact on its way: the failure is the
    // session's all the same.
    binding->m_bLibraryCall = false;
    return result;
  }
};

template <std::uint32_t Width>
bool ReadValues(S& session, std::uint32_t address, std::uint32_t count, std::uint32_t unit,
                std::uint32_t* values) {
  return session.GetValuesDirect(address, count, unit, Width, values);
}

// Two entries don't count as the last one called: the text of the last failure, and the wide form of
// EXP_Eval, where the side that evaluated is the one that has the text.

const char* LastErrorText() {
  const BindingInUse binding;
  if (!binding) return nullptr;
  if (binding->m_bLibraryCall && binding->m_pfnGetErrMsg != nullptr) return binding->m_pfnGetErrMsg();
  return binding->m_pSession->GetErrorMessagePointer();
}

// Widened without a sign.
int EvaluateWide(const char* text, std::uint32_t radix, std::uint32_t flag, std::uint64_t* value) {
  std::uint32_t narrow = 0;
  if (g_debugEntries.EXP_Eval == nullptr || g_debugEntries.EXP_Eval(text, radix, flag, &narrow) == 0)
    return 0;
  *value = narrow;
  return 1;
}

struct EntryRow {
  const char* name;
  void (*fill)(E&) = nullptr;          // null: stays null
  std::size_t fetched = 0;             // when it is fetched from the library, from 1; 0: never
  void (*store)(B&, void*) = nullptr;  // for what was fetched
};

constexpr EntryRow StaysNull(const char* name) {
  return {.name = name};
}

template <auto Entry, auto Own>
constexpr EntryRow Filled(const char* name) {
  return {.name = name, .fill = [](E& entries) { entries.*Entry = Own; }};
}

// The session's alone.
template <auto Entry, auto Operation>
constexpr EntryRow Session(const char* name) {
  return Filled<Entry, Dispatch<Entry, kNoLibrary, Operation>::Call>(name);
}

template <auto Function>
constexpr EntryRow Fetched(EntryRow row, std::size_t fetched) {
  row.fetched = fetched;
  row.store = [](B& binding, void* function) {
    binding.*Function = reinterpret_cast<std::remove_reference_t<decltype(binding.*Function)>>(function);
  };
  return row;
}

// The library's, else the session's.
template <auto Entry, auto Function, auto Operation>
constexpr EntryRow Library(const char* name, std::size_t fetched) {
  return Fetched<Function>(Filled<Entry, Dispatch<Entry, Function, Operation>::Call>(name), fetched);
}

constexpr auto kEntries = std::to_array<EntryRow>({
    Library<&E::IN1_Get_mcu_info, &B::m_pfnGetMcuInfo, &S::GetMcuInfo>("IN1_Get_mcu_info", 1),
    Library<&E::IN1_Get_service_info, &B::m_pfnGetServiceInfo, &S::GetServiceInfo>("IN1_Get_service_info", 2),
    Session<&E::IN1_Get_PC, kAnswersZero>("IN1_Get_PC"),
    Session<&E::IN1_Get_reg, kAnswersZero>("IN1_Get_reg"),
    Session<&E::IN1_Put_reg, kAnswersZero>("IN1_Put_reg"),
    Library<&E::IN1_Get_regtbl_num, &B::m_pfnGetRegtblNum, kAnswersZero>("IN1_Get_regtbl_num", 3),
    Library<&E::IN1_Get_regtbl_no, &B::m_pfnGetRegtblNo, kAnswersZero>("IN1_Get_regtbl_no", 4),
    Library<&E::IN1_Get_regtbl_name, &B::m_pfnGetRegtblName, kAnswersZero>("IN1_Get_regtbl_name", 5),
    Library<&E::IN1_Get_regtbl_menu, &B::m_pfnGetRegtblMenu, kAnswersZero>("IN1_Get_regtbl_menu", 6),

    StaysNull("IN1_Get_Mem_Endian"),
    StaysNull("IN1_Get_Mem_Endian2"),
    StaysNull("IN1_Get_Mem_Endian4"),
    Session<&E::IN1_Get_Mem_EndianNC, ReadValues<1>>("IN1_Get_Mem_EndianNC"),
    Session<&E::IN1_Get_Mem_Endian2NC, ReadValues<2>>("IN1_Get_Mem_Endian2NC"),
    Session<&E::IN1_Get_Mem_Endian4NC, ReadValues<4>>("IN1_Get_Mem_Endian4NC"),
    Session<&E::IN1_Get_Mem, kAnswersZero>("IN1_Get_Mem"),
    Session<&E::IN1_Get_Mem2, kAnswersZero>("IN1_Get_Mem2"),
    Session<&E::IN1_Get_Mem4, kAnswersZero>("IN1_Get_Mem4"),
    Session<&E::IN1_Get_MemNC, kAnswersZero>("IN1_Get_MemNC"),
    Session<&E::IN1_Get_Mem2NC, kAnswersZero>("IN1_Get_Mem2NC"),
    Session<&E::IN1_Get_Mem4NC, kAnswersZero>("IN1_Get_Mem4NC"),
    Session<&E::IN1_Put_Mem_Endian, kAnswersZero>("IN1_Put_Mem_Endian"),
    Session<&E::IN1_Put_Mem_Endian2, kAnswersZero>("IN1_Put_Mem_Endian2"),
    Session<&E::IN1_Put_Mem_Endian4, kAnswersZero>("IN1_Put_Mem_Endian4"),
    Session<&E::IN1_Put_Mem, kAnswersZero>("IN1_Put_Mem"),
    Session<&E::IN1_Put_Mem2, kAnswersZero>("IN1_Put_Mem2"),
    Session<&E::IN1_Put_Mem4, kAnswersZero>("IN1_Put_Mem4"),
    Session<&E::IN1_Put_Value, &S::PutValue>("IN1_Put_Value"),
    Session<&E::IN1_Fill, kAnswersZero>("IN1_Fill"),
    Session<&E::IN1_Fill_Value, kAnswersZero>("IN1_Fill_Value"),
    Session<&E::IN1_Move, kAnswersZero>("IN1_Move"),
    Session<&E::IN1_Move2, kAnswersZero>("IN1_Move2"),
    Session<&E::IN1_Move4, kAnswersZero>("IN1_Move4"),
    Session<&E::IN1_Search_Value, kAnswersZero>("IN1_Search_Value"),

    Library<&E::IN1_GetMapInfo, &B::m_pfnGetMapInfo, kAnswersZero>("IN1_GetMapInfo", 7),
    Session<&E::IN1_Check_Map, kAnswersZero>("IN1_Check_Map"),
    Session<&E::IN1_Get_Area, &S::GetAreaInfo>("IN1_Get_Area"),

    Session<&E::IN1_Check_run, kAnswersZero>("IN1_Check_run"),
    Session<&E::IN1_Check_running, kAnswersZero>("IN1_Check_running"),
    StaysNull("IN1_IsStep"),

    Session<&E::IN1_Set_BP, kAnswersZero>("IN1_Set_BP"),
    Session<&E::IN1_Reset_BP, kAnswersZero>("IN1_Reset_BP"),
    Session<&E::IN1_All_Reset_BP, kAnswersZero>("IN1_All_Reset_BP"),
    Session<&E::IN1_Disable_BP, kAnswersZero>("IN1_Disable_BP"),
    Session<&E::IN1_All_Disable_BP, kAnswersZero>("IN1_All_Disable_BP"),
    Session<&E::IN1_All_Enable_BP, kAnswersZero>("IN1_All_Enable_BP"),
    Session<&E::IN1_Search_BP, kAnswersZero>("IN1_Search_BP"),
    Session<&E::IN1_Get_BP, kAnswersZero>("IN1_Get_BP"),

    Library<&E::IN1_Get_rram, &B::m_pfnGetRram, kAnswersZero>("IN1_Get_rram", 11),
    Library<&E::IN1_Check_RramArea, &B::m_pfnCheckRramArea, kAnswersZero>("IN1_Check_RramArea", 12),

    Library<&E::EXP_Eval, &B::m_pfnExpEval, &S::ExpEval>("EXP_Eval", 8),
    Filled<&E::EXP_Eval64, EvaluateWide>("EXP_Eval64"),
    Library<&E::EXP_ASM_Eval, &B::m_pfnExpAsmEval, kAnswersZero>("EXP_ASM_Eval", 9),

    StaysNull("LOAD_ChkSrcInfo"),
    StaysNull("LOAD_GetSRCname"),
    StaysNull("LOAD_GetSRCname2"),
    StaysNull("LOAD_GetOBJname"),
    StaysNull("LOAD_GetNowObj"),
    Session<&E::LOAD_ValToSym, kAnswersZero>("LOAD_ValToSym"),
    Session<&E::LOAD_SymToVal, kAnswersZero>("LOAD_SymToVal"),
    StaysNull("LOAD_BitToVal"),
    StaysNull("LOAD_GlobalSymToVal"),
    StaysNull("LOAD_LocalSymToVal"),
    StaysNull("LOAD_GlobalBitToVal"),
    StaysNull("LOAD_LocalBitToVal"),

    StaysNull("EVT_Happen"),
    StaysNull("EVT_ChkLoadfile"),

    Session<&E::ENV_Get_LANG, &S::GetLanguage>("ENV_Get_LANG"),
    StaysNull("Mangle::demangle"),
    StaysNull("GetCppDB"),

    Library<&E::IN1_Get_rram_area, &B::m_pfnGetRramArea, kAnswersZero>("IN1_Get_rram_area", 13),
    Library<&E::IN1_Get_rram_size, &B::m_pfnGetRramSize, kAnswersZero>("IN1_Get_rram_size", 14),
    Library<&E::IN1_Get_PDVersion, &B::m_pfnGetPdVersion, kAnswersZero>("IN1_Get_PDVersion", 15),
    Library<&E::LOAD_HasAsmInfo, &B::m_pfnHasAsmInfo, kAnswersZero>("LOAD_HasAsmInfo", 16),

    Fetched<&B::m_pfnGetErrMsg>(Filled<&E::ERR_GetErrMsg, LastErrorText>("ERR_GetErrMsg"), 10),
});
static_assert(kEntries.size() == 75);
static_assert(std::ranges::count(kEntries, nullptr, &EntryRow::fill) == 18);

constexpr auto kLibraryFunctions = [] {
  std::array<LibraryFunction, kLibraryFunctionCount> functions{};
  for (const EntryRow& row : kEntries) {
    if (row.fetched != 0) functions.at(row.fetched - 1) = {row.name, row.store};
  }
  return functions;
}();
static_assert(std::ranges::count(kLibraryFunctions, nullptr, &LibraryFunction::name) == 0);

}  // namespace

std::span<const LibraryFunction, kLibraryFunctionCount> LibraryFunctions() {
  return kLibraryFunctions;
}

DebugEntries DispatchFunctions() {
  DebugEntries entries{};
  for (const EntryRow& row : kEntries) {
    if (row.fill != nullptr) row.fill(entries);
  }
  return entries;
}

}  // namespace pvw
