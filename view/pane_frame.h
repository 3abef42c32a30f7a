// What a pane asks of the frame that owns it. The frame implements this, so that the panes know nothing else
// of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace pvw {

class CPaneFrame {
 public:
  // Refreshes that come by themselves are off, rows neither open nor close, and texts are grey.
  virtual bool IsRefreshLocked() const = 0;
  virtual void ToggleRefreshLock() = 0;
  // While a stop of the target, or a refresh event, is being shown: the panes start a new generation of
  // marks.
  virtual bool IsTargetUpdate() const = 0;
  // RefreshData of every pane.
  virtual void UpdatePanes() = 0;
  // Something has changed that the session should save.
  virtual void SetSessionDirty() = 0;

  // The title of a pane's tab page; empty past the last.
  virtual std::string GetPaneTitle(std::size_t index) const = 0;

  // The definition file, with placeholders as it was stored or typed.
  virtual std::string GetIOFilePath() const = 0;
  virtual void SetIOFilePath(const std::string& path) = 0;
  // Last write time of the file as it was loaded, in units of 100 ns since 1601; 0 while there is none.
  virtual std::uint64_t GetIOFileWriteTime() const = 0;
  virtual void SetIOFileWriteTime(std::uint64_t time) = 0;
  // Whether the session keeps the path.
  virtual bool GetSavePathName() const = 0;
  virtual void SetSavePathName(bool save) = 0;

  // Where Save To File starts.
  virtual std::string GetSaveFileDir() const = 0;
  virtual void SetSaveFileDir(const std::string& directory) = 0;
  virtual std::string GetSaveFileName() const = 0;
  virtual void SetSaveFileName(const std::string& name) = 0;

 protected:
  ~CPaneFrame() = default;
};

}  // namespace pvw
