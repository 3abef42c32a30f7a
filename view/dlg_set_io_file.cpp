#include "view/dlg_set_io_file.h"

#include <utility>

#include "host/host_ptr.h"
#include "host/ids.h"
#include "platform/base/files.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "platform/gui/common_dialogs.h"
#include "resources/ids.h"
#include "support/command_util.h"
#include "support/message_text.h"
#include "support/path_service.h"
#include "support/placeholder_table.h"

namespace pvw {

namespace {

constexpr platform::UINT kPathEdit = 9001;
constexpr platform::UINT kBrowse = 9002;
constexpr platform::UINT kOk = 9003;
constexpr platform::UINT kCancel = 9004;
constexpr platform::UINT kSavePath = 13001;
constexpr platform::UINT kPlaceholderButton = 20001;

constexpr std::string_view kForbiddenChars = "/;*?\"<>|";
constexpr std::string_view kForbiddenText = "\\\\\\";

constexpr std::uint32_t kWithWorkspace[] = {
    kPlaceholderConfigDir,  kPlaceholderProjDir,     kPlaceholderWorkspDir,  kPlaceholderQbnDir,
    kPlaceholderWorkspName, kPlaceholderProjectName, kPlaceholderConfigName,
};
constexpr std::uint32_t kWithoutWorkspace[] = {kPlaceholderQbnDir};

// Bytes of a resolved path, its end not counted.
constexpr std::size_t kLongestPath = 259;

bool NamesFile(const std::string& path) {
  if (path.size() > kLongestPath) return false;
  const auto attributes = platform::GetFileAttributes(path);
  return attributes && !attributes->directory;
}

}  // namespace

const platform::MessageTable CDlgSetIOFile::kMessages{
    &CDlgWithHelp::kMessages,
    {
        platform::OnCommand<&CDlgSetIOFile::OnBrowse>(kBrowse),
        platform::OnCommand<&CDlgSetIOFile::OnOK>(kOk),
        platform::OnCommand<&CDlgSetIOFile::OnCancel>(kCancel),
    }};

CDlgSetIOFile::CDlgSetIOFile(std::string path, IQComponentHost* host, platform::CWnd* parent)
    : CDlgWithHelp(IDD_SET_IO_FILE, parent), m_pHost(host), m_path(std::move(path)) {}

void CDlgSetIOFile::DoDataExchange(platform::CDataExchange& dx) {
  CDlgWithHelp::DoDataExchange(dx);
  platform::DDX_Check(dx, kSavePath, m_bSavePath);
}

void CDlgSetIOFile::OnInitDialog() {
  CDlgWithHelp::OnInitDialog();
  InitControls();
}

void CDlgSetIOFile::InitControls() {
  std::span<const std::uint32_t> allowed = kWithoutWorkspace;
  if (IsWorkspaceOpen(GetService<IQPathService>(m_pHost, IID_IQPathService))) allowed = kWithWorkspace;
  m_pEdit = std::make_unique<CUiCustomEditCtrl>(
      std::string(kForbiddenChars), std::vector<std::string>{std::string(kForbiddenText)}, allowed, m_pHost);
  m_pPlaceholderButton = std::make_unique<CUiPlaceholderButtonEB>(m_pEdit.get(), allowed, m_pHost, 0);
  m_pEdit->SubclassDlgItem(kPathEdit, *this);
  m_pPlaceholderButton->Attach(kPlaceholderButton, *this);
  m_pEdit->SetText(m_path);
}

void CDlgSetIOFile::OnBrowse() {
  UpdateData(true);
  m_path = m_pEdit->GetText();
  platform::FileDialogRequest request;
  request.default_extension = "io";
  request.filter = "I/O Files (*.io)|*.io| All Files (*.*)|*.*||";
  request.directory = CCommandUtil(m_pHost).GetBrowseDirectory(m_path);
  request.path_must_exist = true;
  const platform::HWND self = GetHandle();
  const auto path = platform::RunFileDialog(request);
  if (!path || !platform::IsWindow(self)) return;
  m_pEdit->SetText(*path);
  m_bSavePath = true;
  UpdateData(false);
}

void CDlgSetIOFile::OnOK() {
  m_path = m_pEdit->GetText();
  if (Validate()) CDlgWithHelp::OnOK();
}

bool CDlgSetIOFile::Validate() {
  if (m_path.empty()) return Refuse(platform::LoadString(IDS_ENTRY_EMPTY));
  const std::string path = CCommandUtil(m_pHost).ResolvePath(m_path);
  return NamesFile(path) || Refuse(FormatMessageText(platform::LoadString(IDS_FILE_MISSING), path));
}

bool CDlgSetIOFile::Refuse(const std::string& text) {
  const platform::HWND edit = m_pEdit->GetHandle();
  platform::MessageBox(text, platform::MB_ICONEXCLAMATION);
  platform::SetFocus(edit);
  return false;
}

}  // namespace pvw
