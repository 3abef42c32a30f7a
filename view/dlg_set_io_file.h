// The dialog that asks for a definition file: a path with placeholders, typed, picked from a menu or browsed
// for.
//
//   CDlgSetIOFile dialog(path, host, nullptr);
//   dialog.SetSavePath(save);
//   if (dialog.DoModal() == platform::IDOK) Use(dialog.GetPath(), dialog.GetSavePath());
//
// It ends with OK only for a path that resolves to a file. The path comes back as the user left it, its
// placeholders unexpanded.
#pragma once

#include <memory>
#include <string>

#include "frame/controls/custom_edit.h"
#include "frame/controls/dlg_with_help.h"
#include "frame/controls/placeholder_button.h"
#include "host/component_host.h"

namespace pvw {

class CDlgSetIOFile : public CDlgWithHelp {
 public:
  // `host` may be null and isn't owned.
  CDlgSetIOFile(std::string path, IQComponentHost* host, platform::CWnd* parent);

  static const platform::MessageTable kMessages;

  // Whether the session is to keep the path; the user can change it, and Browse sets it.
  void SetSavePath(bool save) { m_bSavePath = save; }
  bool GetSavePath() const { return m_bSavePath; }
  const std::string& GetPath() const { return m_path; }

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }
  void DoDataExchange(platform::CDataExchange& dx) override;
  void OnInitDialog() override;
  void OnOK() override;
  // Behind the default init: makes the path's field and its button, and puts the path in.
  virtual void InitControls();

 private:
  void OnBrowse();
  // False, the user told and the focus in the path's field, for a path that names no file.
  bool Validate();
  bool Refuse(const std::string& text);

  bool m_bSavePath = false;
  IQComponentHost* const m_pHost;
  std::unique_ptr<CUiCustomEditCtrl> m_pEdit;
  std::unique_ptr<CUiPlaceholderButtonEB> m_pPlaceholderButton;
  std::string m_path;
};

}  // namespace pvw
