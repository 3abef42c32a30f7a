// The hidden window behind a view: the host's services, the view's place in the host's user interface, and
// the panes.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "component/instance/debug_instance_data_ctrl.h"
#include "component/services/ui_registrar.h"
#include "host/component_host.h"
#include "host/format_services.h"
#include "host/ui_services.h"
#include "host/workspace_services.h"
#include "platform/gui/window.h"

namespace pvw {

// The host's window manager speaks to it by messages whose first argument is the handle of a pane. A handle
// that is no pane of this view's changes nothing and is answered all the same.
class CUiCommandSink : public platform::CWnd {
 public:
  // Both may be null: then what they give is missing. The registrar isn't owned.
  CUiCommandSink(IQComponentHost* host, CUiRegistrar* registrar);
  // Destroys panes and window where they are still there, then gives the owner ids back. A subclass that its
  // panes call into has destroyed them by then.
  ~CUiCommandSink() override;

  static const platform::MessageTable kMessages;

  // Destroys the panes in order. One at a time leaves the list and hears of it, so a host that meanwhile asks
  // to close one that is on its way out finds nothing.
  virtual void DestroyPanes();
  // Has every pane show what has changed.
  virtual void UpdatePanes();
  // Both give 1; nothing is done with the second argument.
  virtual platform::LRESULT ClosePane(platform::HWND pane_window, platform::LPARAM unused);
  virtual platform::LRESULT HidePane(platform::HWND pane_window, platform::LPARAM unused);

  // Makes the window, not shown, as a child of the program's main window; false when that fails.
  bool CreateSink();
  // The panes first.
  void DestroySink();

 protected:
  using PaneList = std::vector<std::unique_ptr<CPvwDebugInstanceDataCtrl>>;

  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

  // The pane has left the list and is about to be destroyed. Its window, and what it has registered, may
  // still be there: the place to take back what others hold of it.
  virtual void OnPaneLeaving(CPvwDebugInstanceDataCtrl&) {}

  // Services are not owned, good until the component disconnects; null where the host doesn't give them.
  IQComponentHost* const m_pHost;
  IQNumberFormat* m_pNumberFormat = nullptr;
  IQHostCommon* m_pHostCommon = nullptr;
  IQPathService* m_pPathService = nullptr;
  IQSettings* m_pSettings = nullptr;
  IQDataManager* m_pSessionData = nullptr;
  IQHostExtra* m_pHostExtra = nullptr;
  CUiRegistrar* const m_pUiRegistrar;
  // 0 where the host gave none.
  std::uint32_t m_menuOwnerId = 0;
  std::uint32_t m_acceleratorOwnerId = 0;
  PaneList m_panes;  // in order of creation

 private:
  platform::LRESULT OnClosePane(const platform::MSG& msg);
  platform::LRESULT OnHidePane(const platform::MSG& msg);
  platform::LRESULT OnRefreshPane(const platform::MSG& msg);
  platform::LRESULT OnDestroy(const platform::MSG& msg);

  // The end of the list when no pane has that window.
  PaneList::iterator FindPane(platform::HWND window);
  void DestroyPaneAt(PaneList::iterator place);
};

}  // namespace pvw
