#include "model/definition_keys.h"

#include "platform/base/resources.h"
#include "resources/ids.h"

namespace pvw {
namespace {

DefinitionKeys LoadKeys() {
  using platform::LoadString;
  DefinitionKeys keys;
  keys.modules = LoadString(IDS_KEY_MODULES);
  keys.module = LoadString(IDS_KEY_MODULE);
  keys.dep = LoadString(IDS_KEY_DEP);
  keys.reg = LoadString(IDS_KEY_REG);
  keys.addr = LoadString(IDS_KEY_ADDR);
  keys.abs = LoadString(IDS_KEY_ABS);
  keys.depReg = LoadString(IDS_KEY_DEP_REG);
  keys.depBit = LoadString(IDS_KEY_DEP_BIT);
  keys.depVal = LoadString(IDS_KEY_DEP_VAL);
  keys.id = LoadString(IDS_KEY_ID);
  keys.name = LoadString(IDS_KEY_NAME);
  keys.reladdr = LoadString(IDS_KEY_RELADDR);
  keys.size = LoadString(IDS_KEY_SIZE);
  keys.radix = LoadString(IDS_KEY_RADIX);
  keys.read = LoadString(IDS_KEY_READ);
  keys.write = LoadString(IDS_KEY_WRITE);
  keys.bitfield = LoadString(IDS_KEY_BITFIELD);
  keys.bit = LoadString(IDS_KEY_BIT);
  keys.len = LoadString(IDS_KEY_LEN);
  keys.protection = LoadString(IDS_KEY_PROTECTION);
  return keys;
}

DefinitionKeys& Held() {
  static DefinitionKeys keys = LoadKeys();
  return keys;
}

}  // namespace

const DefinitionKeys& Keys() {
  return Held();
}

void ReloadKeys() {
  Held() = LoadKeys();
}

std::string NumberedKey(const std::string& stem, std::uint32_t number) {
  return stem + std::to_string(number);
}

}  // namespace pvw
