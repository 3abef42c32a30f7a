#include "support/error_manager.h"

#include "host/format_services.h"
#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/bstr.h"
#include "platform/base/message_box.h"
#include "platform/base/text.h"
#include "support/language.h"

namespace pvw {

namespace {

constexpr std::string_view kSuccessText = "(S_OK)";
constexpr std::string_view kMissingText = "INTERNAL ERROR: Unset err message (ErrorManager).";
// In UTF-8. It goes out in the process's code page: as Shift-JIS text in 932, with a '?' for each character
// that the page lacks in any other.
constexpr std::string_view kMissingTextJapanese =
    "内部エラー: エラーメッセージが設定されていません (ErrorManager)";
constexpr platform::Status kUnknownError = static_cast<platform::Status>(0x80040905u);

std::string MissingText() {
  return IsLanguageNotJapanese() ? std::string(kMissingText) : platform::FromUtf8(kMissingTextJapanese);
}

}  // namespace

void ErrorManager::ResetError() {
  lastStatus = platform::S_OK;
  lastMessage.clear();
}

void ErrorManager::SetError(platform::Status status) {
  lastStatus = status;
  if (!platform::Failed(status)) {
    lastMessage = kSuccessText;
    return;
  }
  if (auto* service = GetService<IQErrorService>(errorHost, IID_IQErrorService)) {
    platform::ScopedBstr text;
    const bool has_text = !platform::Failed(service->GetErrorText(status, text.Receive()));
    lastMessage = has_text ? text.Text() : std::string();
  }
  if (lastMessage.empty()) lastMessage = MissingText();
}

void ErrorManager::SetMessageFrom(IQUnknown* object, platform::Status status) {
  void* face = nullptr;
  if (object == nullptr || platform::Failed(object->QueryInterface(&IID_IQErrorReporter, &face))) return;
  auto* reporter = static_cast<IQErrorReporter*>(face);
  if (reporter == nullptr) return;
  platform::ScopedBstr text;
  const bool has_text = !platform::Failed(reporter->GetErrorText(status, text.Receive()));
  lastMessage = has_text ? text.Text() : std::string();
}

std::string ErrorManager::GetErrorMessage() {
  return GetErrorMessagePointer();
}

const char* ErrorManager::GetErrorMessagePointer() {
  if (lastMessage.empty()) SetError(lastStatus);
  return lastMessage.c_str();
}

void ShowStatus(IQComponentHost* host, platform::Status status) {
  platform::ScopedBstr text;
  if (auto* service = GetService<IQErrorService>(host, IID_IQErrorService)) {
    service->GetErrorText(status, text.Receive());
    if (platform::SysStringLen(text.Get()) == 0) service->GetErrorText(kUnknownError, text.Receive());
  }
  const std::string shown = text.Text();
  platform::MessageBox(shown.empty() ? MissingText() : shown, platform::MB_ICONEXCLAMATION);
}

}  // namespace pvw
