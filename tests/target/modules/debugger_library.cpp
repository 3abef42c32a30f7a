// A debugger library as a host hands it out. Each function answers with a number of its own, so that a test
// sees which one was called and that its arguments arrived. LACKS_ASM_INFO builds one without
// LOAD_HasAsmInfo.

#include <cstdint>
#include <cstring>

using u32 = std::uint32_t;

#define EXPORTED extern "C" __attribute__((visibility("default")))
#define NUMBER(name, number) \
  EXPORTED u32 name() {      \
    return number;           \
  }
#define NUMBER_OF_ITEM(name, number) \
  EXPORTED u32 name(u32 item) {      \
    return number + item;            \
  }

// Item 298 is a data bus of 16 bits.
EXPORTED u32 IN1_Get_mcu_info(u32 item) {
  return item == 298 ? 16 : 1000 + item;
}
NUMBER_OF_ITEM(IN1_Get_service_info, 2000)
NUMBER(IN1_Get_regtbl_num, 3000)
NUMBER_OF_ITEM(IN1_Get_regtbl_no, 4000)
NUMBER_OF_ITEM(IN1_Get_regtbl_name, 5000)
NUMBER_OF_ITEM(IN1_Get_regtbl_menu, 6000)
EXPORTED int IN1_GetMapInfo(u32 address, u32* first, u32* last, u32* kind) {
  *first = *last = address;
  *kind = 7000;
  return 1;
}
// Fails for the empty text alone.
EXPORTED int EXP_Eval(const char* text, u32 radix, u32 flag, u32* value) {
  *value = 8000 + static_cast<u32>(std::strlen(text)) + 10 * radix + 1000 * flag;
  return *text == '\0' ? 0 : 1;
}
EXPORTED int EXP_ASM_Eval(const char* text, u32 radix, u32, u32* value) {
  *value = 9000 + static_cast<u32>(std::strlen(text)) + 10 * radix;
  return 1;
}
EXPORTED const char* ERR_GetErrMsg() {
  return "from the library";
}
NUMBER_OF_ITEM(IN1_Get_rram, 11000)
NUMBER_OF_ITEM(IN1_Check_RramArea, 12000)
NUMBER_OF_ITEM(IN1_Get_rram_area, 13000)
NUMBER_OF_ITEM(IN1_Get_rram_size, 14000)
NUMBER(IN1_Get_PDVersion, 15000)
#ifndef LACKS_ASM_INFO
NUMBER(LOAD_HasAsmInfo, 16000)
#endif
