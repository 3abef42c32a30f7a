#include "testclient/dlg_edit_test_details.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "platform/base/resources.h"
#include "platform/base/text.h"
#include "platform/gui/data_exchange.h"
#include "resources/ids.h"

namespace pvw {

using platform::HTREEITEM;
using platform::SECTreeCtrl;

namespace {

// Controls.
constexpr platform::UINT kList = 13002;
constexpr platform::UINT kIgnoreAddress = 13003;
constexpr platform::UINT kSetting = 13004;

constexpr int kNameColumn = 0;
constexpr int kAddressColumn = 1;
constexpr int kColumnWidth = 100;

// A character as one number, its first byte highest.
std::uint32_t TakeChar(std::string_view& text) {
  const std::size_t bytes = platform::CharBytes(text, 0);
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < bytes; ++i) number = number << 8 | static_cast<unsigned char>(text[i]);
  text.remove_prefix(bytes);
  return number;
}

// Below, equal or above 0. By whole characters, so that those of one byte come before those of two.
int CompareTexts(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    const std::uint32_t from_a = TakeChar(a);
    const std::uint32_t from_b = TakeChar(b);
    if (from_a != from_b) return from_a < from_b ? -1 : 1;
  }
  return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

}  // namespace

const platform::MessageTable CDlgEditTestDetails::kMessages{
    &CDlgWithHelp::kMessages,
    {
        platform::OnNotify<&CDlgEditTestDetails::OnColumnClick>(kList, platform::LVN_COLUMNCLICK),
        platform::OnNotify<&CDlgEditTestDetails::OnItemChanged>(kList, platform::TVN_CHECKCHANGED),
        platform::OnNotify<&CDlgEditTestDetails::OnItemChanged>(kList, platform::TVN_SELCHANGED),
    }};

CDlgEditTestDetails::CDlgEditTestDetails(std::vector<RegInfo> registers)
    : CDlgWithHelp(IDD_EDIT_TEST_DETAILS, nullptr), m_items(std::move(registers)) {}

void CDlgEditTestDetails::DoDataExchange(platform::CDataExchange& dx) {
  CDlgWithHelp::DoDataExchange(dx);
  platform::DDX_Control(dx, kList, m_list);
  platform::DDX_Check(dx, kIgnoreAddress, m_bIgnoreAddress);
  platform::DDX_Text(dx, kSetting, m_setting);
}

void CDlgEditTestDetails::OnInitDialog() {
  CDlgWithHelp::OnInitDialog();
  m_list.SetGridStyle(SECTreeCtrl::kFullRow);
  m_list.SetTreeStyle(SECTreeCtrl::kCheckBoxes);
  m_list.SetHeaderShown(true);
  m_list.InsertColumn(kNameColumn, platform::LoadString(IDS_COLUMN_NAME), platform::TextAlign::Left,
                      kColumnWidth);
  m_list.InsertColumn(kAddressColumn, platform::LoadString(IDS_COLUMN_ADDRESS), platform::TextAlign::Left,
                      kColumnWidth);
  FillList();
  SortRows();
  m_bReady = true;
  ShowSetting();
}

void CDlgEditTestDetails::OnOK() {
  TakeChecks();
  for (const RegInfo* row : m_rows) {
    if (row->Checked) m_chosen.Enter({row->Name, row->Address, 0, row->Size});
  }
  CDlgWithHelp::OnOK();
}

// Rows ----------------------------------------------------------------------------------------------------

void CDlgEditTestDetails::FillList() {
  for (RegInfo& info : m_items) {
    m_rows.push_back(&info);
    m_list.SetItemCheck(m_list.InsertItem(info.Name, -1), info.Checked);
  }
}

// The rows stay and get other texts, so that the list keeps its place.
void CDlgEditTestDetails::SortRows() {
  const int selected = m_list.GetRowOfItem(m_list.GetSelectedItem());
  const RegInfo* const info = selected >= 0 ? m_rows[static_cast<std::size_t>(selected)] : nullptr;
  std::ranges::sort(m_rows,
                    [this](const RegInfo* a, const RegInfo* b) { return Before(m_sortMode, *a, *b); });
  for (std::size_t i = 0; i < m_rows.size(); ++i) {
    const HTREEITEM item = m_list.GetItemAtRow(i);
    m_list.SetItemText(item, kNameColumn, m_rows[i]->Name);
    m_list.SetItemText(item, kAddressColumn, m_rows[i]->Address);
    m_list.SetItemCheck(item, m_rows[i]->Checked);
    if (m_rows[i] == info) m_list.SelectItem(item);
  }
}

void CDlgEditTestDetails::TakeChecks() {
  for (std::size_t i = 0; i < m_rows.size(); ++i) {
    m_rows[i]->Checked = m_list.GetItemCheck(m_list.GetItemAtRow(i));
  }
}

void CDlgEditTestDetails::ShowSetting() {
  TakeChecks();
  m_setting.clear();
  bool first = true;
  for (const RegInfo* row : m_rows) {
    if (!row->Checked) continue;
    if (!std::exchange(first, false)) m_setting += ", ";
    m_setting += row->Name;
  }
  if (CWnd* const edit = GetDlgItem(kSetting)) edit->SetText(m_setting);
}

platform::LRESULT CDlgEditTestDetails::OnItemChanged(platform::NMHDR&) {
  if (m_bReady) ShowSetting();
  return 0;
}

platform::LRESULT CDlgEditTestDetails::OnColumnClick(platform::NMHDR& header) {
  TakeChecks();
  m_sortMode =
      ModeAfterClick(m_sortMode, reinterpret_cast<const platform::NMLVDISPINFO&>(header).item.iSubItem);
  m_bReady = false;
  SortRows();
  m_bReady = true;
  return 0;
}

// Order ---------------------------------------------------------------------------------------------------

// A second click on a column turns its order round.
CDlgEditTestDetails::SortMode CDlgEditTestDetails::ModeAfterClick(SortMode present, int column) {
  if (column == kAddressColumn) {
    return present == SortMode::kAddress ? SortMode::kAddressDown : SortMode::kAddress;
  }
  return present == SortMode::kName ? SortMode::kNameDown : SortMode::kName;
}

bool CDlgEditTestDetails::Before(SortMode mode, const RegInfo& a, const RegInfo& b) {
  constexpr std::pair kEqual(0, 0);
  const int by_name = CompareTexts(a.Name, b.Name);
  const int by_address = CompareTexts(a.Address, b.Address);
  switch (mode) {
    case SortMode::kAddress:
      return std::pair(by_address, by_name) < kEqual;
    case SortMode::kAddressDown:
      return std::pair(-by_address, by_name) < kEqual;
    case SortMode::kName:
      return std::pair(by_name, by_address) < kEqual;
    case SortMode::kNameDown:
      return std::pair(-by_name, by_address) < kEqual;
  }
  return false;
}

}  // namespace pvw
