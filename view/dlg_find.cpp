#include "view/dlg_find.h"

#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "resources/ids.h"

namespace pvw {

namespace {

constexpr platform::UINT kColumnBox = 13013;
constexpr platform::UINT kTextEdit = 13014;
constexpr platform::UINT kWholeWord = 13015;
constexpr platform::UINT kOk = 13018;
constexpr platform::UINT kCancel = 13019;

constexpr int kAddressEntry = 1;

}  // namespace

const platform::MessageTable CDlgFind::kMessages{&CDlgWithHelp::kMessages,
                                                 {
                                                     platform::OnCommand<&CDlgFind::OnOK>(kOk),
                                                     platform::OnCommand<&CDlgFind::OnCancel>(kCancel),
                                                 }};

CDlgFind::CDlgFind(platform::CWnd* parent) : CDlgWithHelp(IDD_FIND, parent) {}

void CDlgFind::DoDataExchange(platform::CDataExchange& dx) {
  CDlgWithHelp::DoDataExchange(dx);
  platform::DDX_Control(dx, kColumnBox, m_columnBox);
  platform::DDX_Text(dx, kTextEdit, m_text);
  platform::DDX_Check(dx, kWholeWord, m_bWholeWord);
  platform::DDX_Text(dx, kColumnBox, m_column);
}

void CDlgFind::OnInitDialog() {
  CDlgWithHelp::OnInitDialog();
  SetText(platform::LoadString(IDS_FIND_TITLE));
  m_columnBox.AddString(kNameColumn);
  m_columnBox.AddString(kAddressColumn);
  m_columnBox.SetCurSel(kAddressEntry);
  if (const CWnd* edit = GetDlgItem(kTextEdit)) platform::SetFocus(edit->GetHandle());
}

void CDlgFind::OnOK() {
  UpdateData(true);
  if (!m_text.empty()) {
    EndDialog(platform::IDOK);
    return;
  }
  const platform::HWND self = GetHandle();
  platform::MessageBox(platform::LoadString(IDS_FIND_EMPTY), platform::MB_OK);
  if (!platform::IsWindow(self)) return;
  if (const CWnd* edit = GetDlgItem(kTextEdit)) platform::SetFocus(edit->GetHandle());
}

}  // namespace pvw
