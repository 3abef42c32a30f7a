#include "platform/gui/dialog.h"

#include <cassert>

#include "platform/base/app.h"
#include "platform/base/resources.h"
#include "platform/base/text.h"
#include "platform/gui/dialog_keys.h"
#include "platform/gui/dialog_template.h"
#include "platform/gui/display.h"
#include "platform/gui/modal.h"

namespace platform {

namespace {

// Pixels of 4 units across and of 8 units down.
SIZE BaseUnits(Display& display) {
  const SIZE letters = display.TextExtent({}, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
  return {(letters.cx / 26 + 1) / 2, letters.cy};
}

SIZE PixelsOf(SIZE units, SIZE base) {
  return {(units.cx * base.cx + 2) / 4, (units.cy * base.cy + 4) / 8};
}

std::unique_ptr<CWnd> MakeControl(DialogItemKind kind) {
  switch (kind) {
    case DialogItemKind::Label:
      return std::make_unique<CStatic>();
    case DialogItemKind::Edit:
      return std::make_unique<CEdit>();
    case DialogItemKind::Button:
      return std::make_unique<CButton>();
    case DialogItemKind::CheckBox:
      return std::make_unique<CCheckBox>();
    case DialogItemKind::ComboBox:
      return std::make_unique<CComboBox>();
    case DialogItemKind::Progress:
      return std::make_unique<CProgress>();
    case DialogItemKind::List:
    case DialogItemKind::Tree:
      return nullptr;
  }
  return nullptr;
}

WindowKind KindOf(DialogItemKind kind) {
  switch (kind) {
    case DialogItemKind::Label:
      return WindowKind::Static;
    case DialogItemKind::Edit:
      return WindowKind::Edit;
    case DialogItemKind::Button:
      return WindowKind::Button;
    case DialogItemKind::CheckBox:
      return WindowKind::CheckBox;
    case DialogItemKind::ComboBox:
      return WindowKind::ComboBox;
    case DialogItemKind::Progress:
      return WindowKind::Progress;
    case DialogItemKind::List:
    case DialogItemKind::Tree:
      return WindowKind::Grid;
  }
  return WindowKind::Plain;
}

}  // namespace

const MessageTable CDialog::kMessages{&CWnd::kMessages,
                                      {
                                          OnMessage<&CDialog::OnSetFocusMessage>(WM_SETFOCUS),
                                          OnMessage<&CDialog::OnCloseMessage>(WM_CLOSE),
                                          OnCommand<&CDialog::OnOK>(IDOK),
                                          OnCommand<&CDialog::OnCancel>(IDCANCEL),
                                      }};

CDialog::CDialog(UINT template_id, CWnd* owner)
    : m_template_id(template_id), m_behind(owner != nullptr ? owner->GetHandle() : GetMainWindow()) {}

CDialog::~CDialog() = default;

int CDialog::DoModal() {
  const DialogTemplate* from = LoadDialog(m_template_id);
  Display* display = GetDisplay();
  if (from == nullptr || display == nullptr || Exists()) return -1;
  m_done = false;
  m_result = IDCANCEL;
  const bool made = CreateFrom(*from, *display);
  if (made) Run(*display);
  DestroyWindow();
  return made ? m_result : -1;
}

bool CDialog::CreateFrom(const DialogTemplate& from, Display& display) {
  const SIZE base = BaseUnits(display);
  const SIZE size = PixelsOf(from.units, base);
  m_own_controls.clear();
  if (!Create({WS_POPUP, 0, {0, 0, size.cx, size.cy}, 0, 0, FromUtf8(from.title), m_behind})) return false;
  CDataExchange binding{CDataExchange::Pass::Bind, *this, {}};
  DoDataExchange(binding);
  for (const DialogItem& item : from.items) {
    const auto bound = binding.bound.find(item.id);
    if (!CreateItem(item, bound != binding.bound.end() ? bound->second : nullptr, base)) return false;
  }
  return true;
}

bool CDialog::CreateItem(const DialogItem& item, CWnd* member, SIZE base) {
  if (member == nullptr) {
    m_own_controls.push_back(MakeControl(item.kind));
    member = m_own_controls.back().get();
  }
  const bool fits = member != nullptr && member->GetKind() == KindOf(item.kind);
  assert(fits && "a member of another kind than its control, or a list or tree without one");
  if (!fits) return false;
  const POINT at{PixelsOf({item.units.left, item.units.top}, base).cx,
                 PixelsOf({item.units.left, item.units.top}, base).cy};
  const SIZE size = PixelsOf({item.units.Width(), item.units.Height()}, base);
  CreateParams params;
  params.style |= item.style;
  if (item.kind != DialogItemKind::Label && item.kind != DialogItemKind::Progress) params.style |= WS_TABSTOP;
  if (member->GetKind() == WindowKind::Grid) params.ex_style = WS_EX_CLIENTEDGE;
  params.rect = {at.x, at.y, at.x + size.cx, at.y + size.cy};
  params.parent = GetHandle();
  params.id = item.id;
  params.text = FromUtf8(item.text);
  return member->Create(params);
}

void CDialog::Run(Display& display) {
  const gui::ModalScope scope(GetHandle());
  OnInitDialog();
  if (m_done) return;
  ShowWindow(true);
  display.RunLoop(
      *this, [this] { TakeFirstFocus(); }, m_done);
}

void CDialog::TakeFirstFocus() {
  if (const HWND wish = modal::Wish()) {
    modal::TakeFocus(wish);
    return;
  }
  CWnd* first = dialog_keys::FirstStop(*this);
  if (first == nullptr) {
    modal::TakeFocus(GetHandle());
    return;
  }
  GotoControl(*first);
  modal::TakeFocus(first->GetHandle());
}

void CDialog::EndDialog(int result) {
  m_result = result;
  m_done = true;
  if (Display* display = GetDisplay()) display->LoopEnded();
}

void CDialog::PostNcDestroy() {
  if (m_done) return;
  m_done = true;
  if (Display* display = GetDisplay()) display->LoopEnded();
}

void CDialog::UpdateData(bool save) {
  CDataExchange dx{save ? CDataExchange::Pass::Save : CDataExchange::Pass::Show, *this, {}};
  DoDataExchange(dx);
}

CButton* CDialog::GetEnterButton() const {
  CButton* by_default = nullptr;
  for (CWnd* control : GetChildren()) {
    if (control->GetKind() != WindowKind::Button) continue;
    auto* button = static_cast<CButton*>(control);
    if (button->GetHandle() == GetFocus()) return button;
    if (button->IsDefault()) by_default = button;
  }
  return by_default;
}

void CDialog::GotoControl(CWnd& control) {
  if (control.GetKind() == WindowKind::Edit) static_cast<CEdit&>(control).SelectAll();
  if (control.GetKind() == WindowKind::ComboBox) static_cast<CComboBox&>(control).SelectAll();
  SetFocus(control.GetHandle());
}

bool CDialog::PreTranslateMessage(const MSG& msg) {
  return dialog_keys::Handle(*this, msg);
}

void CDialog::OnInitDialog() {
  UpdateData(false);
}

void CDialog::OnOK() {
  UpdateData(true);
  EndDialog(IDOK);
}

void CDialog::OnCancel() {
  EndDialog(IDCANCEL);
}

void CDialog::DoDataExchange(CDataExchange&) {}

LRESULT CDialog::OnCloseMessage(const MSG&) {
  return Send(WM_COMMAND, IDCANCEL);
}

LRESULT CDialog::OnSetFocusMessage(const MSG&) {
  if (CWnd* first = dialog_keys::FirstStop(*this)) GotoControl(*first);
  return 0;
}

}  // namespace platform
