// The texts of statuses: IQErrorService, and IQErrorReporter for other services that explain their own.
#pragma once

#include <string_view>

#include "host/format_services.h"
#include "ioview/host/service.h"

namespace ioview {

// Empty for a status that this host has no text for.
std::string_view ErrorText(platform::Status status);

class ErrorService : public Service<pvw::IQErrorService, pvw::IID_IQErrorService> {
 public:
  // Gives a text, empty or not, for every status.
  platform::Status GetErrorText(platform::Status status, platform::BSTR* text) override;
};

class ErrorReporter : public Service<pvw::IQErrorReporter, pvw::IID_IQErrorReporter> {
 public:
  platform::Status GetErrorText(platform::Status status, platform::BSTR* text) override;
};

}  // namespace ioview
