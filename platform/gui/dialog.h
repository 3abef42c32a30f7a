// Modal dialogs. Stands in for the class library's dialog class.
#pragma once

#include <memory>
#include <vector>

#include "platform/gui/controls.h"
#include "platform/gui/data_exchange.h"
#include "platform/gui/window.h"

namespace platform {

class Display;
struct DialogItem;
struct DialogTemplate;

class CDialog : public CWnd {
 public:
  // The owner is behind it, and gets the focus back; null: the program's main window.
  CDialog(UINT template_id, CWnd* owner);
  ~CDialog() override;

  static const MessageTable kMessages;

  WindowKind GetKind() const override { return WindowKind::Dialog; }
  UINT GetTemplateId() const { return m_template_id; }

  // Makes the window from its template, runs it, and returns what EndDialog was given. -1 when there is no
  // such template or no display. Its end is a flag: an outer dialog may be ended before an inner one.
  int DoModal();
  void EndDialog(int result);

  // Members to controls, or back.
  void UpdateData(bool save);

  // What Enter presses: the button that has the focus, else the default one; null for none.
  CButton* GetEnterButton() const;
  // Gives a control the focus, an edit's text selected.
  void GotoControl(CWnd& control);

  // Tab, Enter, Escape, Alt and a letter.
  bool PreTranslateMessage(const MSG& msg) override;

 protected:
  const MessageTable& GetMessageTable() const override { return kMessages; }
  // The controls are there and nothing shows. A control that is given the focus here has it when the dialog
  // opens, else the first that can have it.
  virtual void OnInitDialog();
  virtual void OnOK();
  virtual void OnCancel();
  virtual void DoDataExchange(CDataExchange& dx);
  // Ends the dialog when its window was destroyed; an override calls it.
  void PostNcDestroy() override;

 private:
  bool CreateFrom(const DialogTemplate& from, Display& display);
  bool CreateItem(const DialogItem& item, CWnd* member, SIZE base);
  void Run(Display& display);
  void TakeFirstFocus();
  LRESULT OnCloseMessage(const MSG& msg);
  LRESULT OnSetFocusMessage(const MSG& msg);

  const UINT m_template_id;
  const HWND m_behind;
  std::vector<std::unique_ptr<CWnd>> m_own_controls;
  bool m_done = true;
  int m_result = 0;
};

}  // namespace platform
