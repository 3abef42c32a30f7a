// The program on a screen: one instance of the component in a main window, with the workspace's session and
// the user's settings on disk.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "ioview/component/component_library.h"
#include "ioview/component/instance.h"
#include "ioview/desktop/main_window.h"
#include "ioview/store/store_files.h"
#include "platform/gui/window.h"
#include "platform/qt/qt_display.h"

namespace ioview {

// Needs a QApplication that outlives it. One at a time.
class Desktop {
 public:
  // Native paths.
  struct Places {
    std::string definition;     // a file that exists
    std::string workspace;      // a directory that exists
    std::string settings_file;  // need not exist; empty for none
  };

  // Loads session and settings. Throws ProgramError for what can't be used at all.
  Desktop(const ComponentLibrary& library, Places places);
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  // Ends the component and saves what it has left in the settings.
  ~Desktop();

  // What is to be set before Open: the target's memory, areas and base.
  Instance& GetInstance() { return instance_; }
  MainWindow& Window() { return *window_; }
  platform::QtDisplay& Display() { return display_; }

  // Starts the component, shows the window with the definition's registers in it, and then, from the event
  // loop, what was wrong with the files. False when the component can't be connected.
  bool Open(bool demo);
  // Saves the session when it is dirty, and the settings; says what can't be saved. Also when the window
  // closes.
  void Save();

 private:
  // Whether the session has another definition than the one to show.
  bool HasOtherDefinition() const;
  void SaveSession(bool always);
  void SaveSettings(bool of_window);
  std::string About() const;

  const ComponentLibrary& library_;
  const Places places_;
  std::string definition_;  // drive path
  std::string session_file_;
  LoadNotes notes_;
  SettingsContents settings_;
  std::size_t saved_session_ = 0;  // changes of the store that are on disk
  std::size_t saved_settings_ = 0;
  std::string saved_layout_;
  platform::QtDisplay display_;
  Instance instance_;
  std::unique_ptr<MainWindow> window_;
  platform::CWnd main_;
};

}  // namespace ioview
