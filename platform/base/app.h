// The application object of a loadable module, and what is current while its code runs. Stands in for the
// class library's application class and module state.
#pragma once

#include <optional>
#include <string>

#include "platform/base/resources.h"
#include "platform/base/types.h"

namespace platform {

// One global object a module; the latest that was made is current, unless a ScopedModuleState says otherwise.
class CWinApp {
 public:
  CWinApp();
  CWinApp(const CWinApp&) = delete;
  CWinApp& operator=(const CWinApp&) = delete;
  virtual ~CWinApp();

  // Null when no module has one.
  static CWinApp* Current();
  // That of the module that `address` lies in; null when that has none.
  static CWinApp* Of(const void* address);
  // The drive path of the module that the object lies in; nothing when that can't be written as one.
  std::optional<std::string> GetModuleFileName() const;

  std::string m_helpFilePath;  // drive path; empty for none
};

// The module whose application object this is runs, until the scope's end on every path.
class ScopedModuleState {
 public:
  explicit ScopedModuleState(CWinApp& app);
  ScopedModuleState(const ScopedModuleState&) = delete;
  ScopedModuleState& operator=(const ScopedModuleState&) = delete;
  ~ScopedModuleState();

 private:
  CWinApp* m_before;
};

// Resources come from `module` first, until the scope's end.
class ScopedResourceModule {
 public:
  explicit ScopedResourceModule(HMODULE module) : m_before(ResourceModule()) { SetResourceModule(module); }
  ScopedResourceModule(const ScopedResourceModule&) = delete;
  ScopedResourceModule& operator=(const ScopedResourceModule&) = delete;
  ~ScopedResourceModule() { SetResourceModule(m_before); }

 private:
  HMODULE m_before;
};

// The program's main window, which its host sets; 0 for none.
void SetMainWindow(HWND window);
HWND GetMainWindow();

}  // namespace platform
