#include "support/windows_version.h"

#include "platform/base/system.h"

namespace pvw {

namespace {

constexpr int kUnknown = 10;

}  // namespace

int GetWindowsVersionCode() {
  const platform::SystemRecord& system = platform::System();
  const auto is = [&](std::uint32_t major, std::uint32_t minor) {
    return system.version_major == major && system.version_minor == minor;
  };
  if (system.platform_id == 1) {
    if (is(4, 90)) return 4;
    if (is(4, 10)) return 3;
    if (is(4, 0)) return 2;
  } else if (system.platform_id == 2) {
    if (system.version_major < 5) return 1;
    if (is(5, 0)) return 5;
    if (is(5, 1)) return system.service_pack == 2 ? 7 : 6;
    if (is(5, 2)) return 8;
    if (is(6, 0)) return 9;
  }
  return kUnknown;
}

bool IsWindowsVersionAtLeast(int code) {
  return GetWindowsVersionCode() >= code;
}

}  // namespace pvw
