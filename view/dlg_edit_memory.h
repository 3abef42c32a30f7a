// The dialog in which a user edits the value of a register or bit field.
#pragma once

#include <cstdint>
#include <string>

#include "frame/controls/dlg_with_help.h"
#include "frame/controls/sel_combo_box.h"
#include "host/component_host.h"
#include "host/format_services.h"
#include "model/edit_hook.h"

namespace pvw {

// Shows the value that it starts with, and a box for the new one, with what was entered there before.
class CDlgEditMemory : public CDlgWithHelp {
 public:
  // `bits` is the width that the new value has to fit in; 64 and more takes any. Services aren't owned and
  // may be null: then texts are "0", no number is accepted, and nothing is kept. Null as `parent` is the
  // main window.
  CDlgEditMemory(IQNumberFormat* numberFormat, std::uint64_t value, std::uint32_t bits, std::string caption,
                 IQComponentHost* host, platform::CWnd* parent);

  // After IDOK, the new value.
  std::uint64_t GetValue() const { return m_value; }

 protected:
  void DoDataExchange(platform::CDataExchange& dx) override;
  void OnInitDialog() override;
  // Tells what is wrong with the new value and stays open; or keeps its text and ends.
  void OnOK() override;

 private:
  // False, and the user is told, for a text that isn't a number of that width.
  bool TakeNewValue();

  CUiSelComboBox m_currentValue;
  CUiSelComboBox m_newValue;
  IQNumberFormat* const m_pNumberFormat;
  IQComponentHost* const m_pHost;
  std::uint64_t m_value;
  const std::uint32_t m_bits;
  const std::string m_caption;
};

// While it lives, the records of this module open the dialog to have their values edited. Scopes nest.
class EditMemoryScope {
 public:
  EditMemoryScope();
  EditMemoryScope(const EditMemoryScope&) = delete;
  EditMemoryScope& operator=(const EditMemoryScope&) = delete;
  ~EditMemoryScope() { SetEditValueHook(m_before); }

 private:
  const EditValueHook m_before;
};

}  // namespace pvw
