// The main window: menus, toolbars and docks, drawn from what components have registered at the host.
#pragma once

#include <QtWidgets/qmainwindow.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "ioview/component/instance.h"
#include "ioview/desktop/command_binder.h"
#include "ioview/desktop/component_menus.h"
#include "ioview/desktop/dock_frame.h"
#include "ioview/desktop/key_filter.h"
#include "ioview/desktop/target_control.h"
#include "ioview/desktop/test_commands.h"
#include "ioview/desktop/window_layout.h"
#include "ioview/ui/host_ui.h"

class QLabel;
class QMenu;
class QToolBar;

namespace ioview {

class MainWindow final : public QMainWindow, public UiObserver {
 public:
  // What the window leaves to the program around it.
  struct Program {
    std::function<void()> closed;         // the user closes the window, which is on its way out
    std::function<void()> save_session;   // by the menu
    std::function<void()> save_settings;  // the user has changed some
    std::function<std::string()> about;   // a few lines about program and component
  };

  // Observes the instance's user interface as long as it lives; before it goes, the instance must be
  // destroyed.
  MainWindow(Instance& instance, Program program);
  ~MainWindow() override;

  // The widget that a window without a parent goes into: a dock's room. Null for another.
  QWidget* ContainerOf(const platform::CWnd& window);
  // A widget that never shows, for the layer's own main window.
  QWidget* HiddenRoom() const { return hidden_room_; }

  // Places what there is by it; a dock that is made later takes its place as well.
  void SetLayout(const WindowLayout& layout);
  WindowLayout GetLayout() const;

  TargetControl& Target() { return target_; }
  // Brings everything that shows a state up to date at once.
  void SyncNow();
  // Gives the keyboard to the page that shows.
  void FocusPage();
  // The frame of the view; null when there is none.
  DockFrame* ViewFrame() const;

  // UiObserver. All of it is drawn once the host has come to rest.
  void MenusChanged() override;
  void DockMade(DockWindow& dock) override { ContainerOf(dock); }
  void DockChanged(DockWindow&) override { SyncLater(); }
  void DockGone(DockWindow& dock) override;
  void CustomizeToolbar(DockWindow& dock) override;

  QMenu* createPopupMenu() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeMenus();
  void MakeFileMenu(QMenu& menu);
  void MakeViewMenu(QMenu& menu);
  void MakeDebugMenu(QMenu& menu);
  void MakeTestMenu(QMenu& menu);
  void MakeHelpMenu(QMenu& menu);
  void FillWindowEntries();
  DockFrame* FrameOf(const DockWindow& dock) const;
  DockFrame* MakeFrame(DockWindow& dock);
  void CloseDock(DockWindow& dock);
  void ToggleDock(DockWindow& dock);
  void SyncLater();
  void SyncBars();
  void RefreshStates();
  platform::HWND ShownPane() const;
  void OpenDefinition();
  void ShowFormatDialog();
  void ShowCustomizeDialog(platform::HWND dock);
  void ShowOtherPage();

  Instance& instance_;
  const Program program_;
  TargetControl target_;
  TestCommands tests_;
  CommandBinder binder_;
  std::unique_ptr<ComponentMenus> menus_;
  KeyFilter keys_;

  QWidget* hidden_room_;  // for the layer's main window
  QMenu* pane_menu_ = nullptr;
  QAction* format_ = nullptr;
  QAction* other_page_ = nullptr;
  QAction* demo_ = nullptr;
  QMenu* windows_ = nullptr;
  QToolBar* target_bar_;
  QLabel* target_state_;
  // The host's own entries that a state of target or component enables.
  struct OwnAction {
    QAction* action;
    std::function<bool()> can;
  };
  std::vector<OwnAction> own_actions_;
  struct Bar {
    std::string identity;
    QToolBar* bar;
  };
  std::vector<Bar> bars_;
  std::vector<DockFrame*> frames_;
  std::set<std::uint32_t> hidden_buttons_;
  bool sync_waits_ = false;
  bool menus_changed_ = true;
};

}  // namespace ioview
