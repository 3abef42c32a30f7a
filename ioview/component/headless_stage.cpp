#include "ioview/component/headless_stage.h"

#include <utility>

#include "platform/base/app.h"

namespace ioview {

namespace {

// The component's dialog that shows how far a load is.
constexpr platform::UINT kProgressDialog = 11007;

}  // namespace

HeadlessStage::HeadlessStage(std::function<void(const std::string&)> line,
                             std::function<void(const std::string&)> failure)
    : display(platform::HeadlessDisplay::Unanswered::Cancel, std::move(line), std::move(failure)) {
  display.SetRunningByThemselves({kProgressDialog});
  platform::SetDisplay(&display);
  main_.Create({});
  platform::SetMainWindow(main_.GetHandle());
}

HeadlessStage::~HeadlessStage() {
  platform::SetMainWindow(0);
  main_.DestroyWindow();
  platform::SetDisplay(nullptr);
}

}  // namespace ioview
