// The dialog "Edit Test IO registers", in which the user picks the registers that the test client compares.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "frame/controls/dlg_with_help.h"
#include "platform/gui/tree_ctrl.h"
#include "testclient/compared_registers.h"

namespace pvw {

class CDlgEditTestDetails final : public CDlgWithHelp {
 public:
  struct RegInfo {
    std::string Name;
    std::string Address;
    std::uint32_t Size;
    bool Checked;
  };

  // All registers, in any order.
  explicit CDlgEditTestDetails(std::vector<RegInfo> registers);

  static const platform::MessageTable kMessages;

  // The checked ones in the order of the rows, with values of 0; only after OK.
  ComparedRegisters TakeCompared() { return std::move(m_chosen); }

  bool m_bIgnoreAddress = false;  // the caller's, until OK makes it the user's

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }
  void DoDataExchange(platform::CDataExchange& dx) override;
  void OnInitDialog() override;
  void OnOK() override;

 private:
  // Of two equal texts the other one decides, from the least.
  enum class SortMode : std::uint32_t { kAddress, kAddressDown, kName, kNameDown };

  platform::LRESULT OnColumnClick(platform::NMHDR& header);
  platform::LRESULT OnItemChanged(platform::NMHDR& header);

  void FillList();
  void SortRows();
  void TakeChecks();
  void ShowSetting();

  static SortMode ModeAfterClick(SortMode present, int column);
  static bool Before(SortMode mode, const RegInfo& a, const RegInfo& b);

  platform::SECTreeCtrl m_list;
  std::string m_setting;
  SortMode m_sortMode = SortMode::kAddress;
  bool m_bReady = false;         // changes of the rows are the user's
  std::vector<RegInfo> m_items;  // checked as of the last TakeChecks
  std::vector<RegInfo*> m_rows;  // in the order of the rows
  ComparedRegisters m_chosen;
};

}  // namespace pvw
