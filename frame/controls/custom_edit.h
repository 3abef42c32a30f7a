// An edit that refuses text as it is typed or pasted: characters and substrings of its lists, and
// placeholders that aren't allowed in it. A refused change is a beep, and the text and the selection stay as
// they were.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/component_host.h"
#include "platform/gui/edit.h"

namespace pvw {

class CUiCustomEditCtrl : public platform::CEdit {
 public:
  // `allowedPlaceholders` holds indices of the placeholder table, a 0 ends them; the user's own placeholders
  // are always allowed. Nothing: placeholders aren't looked at. Neither the indices nor `host` are owned. A
  // check of placeholders without a host refuses every text.
  CUiCustomEditCtrl(std::string forbiddenChars, std::vector<std::string> forbiddenStrings,
                    std::optional<std::span<const std::uint32_t>> allowedPlaceholders, IQComponentHost* host);

  static const platform::MessageTable kMessages;

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

 private:
  platform::LRESULT OnSetFocus(const platform::MSG& msg);
  void OnTextUpdate();
  void OnTextChange();
  bool IsRefused(std::string_view text) const;

  const std::string m_forbiddenChars;
  const std::vector<std::string> m_forbiddenStrings;
  const std::optional<std::span<const std::uint32_t>> m_allowedPlaceholders;
  IQComponentHost* const m_pHost;
  std::string m_lastValidText;
  std::size_t m_selStart = 0;  // what was selected before the change that is being refused
  std::size_t m_selEnd = 0;
  bool m_bRestoring = false;    // the change that comes is the control's own
  bool m_bInitialised = false;  // the first focus has taken the text that was there
};

}  // namespace pvw
