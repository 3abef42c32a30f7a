#include "ioview/script/dialog_steps.h"

#include <string>

#include "ioview/program_error.h"
#include "ioview/script/dialog_text.h"
#include "ioview/script/key_names.h"
#include "ioview/script/row_mouse.h"
#include "ioview/script/row_path.h"
#include "platform/gui/controls.h"
#include "platform/headless/user.h"

namespace ioview {

namespace {

using platform::CComboBox;
using platform::CDialog;
using platform::CEdit;
using platform::CWnd;
using platform::SECTreeCtrl;
using platform::WindowKind;

// Controls ------------------------------------------------------------------------------------------------

[[noreturn]] void WrongControl(std::uint32_t id, const char* kind) {
  throw ScriptError("control " + std::to_string(id) + " of the dialog is no " + kind);
}

CWnd& Control(CDialog& dialog, std::uint32_t id) {
  CWnd* const control = dialog.GetDlgItem(id);
  if (control == nullptr) throw ScriptError("the dialog has no control " + std::to_string(id));
  return *control;
}

CEdit* AsEdit(CWnd& control) {
  return control.GetKind() == WindowKind::Edit ? static_cast<CEdit*>(&control) : nullptr;
}
CComboBox* AsComboBox(CWnd& control) {
  return control.GetKind() == WindowKind::ComboBox ? static_cast<CComboBox*>(&control) : nullptr;
}

// The control that a text goes into, with the focus; null while it is disabled.
CWnd* FocusedText(CDialog& dialog, std::uint32_t id) {
  CWnd& control = Control(dialog, id);
  if (AsEdit(control) == nullptr && AsComboBox(control) == nullptr) WrongControl(id, "edit");
  if (!control.IsEnabled()) return nullptr;
  platform::SetFocus(control.GetHandle());
  return dialog.GetDlgItem(id);
}

DialogAct SetText(Arguments& words) {
  const std::uint32_t id = words.Number();
  const std::string text = words.Text();
  return [id, text](ScriptRun&, CDialog& dialog) {
    CWnd& control = Control(dialog, id);
    if (AsEdit(control) == nullptr && AsComboBox(control) == nullptr) WrongControl(id, "edit");
    if (!control.IsEnabled()) return;
    CComboBox* const combo = AsComboBox(control);
    if (combo == nullptr || !combo->HasEdit()) return control.SetText(text);
    combo->SelectAll();
    combo->ReplaceEditSel(text);
  };
}

DialogAct TypeText(Arguments& words) {
  const std::uint32_t id = words.Number();
  const std::string text = words.Text();
  return [id, text](ScriptRun&, CDialog& dialog) {
    if (FocusedText(dialog, id) != nullptr) platform::user::TypeText(text);
  };
}

DialogAct PasteText(Arguments& words) {
  const std::uint32_t id = words.Number();
  const std::string text = words.Text();
  return [id, text](ScriptRun&, CDialog& dialog) {
    CWnd* const control = FocusedText(dialog, id);
    if (control == nullptr) return;
    if (CEdit* const edit = AsEdit(*control)) {
      edit->ReplaceSel(text);
    } else if (CComboBox* const combo = AsComboBox(*control); combo->HasEdit()) {
      combo->ReplaceEditSel(text);
    }
  };
}

DialogAct SetCaret(Arguments& words) {
  const std::uint32_t id = words.Number();
  const std::uint32_t from = words.Number();
  const std::uint32_t to = words.HasMore() ? words.Number() : from;
  return [id, from, to](ScriptRun&, CDialog& dialog) {
    CWnd* const control = FocusedText(dialog, id);
    if (control == nullptr) return;
    if (CEdit* const edit = AsEdit(*control)) {
      edit->SetSel(from, to);
    } else {
      AsComboBox(*control)->SetEditSel(from, to);
    }
  };
}

DialogAct CheckBox(Arguments& words) {
  const std::uint32_t id = words.Number();
  const bool on = words.Choice<bool>({{"0", false}, {"1", true}});
  return [id, on](ScriptRun&, CDialog& dialog) {
    CWnd& control = Control(dialog, id);
    if (control.GetKind() != WindowKind::CheckBox) WrongControl(id, "check box");
    if (static_cast<platform::CCheckBox&>(control).GetCheck() != on) platform::user::ClickControl(control);
  };
}

DialogAct PickEntry(Arguments& words) {
  const std::uint32_t id = words.Number();
  const std::uint32_t index = words.Number();
  return [id, index](ScriptRun&, CDialog& dialog) {
    CWnd& control = Control(dialog, id);
    const auto missing = [&] {
      throw ScriptError("control " + std::to_string(id) + " has no entry " + std::to_string(index));
    };
    if (CComboBox* const combo = AsComboBox(control)) {
      if (index >= combo->GetStrings().size()) missing();
      if (!combo->IsEnabled()) return;
      platform::SetFocus(combo->GetHandle());
      combo->PeerPicked(static_cast<int>(index));
    } else if (auto* const grid = dynamic_cast<SECTreeCtrl*>(&control)) {
      const platform::HTREEITEM item = grid->GetItemAtRow(index);
      if (item == 0) missing();
      platform::user::Click(*grid, PointOnPart(*grid, item, RowPart::kLabel));
    } else {
      WrongControl(id, "list");
    }
  };
}

DialogAct PressButton(Arguments& words) {
  const std::uint32_t id = words.Number();
  return [id](ScriptRun&, CDialog& dialog) {
    CWnd& control = Control(dialog, id);
    if (control.GetKind() != WindowKind::Button) WrongControl(id, "button");
    platform::user::ClickControl(control);
  };
}

// Rows ----------------------------------------------------------------------------------------------------

struct DialogRow {
  SECTreeCtrl& grid;
  platform::HTREEITEM item;
};

// In the first tree or list that has it.
DialogRow FindDialogRow(const CDialog& dialog, const std::string& path) {
  const std::vector<std::string> names = SplitRowPath(path);
  for (CWnd* const control : dialog.GetChildren()) {
    auto* const grid = dynamic_cast<SECTreeCtrl*>(control);
    const platform::HTREEITEM item = grid != nullptr ? FindRow(*grid, names) : 0;
    if (item != 0) return {*grid, item};
  }
  throw ScriptError(Quoted(path) + " names no row of the dialog");
}

// As the user does who wants to see the row.
void OpenRowsAbove(const DialogRow& row) {
  std::vector<platform::HTREEITEM> above;
  for (platform::HTREEITEM item = row.grid.GetParentItem(row.item); item != 0;
       item = row.grid.GetParentItem(item)) {
    above.push_back(item);
  }
  for (std::size_t i = above.size(); i-- > 0;) row.grid.Expand(above[i], platform::TVE_EXPAND);
}

template <RowPart part>
DialogAct ClickRow(Arguments& words) {
  const std::string path = words.Text();
  return [path](ScriptRun&, CDialog& dialog) {
    const DialogRow row = FindDialogRow(dialog, path);
    OpenRowsAbove(row);
    platform::user::Click(row.grid, PointOnPart(row.grid, row.item, part));
  };
}

template <platform::UINT action>
DialogAct ExpandRow(Arguments& words) {
  const std::string path = words.Text();
  return [path](ScriptRun&, CDialog& dialog) {
    const DialogRow row = FindDialogRow(dialog, path);
    row.grid.Expand(row.item, action);
  };
}

DialogAct ClickHeader(Arguments& words) {
  const std::uint32_t column = words.Number();
  return [column](ScriptRun&, CDialog& dialog) {
    for (CWnd* const control : dialog.GetChildren()) {
      auto* const grid = dynamic_cast<SECTreeCtrl*>(control);
      if (grid == nullptr || !grid->IsHeaderShown()) continue;
      if (column >= static_cast<std::uint32_t>(grid->GetColumnCount())) continue;
      int left = -grid->GetScrollPos(false);
      for (int before = 0; before < static_cast<int>(column); ++before) left += grid->GetColumnWidth(before);
      const int width = grid->GetColumnWidth(static_cast<int>(column));
      if (width <= 0) break;
      return platform::user::Click(*grid, {left + width / 2, grid->GetHeaderHeight() / 2});
    }
    throw ScriptError("no list of the dialog shows a column " + std::to_string(column));
  };
}

// Keys and buttons of the dialog --------------------------------------------------------------------------

DialogAct PressKey(Arguments& words) {
  std::optional<std::uint32_t> id;
  if (words.Left() > 1) id = words.Number();
  const std::string& name = words.Text();
  const std::optional<NamedKey> key = ParseKey(name);
  if (!key) throw WrongArgument(Quoted(name) + " is no key");
  return [id, key = *key](ScriptRun&, CDialog& dialog) {
    if (id) platform::SetFocus(Control(dialog, *id).GetHandle());
    platform::user::PressKey(key.key, key.modifiers);
  };
}

DialogAct Show(Arguments&) {
  return [](ScriptRun& run, CDialog& dialog) {
    ForEachDialogLine(dialog, [&](const std::string& line) { run.out.Line(line); });
  };
}

DialogAct Ok(Arguments&) {
  return [](ScriptRun&, CDialog& dialog) { platform::user::PressOk(dialog); };
}

DialogAct Cancel(Arguments&) {
  return [](ScriptRun&, CDialog& dialog) { platform::user::PressCancel(dialog); };
}

}  // namespace

DialogAct ParseDialogStep(Arguments& words) {
  using Parser = DialogAct (*)(Arguments&);
  const auto parse = words.Choice<Parser>({
      // Controls.
      {"set", SetText},
      {"type", TypeText},
      {"paste", PasteText},
      {"caret", SetCaret},
      {"check", CheckBox},
      {"pick", PickEntry},
      {"press", PressButton},
      // Rows of trees and lists.
      {"tick", ClickRow<RowPart::kCheck>},
      {"click", ClickRow<RowPart::kLabel>},
      {"expand", ExpandRow<platform::TVE_EXPAND>},
      {"collapse", ExpandRow<platform::TVE_COLLAPSE>},
      {"header", ClickHeader},
      // The dialog itself.
      {"key", PressKey},
      {"show", Show},
      {"ok", Ok},
      {"cancel", Cancel},
  });
  DialogAct act = parse(words);
  words.End();
  return act;
}

}  // namespace ioview
