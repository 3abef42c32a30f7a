#include "frame/controls/custom_edit.h"

#include <algorithm>
#include <utility>

#include "platform/base/message_box.h"
#include "platform/base/text.h"
#include "support/placeholder_expander.h"
#include "support/text_search.h"

namespace pvw {

const platform::MessageTable CUiCustomEditCtrl::kMessages{
    &CEdit::kMessages,
    {
        platform::OnMessage<&CUiCustomEditCtrl::OnSetFocus>(platform::WM_SETFOCUS),
        platform::OnReflect<&CUiCustomEditCtrl::OnTextUpdate>(platform::EN_UPDATE),
        platform::OnReflect<&CUiCustomEditCtrl::OnTextChange>(platform::EN_CHANGE),
    }};

CUiCustomEditCtrl::CUiCustomEditCtrl(std::string forbiddenChars, std::vector<std::string> forbiddenStrings,
                                     std::optional<std::span<const std::uint32_t>> allowedPlaceholders,
                                     IQComponentHost* host)
    : m_forbiddenChars(std::move(forbiddenChars)),
      m_forbiddenStrings(std::move(forbiddenStrings)),
      m_allowedPlaceholders(allowedPlaceholders),
      m_pHost(host) {}

platform::LRESULT CUiCustomEditCtrl::OnSetFocus(const platform::MSG& msg) {
  const platform::LRESULT result = Default(msg, kMessages);
  if (!m_bInitialised) {
    m_lastValidText = GetText();
    m_bInitialised = true;
  }
  return result;
}

bool CUiCustomEditCtrl::IsRefused(std::string_view text) const {
  if (platform::FindAnyChar(text, m_forbiddenChars) != std::string_view::npos) return true;
  const auto is_in = [&](const std::string& part) { return ContainsText(text, part); };
  if (std::any_of(m_forbiddenStrings.begin(), m_forbiddenStrings.end(), is_in)) return true;
  if (!m_allowedPlaceholders) return false;
  return m_pHost == nullptr ||
         !CPlaceholderExpander(m_pHost).ValidatePlaceholders(text, *m_allowedPlaceholders);
}

// The last valid text goes back unchecked: a placeholder of the user's own in it may be gone by now.
void CUiCustomEditCtrl::OnTextUpdate() {
  if (m_bRestoring || !IsRefused(GetText())) return;
  m_selStart = GetSelBeforeChange().anchor;
  m_selEnd = GetSelBeforeChange().caret;
  platform::MessageBeep();
  m_bRestoring = true;
  SetText(std::string(m_lastValidText));
}

void CUiCustomEditCtrl::OnTextChange() {
  m_lastValidText = GetText();
  if (m_bRestoring) SetSel(m_selStart, m_selEnd);
  m_bRestoring = false;
}

}  // namespace pvw
