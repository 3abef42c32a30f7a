// Another component in the same process, with an application object of its own.

#include "platform/base/app.h"

namespace {

platform::CWinApp the_app;

}  // namespace

extern "C" __attribute__((visibility("default"))) platform::CWinApp* GetApp() {
  return &the_app;
}
