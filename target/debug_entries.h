// The table of debugger entry points and the host that they act for.
//
// The records reach the target through plain functions of one table, named after the functions of the host's
// debugger library: IN1_ for target memory, registers, breakpoints and facts about the device, LOAD_ for
// symbols, EXP_ for expressions, EVT_ for events, ERR_ for errors, ENV_ for the environment.
//
// Every pointer is null until the first host is bound and again after the last one is unbound
// (target/debugger_binding.h): a caller tests it, and counts a null entry as a failed access. An entry has no
// argument that names its host: set the current host right before the call, on the same thread. All of this
// runs on the host's user-interface thread.
//
// Unless an entry says otherwise, an `int` result is 1 for success and 0 for failure, in which case
// ERR_GetErrMsg has the text. Addresses are 32 bits wide, counts are in values, sizes and units in bytes; a
// range is given by its first and its last address. Outputs must not be null.
#pragma once

#include <cstdint>

#include "host/component_host.h"

namespace pvw {

struct DebugEntries {
  using u8 = std::uint8_t;
  using u32 = std::uint32_t;
  using u64 = std::uint64_t;

  // Reads `count` values of `unit` bytes, put together in the byte order of the memory area. `values` has
  // room for `count`.
  using ReadValues = int(u32 address, u32 count, u32 unit, u32* values);
  using WriteValues = int(u32 address, u32 count, u32 unit, const u32* values);
  using ReadBytes = int(u32 address, u32 bytes, u8* buffer);
  using WriteBytes = int(u32 address, u32 bytes, const u8* buffer);
  using MoveBytes = int(u32 first, u32 last, u32 destination);
  // Never filled, by no host: it keeps the table's order.
  using Unfilled = void();

  u32 (*IN1_Get_mcu_info)(u32 item);
  u32 (*IN1_Get_service_info)(u32 item);
  int (*IN1_Get_PC)(u32* address);
  int (*IN1_Get_reg)(u32 number, u32* low, u32* high, u32* size);
  int (*IN1_Put_reg)(u32 number, u32 value);
  u32 (*IN1_Get_regtbl_num)();
  u32 (*IN1_Get_regtbl_no)(u32 index);
  u32 (*IN1_Get_regtbl_name)(u32 index);
  u32 (*IN1_Get_regtbl_menu)(u32 index);

  // The digit is the access width in bytes, none meaning 1.
  Unfilled* IN1_Get_Mem_Endian;
  Unfilled* IN1_Get_Mem_Endian2;
  Unfilled* IN1_Get_Mem_Endian4;
  ReadValues* IN1_Get_Mem_EndianNC;
  ReadValues* IN1_Get_Mem_Endian2NC;
  ReadValues* IN1_Get_Mem_Endian4NC;
  ReadBytes* IN1_Get_Mem;
  ReadBytes* IN1_Get_Mem2;
  ReadBytes* IN1_Get_Mem4;
  ReadBytes* IN1_Get_MemNC;
  ReadBytes* IN1_Get_Mem2NC;
  ReadBytes* IN1_Get_Mem4NC;
  WriteValues* IN1_Put_Mem_Endian;
  WriteValues* IN1_Put_Mem_Endian2;
  WriteValues* IN1_Put_Mem_Endian4;
  WriteBytes* IN1_Put_Mem;
  WriteBytes* IN1_Put_Mem2;
  WriteBytes* IN1_Put_Mem4;
  // Writes one value of up to 8 bytes, given as the low and the high word of 64 bits.
  int (*IN1_Put_Value)(u32 address, u32 size, u32 low, u32 high, u32 flag);
  int (*IN1_Fill)(u32 first, u32 last, u32 value, u32 size);
  int (*IN1_Fill_Value)(u32 first, u32 last, u32 size, u32 low, u32 high, u32 flag);
  MoveBytes* IN1_Move;
  MoveBytes* IN1_Move2;
  MoveBytes* IN1_Move4;
  int (*IN1_Search_Value)(u32 first, u32 last, u32 size, u32 low, u32 high, u32* found);

  int (*IN1_GetMapInfo)(u32 address, u32* first, u32* last, u32* kind);
  int (*IN1_Check_Map)(u32 address, u32* kind);
  // The memory area that an address lies in; `*endian` is 273 for big-endian, 274 for little-endian.
  int (*IN1_Get_Area)(u32 address, u32* endian, u32* first, u32* last);

  // Both give a flag.
  int (*IN1_Check_run)(u32* state);
  int (*IN1_Check_running)();
  Unfilled* IN1_IsStep;

  int (*IN1_Set_BP)(u32 address);
  int (*IN1_Reset_BP)(u32 address);
  int (*IN1_All_Reset_BP)();
  int (*IN1_Disable_BP)(u32 address);
  int (*IN1_All_Disable_BP)();
  int (*IN1_All_Enable_BP)();
  int (*IN1_Search_BP)(u32 address);
  int (*IN1_Get_BP)(u32 address);

  u32 (*IN1_Get_rram)(u32 item);
  u32 (*IN1_Check_RramArea)(u32 item);

  // A number from an expression. `radix` is 16, 10, 8 or 2; any other leaves it to the host.
  int (*EXP_Eval)(const char* text, u32 radix, u32 flag, u32* value);
  int (*EXP_Eval64)(const char* text, u32 radix, u32 flag, u64* value);
  int (*EXP_ASM_Eval)(const char* text, u32 radix, u32 flag, u32* value);

  Unfilled* LOAD_ChkSrcInfo;
  Unfilled* LOAD_GetSRCname;
  Unfilled* LOAD_GetSRCname2;
  Unfilled* LOAD_GetOBJname;
  Unfilled* LOAD_GetNowObj;
  const char* (*LOAD_ValToSym)(u32 value);
  int (*LOAD_SymToVal)(const char* text, u32* value);
  Unfilled* LOAD_BitToVal;
  Unfilled* LOAD_GlobalSymToVal;
  Unfilled* LOAD_LocalSymToVal;
  Unfilled* LOAD_GlobalBitToVal;
  Unfilled* LOAD_LocalBitToVal;

  Unfilled* EVT_Happen;
  Unfilled* EVT_ChkLoadfile;

  // 1 unless the system's language is Japanese.
  u32 (*ENV_Get_LANG)();
  // By the exported name "Mangle::demangle".
  Unfilled* Mangle_demangle;
  Unfilled* GetCppDB;

  u32 (*IN1_Get_rram_area)(u32 item);
  u32 (*IN1_Get_rram_size)(u32 item);
  u32 (*IN1_Get_PDVersion)();
  u32 (*LOAD_HasAsmInfo)();

  // The text of the last failure, from the side that failed, in the ANSI code page; good until the next entry
  // is called. Null when the current host isn't bound.
  const char* (*ERR_GetErrMsg)();
};
static_assert(sizeof(DebugEntries) == 75 * sizeof(void (*)()));

extern DebugEntries g_debugEntries;

// The host that every entry acts for. It may be gone or unbound, which the entries find out by looking for
// its binding; nothing calls it through this pointer.
extern IQComponentHost* g_debugHost;
void SetCurrentDebugHost(IQComponentHost* host);

}  // namespace pvw
