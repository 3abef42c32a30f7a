// The arrow button beside a path's field: opens a menu of the placeholders that are allowed there, and puts
// the one that is picked into the field, in place of its selection.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "host/component_host.h"
#include "platform/gui/button.h"
#include "platform/gui/edit.h"
#include "platform/gui/menu.h"

namespace pvw {

class CUiPlaceholderButtonEB : public platform::CButton {
 public:
  // Indices of the placeholder table, a 0 ends them and 37 stands for a separator; behind them the menu has
  // the user's own placeholders, which `host` is asked for at each click. It takes 100 entries at most. A
  // user's placeholder of the name "UIPHCBPASSON" is no placeholder: its command goes to `passOnWindow`, 0
  // for none. Nothing is owned; `host` may be null.
  CUiPlaceholderButtonEB(platform::CEdit* edit, std::span<const std::uint32_t> allowedPlaceholders,
                         IQComponentHost* host, platform::HWND passOnWindow);

  static const platform::MessageTable kMessages;

  // Takes over a dialog's button and shows the arrow on it. False when there is no such button.
  bool Attach(platform::UINT id, CWnd& parent);
  // The menu's commands go to the button.
  bool RouteCommand(platform::UINT id) override;

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

 private:
  void OnClicked();
  void BuildMenu();
  std::vector<platform::PopupMenuItem> CustomItems(std::uint32_t id);
  void Insert(const std::string& name);

  platform::CEdit* const m_pEdit;
  const std::span<const std::uint32_t> m_allowedPlaceholders;
  std::vector<platform::PopupMenuItem> m_menu;
  IQComponentHost* const m_pHost;
  const platform::HWND m_passOnWindow;
  std::map<std::uint32_t, std::string> m_commandMap;  // what each command of the menu puts in
  platform::CImageList m_arrow;
};

}  // namespace pvw
