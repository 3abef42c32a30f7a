// The dialog that a record opens to have its value edited. It belongs to a higher layer, which puts itself in
// here.
#pragma once

#include <cstdint>
#include <string>

#include "host/component_host.h"
#include "host/format_services.h"

namespace pvw {

// Runs the dialog, modal, with `value` as its start. True when the user has accepted it: `value` is then the
// new one, and fits in `bits` bits. `numberFormat` and `host` are what the caller of EditValue handed over.
using EditValueHook = bool (*)(IQNumberFormat* numberFormat, IQComponentHost* host, std::uint64_t& value,
                               std::uint32_t bits, const std::string& caption);

// The dialog that counts from now on; null for none. Gives the one before.
EditValueHook SetEditValueHook(EditValueHook hook);

// Without a dialog this acts as if the user had cancelled it.
[[nodiscard]] bool RunEditValueHook(IQNumberFormat* numberFormat, IQComponentHost* host, std::uint64_t& value,
                                    std::uint32_t bits, const std::string& caption);

}  // namespace pvw
