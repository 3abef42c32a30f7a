#include "ioview/host/error_texts.h"

#include "ioview/statuses.h"

namespace ioview {

std::string_view ErrorText(platform::Status status) {
  switch (status) {
    case kTargetAccessFailed:
      return "Target access failed.";
    case kUnknownError:
      return "Unknown error.";
    case kInvalidNumber:
      return "Invalid number.";
    case kTooManyBytes:
      return "Too many bytes.";
    default:
      return {};
  }
}

platform::Status ErrorService::GetErrorText(platform::Status status, platform::BSTR* text) {
  return Enter("GetErrorText", status) ? GiveText(ErrorText(status), text) : platform::E_FAIL;
}

platform::Status ErrorReporter::GetErrorText(platform::Status status, platform::BSTR* text) {
  return Enter("GetErrorText", status) ? GiveText(ErrorText(status), text) : platform::E_FAIL;
}

}  // namespace ioview
