#include "frame/controls/placeholder_button.h"

#include <utility>

#include "platform/base/resources.h"
#include "platform/gui/window.h"
#include "resources/ids.h"
#include "support/placeholder_expander.h"

namespace pvw {

namespace {

constexpr std::uint32_t kFirstCommand = 33411;
constexpr std::uint32_t kLastCommand = 33510;
constexpr std::uint32_t kSeparator = 37;
constexpr std::string_view kPassOn = "UIPHCBPASSON";
constexpr std::string_view kCustomTitle = "Custom placeholders";
constexpr platform::COLORREF kWhite = 0xFFFFFF;

}  // namespace

const platform::MessageTable CUiPlaceholderButtonEB::kMessages{
    &CButton::kMessages,
    {
        platform::OnReflect<&CUiPlaceholderButtonEB::OnClicked>(platform::BN_CLICKED),
    }};

CUiPlaceholderButtonEB::CUiPlaceholderButtonEB(platform::CEdit* edit,
                                               std::span<const std::uint32_t> allowedPlaceholders,
                                               IQComponentHost* host, platform::HWND passOnWindow)
    : m_pEdit(edit),
      m_allowedPlaceholders(allowedPlaceholders),
      m_pHost(host),
      m_passOnWindow(passOnWindow) {}

bool CUiPlaceholderButtonEB::Attach(platform::UINT id, CWnd& parent) {
  if (!SubclassDlgItem(id, parent)) return false;
  if (const platform::PictureResource* icon = platform::LoadIcon(IDI_PLACEHOLDER_ARROW)) {
    m_arrow.Create(icon->width, icon->height, 1, icon->pixels, kWhite);
    SetImage(&m_arrow);
  }
  return true;
}

void CUiPlaceholderButtonEB::OnClicked() {
  BuildMenu();
  platform::TrackPopupMenu(*this, m_menu, platform::GetMessagePos(*this));
}

void CUiPlaceholderButtonEB::BuildMenu() {
  m_menu.clear();
  m_commandMap.clear();
  std::uint32_t id = kFirstCommand;
  std::uint32_t next = kFirstCommand;
  for (const std::uint32_t value : m_allowedPlaceholders) {
    if (value == 0 || next > kLastCommand) break;
    id = next++;
    if (value == kSeparator) {
      m_menu.emplace_back();
      continue;
    }
    const auto index = static_cast<std::int32_t>(value);
    m_menu.push_back({.text = GetPlaceholderLabel(index), .id = id});
    m_commandMap[id] = GetPlaceholderText(index, false);
  }
  std::vector<platform::PopupMenuItem> custom = CustomItems(id);
  if (custom.empty()) return;
  m_menu.emplace_back();
  m_menu.push_back({.text = std::string(kCustomTitle), .items = std::move(custom)});
}

// `id` is the last that the table's own took; without any of them the first of the range stays unused.
std::vector<platform::PopupMenuItem> CUiPlaceholderButtonEB::CustomItems(std::uint32_t id) {
  CustomPlaceholderMap map;
  if (m_pHost != nullptr) CPlaceholderExpander(m_pHost).CollectCustomPlaceholders(map);
  std::vector<platform::PopupMenuItem> items;
  for (const auto& [key, placeholder] : map) {
    if (id >= kLastCommand) break;
    ++id;
    // An item without a text would be a separator.
    const bool described = !placeholder.description.empty();
    items.push_back({.text = described ? placeholder.description : placeholder.name, .id = id});
    m_commandMap[id] = placeholder.name;
  }
  return items;
}

bool CUiPlaceholderButtonEB::RouteCommand(platform::UINT id) {
  if (id < kFirstCommand || id > kLastCommand) return CButton::RouteCommand(id);
  const auto found = m_commandMap.find(id);
  if (found == m_commandMap.end()) return true;
  const std::string name = found->second;
  if (name == kPassOn) {
    platform::SendMessage(m_passOnWindow, platform::WM_COMMAND, id);
  } else {
    Insert(name);
  }
  return true;
}

void CUiPlaceholderButtonEB::Insert(const std::string& name) {
  const std::string& old = m_pEdit->GetText();
  std::string text = old.substr(0, m_pEdit->GetSelStart()) + "$(" + name + ")";
  const std::size_t caret = text.size();
  text += old.substr(m_pEdit->GetSelEnd());
  m_pEdit->SetText(text);
  // The field may have refused it.
  if (m_pEdit->GetText() == text) m_pEdit->SetSel(caret, caret);
  platform::SetFocus(m_pEdit->GetHandle());
}

}  // namespace pvw
