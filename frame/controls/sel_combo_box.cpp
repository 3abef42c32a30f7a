#include "frame/controls/sel_combo_box.h"

#include <algorithm>
#include <cstddef>

#include "host/host_ptr.h"
#include "host/ids.h"
#include "host/workspace_services.h"
#include "platform/base/bstr.h"
#include "support/list_text.h"

namespace pvw {

namespace {

// Stored under this name as it stands, without the identity that goes before the keys of the view's state.
constexpr const char* kHistoryKey = "MRULABELS_DATAMANAGER_KEY";
constexpr char kSeparator = '|';
constexpr std::size_t kMostEntries = 20;

// Where the host keeps the list of what is open now.
class Place {
 public:
  explicit Place(IQComponentHost* host) {
    const CHostPtr<IQWorkspaceInfo> info(host, IID_IQWorkspaceInfo);
    if (!info || platform::Failed(info->GetCurrentWorkspace(m_workspace.Receive())) ||
        platform::Failed(info->GetCurrentProject(m_project.Receive())) ||
        platform::Failed(info->GetCurrentConfiguration(m_configuration.Receive()))) {
      return;
    }
    m_pManager = pvw::GetService<IQDataManager>(host, IID_IQDataManager);
  }

  // Nothing where the host has none, or doesn't say.
  std::string Read() const {
    if (m_pManager == nullptr) return {};
    platform::ScopedBstr value{std::string_view()};
    const platform::Status status = m_pManager->GetSessionValue(
        m_workspace.Get(), m_project.Get(), m_configuration.Get(), m_key.Get(), value.Receive());
    return platform::Failed(status) ? std::string() : value.Text();
  }

  void Write(std::string_view text) const {
    if (m_pManager == nullptr) return;
    const platform::ScopedBstr value(text);
    m_pManager->SetSessionValue(m_workspace.Get(), m_project.Get(), m_configuration.Get(), m_key.Get(),
                                value.Get());
  }

 private:
  platform::ScopedBstr m_workspace, m_project, m_configuration;
  const platform::ScopedBstr m_key{kHistoryKey};
  IQDataManager* m_pManager = nullptr;
};

}  // namespace

const platform::MessageTable CUiSelComboBox::kMessages{
    &CComboBox::kMessages,
    {
        // The user changed the text, or picked one.
        platform::OnReflect<&CUiSelComboBox::OnTextChange>(platform::CBN_EDITCHANGE),
        platform::OnReflect<&CUiSelComboBox::OnTextChange>(platform::CBN_SELCHANGE),
        // The selection may have moved.
        platform::OnMessage<&CUiSelComboBox::OnInputEnd>(platform::WM_KEYUP),
        platform::OnMessage<&CUiSelComboBox::OnInputEnd>(platform::WM_LBUTTONUP),
        platform::OnMessage<&CUiSelComboBox::OnSetFocus>(platform::WM_SETFOCUS),
    }};

void CUiSelComboBox::OnTextChange() {
  m_currentText = GetText();
  RecordSelection();
}

platform::LRESULT CUiSelComboBox::OnInputEnd(const platform::MSG& msg) {
  OnTextChange();
  return Default(msg, kMessages);
}

platform::LRESULT CUiSelComboBox::OnSetFocus(const platform::MSG& msg) {
  const platform::LRESULT result = Default(msg, kMessages);
  if (platform::IsWindow(msg.hwnd)) RecordSelection();
  return result;
}

void CUiSelComboBox::RecordSelection() {
  m_selStart = static_cast<std::int32_t>(GetEditSelStart());
  m_selEnd = static_cast<std::int32_t>(GetEditSelEnd());
}

void CUiSelComboBox::SetText(std::string_view text) {
  m_currentText = text;
  m_selStart = 0;
  m_selEnd = static_cast<std::int32_t>(text.size());
  CComboBox::SetText(text);
}

void CUiSelComboBox::LoadHistory(bool selectFirst) {
  if (!Exists()) return;
  for (const std::string& entry : ReadHistory()) AddString(entry);
  if (selectFirst) SetCurSel(0);
}

void CUiSelComboBox::SaveHistory() {
  if (m_currentText.empty()) return;
  History history = ReadHistory();
  const auto known = std::find(history.begin(), history.end(), m_currentText);
  if (known != history.end()) {
    history.erase(known);
  } else if (history.size() >= kMostEntries) {
    history.resize(kMostEntries - 1);
  }
  history.insert(history.begin(), m_currentText);
  WriteHistory(history);
}

CUiSelComboBox::History CUiSelComboBox::ReadHistory() const {
  History history;
  SplitList(Place(m_pHost).Read(), history, kSeparator);
  // A stored text is as long as somebody has made it.
  if (history.size() > kMostEntries) history.resize(kMostEntries);
  return history;
}

void CUiSelComboBox::WriteHistory(const History& history) const {
  Place(m_pHost).Write(JoinList(history, kSeparator));
}

}  // namespace pvw
