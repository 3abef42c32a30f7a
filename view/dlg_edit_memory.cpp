#include "view/dlg_edit_memory.h"

#include <utility>

#include "model/number_text.h"
#include "platform/base/bstr.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "resources/ids.h"
#include "support/error_manager.h"
#include "support/message_text.h"
#include "view/host_dialog.h"

namespace pvw {

namespace {

constexpr platform::UINT kCurrentValueId = 311;
constexpr platform::UINT kNewValueId = 312;

constexpr std::uint32_t kWidest = 64;

bool RunEditMemory(IQNumberFormat* numberFormat, IQComponentHost* host, std::uint64_t& value,
                   std::uint32_t bits, const std::string& caption) {
  CDlgEditMemory dialog(numberFormat, value, bits, caption, host, nullptr);
  if (RunHostDialog(dialog, host) != static_cast<int>(platform::IDOK)) return false;
  value = dialog.GetValue();
  return true;
}

}  // namespace

CDlgEditMemory::CDlgEditMemory(IQNumberFormat* numberFormat, std::uint64_t value, std::uint32_t bits,
                               std::string caption, IQComponentHost* host, platform::CWnd* parent)
    : CDlgWithHelp(IDD_EDIT_MEMORY, parent),
      m_pNumberFormat(numberFormat),
      m_pHost(host),
      m_value(value),
      m_bits(bits),
      m_caption(std::move(caption)) {
  m_newValue.SetHost(host);
}

void CDlgEditMemory::DoDataExchange(platform::CDataExchange& dx) {
  CDlgWithHelp::DoDataExchange(dx);
  platform::DDX_Control(dx, kCurrentValueId, m_currentValue);
  platform::DDX_Control(dx, kNewValueId, m_newValue);
}

void CDlgEditMemory::OnInitDialog() {
  CDlgWithHelp::OnInitDialog();
  const std::string text = NumberText(m_pNumberFormat, m_value, m_bits);
  SetText(m_caption);
  m_currentValue.SetText(text);
  m_newValue.SetText(text);
  m_newValue.LoadHistory(false);
}

void CDlgEditMemory::OnOK() {
  const platform::HWND self = GetHandle();
  const bool taken = TakeNewValue();
  if (!platform::IsWindow(self)) return;
  if (!taken) {
    GotoControl(m_newValue);
    return;
  }
  m_newValue.SaveHistory();
  EndDialog(platform::IDOK);
}

bool CDlgEditMemory::TakeNewValue() {
  const platform::ScopedBstr text(m_newValue.GetText());
  const platform::Status status =
      m_pNumberFormat != nullptr ? m_pNumberFormat->ParseValue(text.Get(), &m_value) : platform::E_FAIL;
  if (platform::Failed(status)) {
    ShowStatus(m_pHost, status);
    return false;
  }
  if (m_bits >= kWidest || m_value >> m_bits == 0) return true;
  const std::uint64_t limit = (std::uint64_t{1} << m_bits) - 1;
  platform::MessageBox(
      FormatMessageText(platform::LoadString(IDS_VALUE_TOO_BIG), NumberText(m_pNumberFormat, limit, kWidest)),
      platform::MB_ICONEXCLAMATION);
  return false;
}

EditMemoryScope::EditMemoryScope() : m_before(SetEditValueHook(&RunEditMemory)) {}

}  // namespace pvw
