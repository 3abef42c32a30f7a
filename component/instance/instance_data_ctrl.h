// A pane's window, below what it shows: option bits, the host's services, its place in the host's user
// interface.
#pragma once

#include <cstdint>

#include "component/services/ui_registrar.h"
#include "host/component_host.h"
#include "host/format_services.h"
#include "host/ui_services.h"
#include "host/workspace_services.h"
#include "platform/gui/window.h"

namespace pvw {

class CPvwInstanceDataCtrl : public platform::CWnd {
 public:
  // Both may be null: then what they give is missing. The registrar isn't owned.
  CPvwInstanceDataCtrl(IQComponentHost* component_host, CUiRegistrar* registrar, std::uint32_t option_flags);
  ~CPvwInstanceDataCtrl() override;

  static const platform::MessageTable kMessages;

  virtual std::uint32_t TestFlags(std::uint32_t mask) const { return flags & mask; }
  virtual std::uint32_t GetFlags() const { return flags; }
  virtual void ChangeFlags(std::uint32_t mask, bool set);
  virtual void SetFlags(std::uint32_t value) { flags = value; }
  // Takes back all that this window and its two owners have registered.
  virtual void ReleaseHostUi();
  // Shows what has changed.
  virtual void RefreshData() {}
  // What F1 opens: the topic behind the path of the help file, null for none, and the help context.
  virtual const char* GetHelpTopic() const { return nullptr; }
  virtual std::uint32_t GetHelpContext() const { return 0; }

  // Makes the window, shown and without a size, as a child of `parent`; false when that fails.
  bool CreatePane(platform::HWND parent, platform::HWND owner);
  void DestroyPane();
  // Gives the owner ids back; what stands under them at the host has been released before. Comes with the end
  // of the object, or before it where that outlives the registrar.
  void FreeOwnerIds();

  // The commands that every pane has. They act on the host's window around the pane.
  void OnAllowDocking();
  void OnUpdateAllowDocking(platform::CCmdUI& ui);
  void OnHideWindow();

  // Panes alive in the process, with or without a window.
  static int GetLiveCount();

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

  std::uint32_t flags;
  // Services are not owned, good until the component disconnects.
  IQComponentHost* const host;
  IQHostFrame* hostFrame = nullptr;
  IQNumberFormat* numberFormat = nullptr;
  IQHostCommon* hostCommon = nullptr;
  IQSettings* settings = nullptr;
  IQHostExtra* hostExtra = nullptr;
  CUiRegistrar* const uiRegistrar;
  // 0 where the host gave none.
  std::uint32_t menuOwnerId = 0;
  std::uint32_t acceleratorOwnerId = 0;

 private:
  platform::LRESULT OnEraseBackground(const platform::MSG& msg);
  platform::LRESULT OnSize(const platform::MSG& msg);
  platform::LRESULT OnHelp(const platform::MSG& msg);
  // 0 when there is none.
  platform::HWND GetParentHandle() const;
};

}  // namespace pvw
