// The dialog that asks what to search a pane for. It starts empty, on the column "Address", and ends with OK
// only for a text.
#pragma once

#include <string>

#include "frame/controls/dlg_with_help.h"
#include "platform/gui/combo_box.h"

namespace pvw {

class CDlgFind : public CDlgWithHelp {
 public:
  static constexpr const char* kNameColumn = "Name";
  static constexpr const char* kAddressColumn = "Address";

  explicit CDlgFind(platform::CWnd* parent);

  static const platform::MessageTable kMessages;

  const std::string& GetSearchText() const { return m_text; }
  bool GetWholeWord() const { return m_bWholeWord; }
  // kNameColumn or kAddressColumn.
  const std::string& GetColumn() const { return m_column; }

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }
  void DoDataExchange(platform::CDataExchange& dx) override;
  void OnInitDialog() override;
  void OnOK() override;

 private:
  platform::CComboBox m_columnBox;
  std::string m_text;
  bool m_bWholeWord = false;
  std::string m_column;
};

}  // namespace pvw
