// A combo box that keeps what was entered in it for the next time.
//
// The list belongs to the configuration that is open at the host: at most 20 texts, newest first. A host that
// lacks a service, or fails a call, has an empty list and keeps nothing; the user isn't told.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/component_host.h"
#include "platform/gui/combo_box.h"

namespace pvw {

class CUiSelComboBox : public platform::CComboBox {
 public:
  // The host isn't owned; null for none.
  explicit CUiSelComboBox(IQComponentHost* host = nullptr) : m_pHost(host) {}

  static const platform::MessageTable kMessages;

  void SetHost(IQComponentHost* host) { m_pHost = host; }
  // Adds what is kept to the drop-down list; picks the newest only if asked to. Nothing without a window.
  void LoadHistory(bool selectFirst);
  // Puts the current text at the head of what is kept. An empty text changes nothing.
  void SaveHistory();

  // The text and the selection in it, as of the last change by the user or by SetText, which selects all.
  const std::string& GetCurrentText() const { return m_currentText; }
  std::int32_t GetSelStart() const { return m_selStart; }
  std::int32_t GetSelEnd() const { return m_selEnd; }

  void SetText(std::string_view text) override;

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

 private:
  using History = std::vector<std::string>;

  void OnTextChange();
  platform::LRESULT OnInputEnd(const platform::MSG& msg);
  platform::LRESULT OnSetFocus(const platform::MSG& msg);
  void RecordSelection();

  History ReadHistory() const;
  void WriteHistory(const History& history) const;

  IQComponentHost* m_pHost;
  std::int32_t m_selStart = 0;
  std::int32_t m_selEnd = 0;
  std::string m_currentText;
};

}  // namespace pvw
