// The base of the component's dialogs: help on a control, from the help file beside the component.
#pragma once

#include <cstdint>

#include "platform/gui/dialog.h"

namespace pvw {

class CDlgWithHelp : public platform::CDialog {
 public:
  CDlgWithHelp(std::uint32_t dialogId, platform::CWnd* parent)
      : CDialog(dialogId, parent), m_dialogId(dialogId) {}

  static const platform::MessageTable kMessages;

  // Shows the help of one control, by a context number made from the dialog's id and the control's. The help
  // file has the component's name and ends in ".chm", or, where there is none and the system is old enough
  // for it, in
  // ".hlp". False when nothing answers for the request; it goes on to the system then.
  bool OnHelpInfo(const platform::HELPINFO& info);

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

 private:
  platform::LRESULT OnHelpMessage(const platform::MSG& msg);
  bool ShowChm(const std::string& chm, const platform::HELPINFO& info);
  void ShowHlp(const std::string& hlp, std::uint32_t control_id);
  std::uint32_t ContextNumber(std::uint32_t control_id) const;

  const std::uint32_t m_dialogId;
};

}  // namespace pvw
