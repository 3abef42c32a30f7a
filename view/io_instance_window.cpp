// The pane's window: what it consists of, and its place at the host.

#include <algorithm>
#include <cassert>
#include <iterator>

#include "component/services/module_state.h"
#include "frame/controls/logical_colour.h"
#include "host/ids.h"
#include "platform/base/resources.h"
#include "platform/gui/display.h"
#include "resources/ids.h"
#include "view/io_instance_ctrl.h"
#include "view/pane_ids.h"

namespace pvw {

namespace {

constexpr platform::UINT kTreeWindowStyle = 0x52000203;
constexpr std::string_view kSettingsSection = "CPvwIOInstanceCtrl";

constexpr int kNameWidth = 200;
constexpr int kOtherWidth = 100;
constexpr int kSpaceBetweenLines = 4;

// A stored font size can be any number.
constexpr std::int32_t kMostPoints = 1000;

}  // namespace

platform::LRESULT CPvwIOInstanceCtrl::OnCreate(const platform::MSG& msg) {
  assert(m_pFrame != nullptr && "the frame is known before the window is made");
  if (Default(msg, kMessages) == -1) return -1;
  const std::string titles[] = {
      platform::LoadString(IDS_COLUMN_NAME), platform::LoadString(IDS_COLUMN_ADDRESS),
      platform::LoadString(IDS_COLUMN_VALUE), platform::LoadString(IDS_COLUMN_ACCESS)};
  // The host may end the pane in the midst of each of the calls that it gets.
  const platform::HWND self = GetHandle();
  if (uiRegistrar != nullptr && !RegisterAtHost()) return -1;
  if (!CreateTree(titles)) {
    ReleaseHostUi();
    return -1;
  }
  m_tree.LoadColumnWidths(settings, kSettingsSection);
  if (!platform::IsWindow(self)) return -1;
  const std::string path = ExpandedIOFilePath();
  if (!platform::IsWindow(self)) return -1;
  std::uint64_t time = 0;
  if (GetFileWriteTime(path, time)) m_pFrame->SetIOFileWriteTime(time);
  FillTree(false);
  return 0;
}

bool CPvwIOInstanceCtrl::RegisterAtHost() {
  const platform::HWND parent = GetParentHandle();
  const platform::HWND self = GetHandle();
  const platform::HMODULE module = ComponentModule();
  const auto stands = [self] { return platform::IsWindow(self); };
  uiRegistrar->AddPage(parent, self, -1, m_pFrame->GetPaneTitle(m_paneIndex), menuOwnerId, CLSID_PvwIO);

  if (stands()) uiRegistrar->AddPopupMenu(self, module, IDM_PANE, menuOwnerId, CLSID_PvwIO);
  if (stands()) uiRegistrar->AddCommandSink(menuOwnerId, CLSID_PvwIO, self);
  if (stands()) uiRegistrar->AddCommandStrings(module, menuOwnerId, CLSID_PvwIO);

  static constexpr std::uint32_t kFifthList[] = {ID_LOAD_IO_FILE, ID_PRINT, ID_SAVE_TO_FILE};
  if (stands()) {
    uiRegistrar->AddPaneToolbar(parent, module, IDT_PANE, 0, menuOwnerId, CLSID_PvwIO,
                                {{{}, {}, {}, {}, kFifthList}});
  }

  if (stands()) {
    uiRegistrar->AddAccelerators(platform::ResourceModule(), IDA_PANE, acceleratorOwnerId,
                                 CLSID_PaneAccelerators);
  }
  if (stands()) uiRegistrar->AddCommandSink(acceleratorOwnerId, CLSID_PaneAccelerators, self);
  if (stands()) uiRegistrar->SetAcceleratorWindow(self, acceleratorOwnerId, CLSID_PaneAccelerators);
  if (stands()) uiRegistrar->AddCommandStrings(module, acceleratorOwnerId, CLSID_PaneAccelerators);
  return stands();
}

bool CPvwIOInstanceCtrl::CreateTree(const std::string (&titles)[4]) {
  platform::CreateParams params;
  params.style = kTreeWindowStyle;
  params.ex_style = platform::WS_EX_CLIENTEDGE;
  params.parent = GetHandle();
  params.id = kTreeId;
  if (!m_tree.Create(params)) return false;
  m_tree.SetGridStyle(platform::SECTreeCtrl::kFullRow);
  m_tree.SetTreeStyle(platform::SECTreeCtrl::kHasButtons | platform::SECTreeCtrl::kHasLines |
                      platform::SECTreeCtrl::kHeaderMenu);
  m_tree.SetHeaderShown(true);
  m_tree.SetColumnTitle(kNameColumn, titles[kNameColumn]);
  m_tree.SetColumnWidth(kNameColumn, kNameWidth);
  for (int column = kAddressColumn; column <= kAccessColumn; ++column) {
    m_tree.InsertColumn(column, titles[column], platform::TextAlign::Left, kOtherWidth);
  }
  LoadRowImages(m_images);
  m_tree.SetImageList(&m_images);
  return true;
}

platform::LRESULT CPvwIOInstanceCtrl::OnDestroy(const platform::MSG& msg) {
  std::string text;
  if (m_tree.GetEditText(text)) m_tree.MarkEditClosing();
  m_tree.SaveColumnWidths(settings, kSettingsSection);
  m_bEditing = false;
  ReleaseExpandCounts();
  if (m_pOtherPane != nullptr) m_pOtherPane->m_pOtherPane = nullptr;
  m_pOtherPane = nullptr;
  return Default(msg, kMessages);
}

// The grid takes the keys.
platform::LRESULT CPvwIOInstanceCtrl::OnSetFocus(const platform::MSG& msg) {
  if (m_tree.Exists() && m_tree.IsVisible()) platform::SetFocus(m_tree.GetHandle());
  return platform::IsWindow(msg.hwnd) ? Default(msg, kMessages) : 0;
}

platform::Status CPvwIOInstanceCtrl::SetFont(std::string_view face, std::int32_t size) {
  font.Delete();
  font.CreatePointFont(std::clamp(size, 1, kMostPoints) * 10, face);
  m_tree.SetRowFont(font.Get());
  m_tree.Send(platform::WM_SETFONT, 1, reinterpret_cast<platform::LPARAM>(&font));
  if (platform::Display* display = platform::GetDisplay()) {
    m_tree.SetLineHeight(display->TextExtent(font.Get(), "X").cy + kSpaceBetweenLines);
  }
  m_tree.SetHeaderFont(font.Get());
  // The host places the pane anew when its own window changes its size.
  if (CWnd* parent = GetParent()) {
    const platform::HWND handle = parent->GetHandle();
    const platform::RECT rect = parent->GetRect();
    parent->MoveWindow({rect.left, rect.top, rect.right + 1, rect.bottom + 1});
    if (CWnd* moved = FromHandle(handle)) moved->MoveWindow(rect);
  }
  return platform::S_OK;
}

platform::Status CPvwIOInstanceCtrl::SetItemColours(std::string_view, std::int32_t fg, std::int32_t bk) {
  m_textColour = fg;
  m_backColour = bk;
  m_tree.SetColours(ResolveColour(m_textColour, ColourRole::Foreground),
                    ResolveColour(m_backColour, ColourRole::Background));
  m_tree.Invalidate();
  return platform::S_OK;
}

}  // namespace pvw
