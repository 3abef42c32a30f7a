#include "model/edit_hook.h"

#include <utility>

namespace pvw {
namespace {

EditValueHook g_editValueHook = nullptr;

}  // namespace

EditValueHook SetEditValueHook(EditValueHook hook) {
  return std::exchange(g_editValueHook, hook);
}

bool RunEditValueHook(IQNumberFormat* numberFormat, IQComponentHost* host, std::uint64_t& value,
                      std::uint32_t bits, const std::string& caption) {
  return g_editValueHook != nullptr && g_editValueHook(numberFormat, host, value, bits, caption);
}

}  // namespace pvw
