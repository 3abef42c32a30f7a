// What the test's help engine was called with.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/base/app.h"

namespace pvw::test {

struct HelpModule {
  platform::CWinApp app;
  std::vector<std::string>
      calls;  // "html WINDOW PATH COMMAND: NUMBER NUMBER ...", "win WINDOW PATH COMMAND NUMBER"
  std::uintptr_t result = 1;     // of the HTML help engine
  std::string application_path;  // the application's help file during the last call
};

}  // namespace pvw::test
