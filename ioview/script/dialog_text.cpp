#include "ioview/script/dialog_text.h"

#include "ioview/script/row_text.h"
#include "platform/base/resources.h"
#include "platform/gui/controls.h"
#include "platform/gui/dialog_template.h"
#include "platform/gui/tree_ctrl.h"

namespace ioview {

namespace {

using platform::CComboBox;
using platform::CEdit;
using platform::CWnd;
using platform::WindowKind;

// A list and a tree are the same kind of window; the template tells them apart.
bool IsList(const platform::CDialog& dialog, const CWnd& control) {
  const platform::DialogTemplate* const from = platform::LoadDialog(dialog.GetTemplateId());
  if (from == nullptr) return false;
  for (const platform::DialogItem& item : from->items) {
    if (item.id == control.GetId() && item.kind == platform::DialogItemKind::List) return true;
  }
  return false;
}

const char* KindName(const platform::CDialog& dialog, const CWnd& control) {
  switch (control.GetKind()) {
    case WindowKind::Static:
      return "label";
    case WindowKind::Edit:
      return "edit";
    case WindowKind::Button:
      return "button";
    case WindowKind::CheckBox:
      return "check";
    case WindowKind::ComboBox:
      return "combo";
    case WindowKind::Grid:
      return IsList(dialog, control) ? "list" : "tree";
    case WindowKind::Progress:
      return "progress";
    case WindowKind::Plain:
    case WindowKind::Dialog:
      break;
  }
  return "window";
}

bool HasFocus(const CWnd& control) {
  for (const CWnd* at = CWnd::FromHandle(platform::GetFocus()); at != nullptr; at = at->GetParent()) {
    if (at == &control) return true;
  }
  return false;
}

std::string SelectionMark(std::size_t start, std::size_t end) {
  return start == end ? "" : " selection " + std::to_string(start) + ' ' + std::to_string(end);
}

std::string Marks(const CWnd& control) {
  std::string marks;
  if (control.GetKind() == WindowKind::CheckBox &&
      static_cast<const platform::CCheckBox&>(control).GetCheck()) {
    marks += " checked";
  }
  if (!control.IsEnabled()) marks += " disabled";
  if (HasFocus(control)) marks += " focus";
  if (control.GetKind() == WindowKind::Edit) {
    const auto& edit = static_cast<const CEdit&>(control);
    marks += SelectionMark(edit.GetSelStart(), edit.GetSelEnd());
  } else if (control.GetKind() == WindowKind::ComboBox) {
    const auto& combo = static_cast<const CComboBox&>(control);
    marks += SelectionMark(combo.GetEditSelStart(), combo.GetEditSelEnd());
  }
  return marks;
}

// On one line.
std::string TextOf(const CWnd& control) {
  std::string text;
  for (const char c : control.GetText()) {
    if (c == '\n') {
      text += "\\n";
    } else {
      text += c;
    }
  }
  return text;
}

}  // namespace

void ForEachDialogLine(const platform::CDialog& dialog, const std::function<void(const std::string&)>& line) {
  for (const CWnd* const control : dialog.GetChildren()) {
    const bool plain_label = control->GetKind() == WindowKind::Static && control->GetId() == 0;
    line((plain_label ? "-" : std::to_string(control->GetId())) + ' ' + KindName(dialog, *control) + " \"" +
         TextOf(*control) + '"' + Marks(*control));
    if (control->GetKind() == WindowKind::ComboBox) {
      for (const std::string& entry : static_cast<const CComboBox&>(*control).GetStrings()) {
        line("  " + entry);
      }
    } else if (const auto* const grid = dynamic_cast<const platform::SECTreeCtrl*>(control)) {
      ForEachRowText(*grid, [&](const std::string& row) { line("  " + row); });
    }
  }
}

}  // namespace ioview
