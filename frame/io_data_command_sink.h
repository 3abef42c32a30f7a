// The view frame: a hidden window that owns the two panes, keeps them in step with the record tree, the font
// and the colours, and answers the host about the view.
//
// The dockable window that the user sees is the host's; the frame asks for it and puts the panes into it.
// Which one that is depends on the session: before the first was loaded the view has the prefix of the
// identity alone.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "component/services/session_store.h"
#include "component/services/workspace_client.h"
#include "frame/ui_debug_command_sink.h"
#include "host/component_clients.h"
#include "model/io_data.h"
#include "model/io_data_file.h"
#include "view/io_instance_ctrl.h"
#include "view/pane_frame.h"

namespace pvw {

// Registers its client faces and its server at the host for as long as it lives.
class CPvwIODataCommandSink final : public CUiDebugCommandSink,
                                    public CWSClient2,
                                    public IQIOServer,
                                    public IQUpdateWindowClient,
                                    public CPaneFrame {
 public:
  // `file` and `data` aren't owned. `host` and `registrar` may be null: then what they give is missing.
  CPvwIODataCommandSink(CIODataFile* file, CIOData* data, IQComponentHost* host, CUiRegistrar* registrar);
  // Destroys panes and window first where they are still there.
  ~CPvwIODataCommandSink() override;

  static const platform::MessageTable kMessages;

  // True while the view's window is on the screen; false when the view goes while the host is asked.
  bool IsViewOpen();
  // A stop of the target or a refresh event is being shown.
  void SetTargetUpdate(bool on) { m_bTargetUpdate = on; }
  // Shows the view, building it when it isn't there.
  void OnOpenIOWindow();
  platform::LRESULT HidePane(platform::HWND pane_window, platform::LPARAM unused) override;

  // One answer for all faces: the workspace client and the update window client.
  platform::Status QueryInterface(const platform::GUID* iid, void** out) override;
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }

  // IQFormatViewClient2. The size is in points. A foreground that is chosen while refreshes are locked waits
  // for the lock to end, and the background is lost; GREY goes through, for it is how the lock looks.
  platform::Status GetFormatName(platform::BSTR* name) override;
  platform::Status GetFont(platform::BSTR* face, std::int32_t* size) override;
  platform::Status SetItemColours(platform::BSTR item, std::int32_t fg, std::int32_t bk) override;
  platform::Status SetFont(platform::BSTR face, std::int32_t size) override;

  // IQWorkSpaceClient2. A load ends the lock.
  platform::Status LoadSessionData(platform::BSTR workspace, platform::BSTR project, platform::BSTR name,
                                   platform::BSTR configuration) override;
  platform::Status SaveSessionData(platform::BSTR workspace, platform::BSTR project,
                                   platform::BSTR configuration) override;
  platform::Status IsSessionDataDirty(platform::BSTR workspace, platform::BSTR project,
                                      platform::BSTR configuration, std::uint32_t* dirty) override;

  // IQIOServer and IQUpdateWindowClient. A load does nothing without the pane of all records; it makes the
  // file the view's own. An update does nothing while refreshes are locked, and asks nothing else.
  platform::Status LoadIOFile(platform::BSTR path, std::uint32_t base_address) override;
  platform::Status UpdateWindow() override;

  // CPaneFrame.
  bool IsRefreshLocked() const override { return m_bRefreshLocked; }
  void ToggleRefreshLock() override;
  bool IsTargetUpdate() const override { return m_bTargetUpdate; }
  void UpdatePanes() override { CUiDebugCommandSink::UpdatePanes(); }
  void SetSessionDirty() override { m_bSessionDirty = true; }
  std::string GetPaneTitle(std::size_t index) const override;
  std::string GetIOFilePath() const override { return m_ioFilePath; }
  void SetIOFilePath(const std::string& path) override { m_ioFilePath = path; }
  std::uint64_t GetIOFileWriteTime() const override { return m_ioFileWriteTime; }
  void SetIOFileWriteTime(std::uint64_t time) override { m_ioFileWriteTime = time; }
  bool GetSavePathName() const override { return m_bSavePathName; }
  void SetSavePathName(bool save) override { m_bSavePathName = save; }
  std::string GetSaveFileDir() const override { return m_saveFileDir; }
  void SetSaveFileDir(const std::string& directory) override { m_saveFileDir = directory; }
  std::string GetSaveFileName() const override { return m_saveFileName; }
  void SetSaveFileName(const std::string& name) override { m_saveFileName = name; }

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }
  // Its rows keep no record open any more, and the other pane doesn't know it any more.
  void OnPaneLeaving(CPvwDebugInstanceDataCtrl& pane) override;

 private:
  platform::LRESULT OnCreate(const platform::MSG& msg);
  void OnUpdateOpenIOWindow(platform::CCmdUI& ui);

  void AddClients();
  void RemoveClients();
  void ReadUserSettings();

  // Opens the definition file, the device's own where the view's doesn't exist, and reads the tree. False
  // when there is no such file either.
  bool OpenFile();
  // Makes the panes in the host's window, unless they are there.
  void MakePanes(platform::HWND window, bool file_found);
  bool AddPane(platform::HWND window, std::size_t index, bool file_found);

  void ReadIOFileKey(CSessionStore& store);
  void ReadSaveFileKeys(CSessionStore& store);
  void LoadPanes(CSessionStore& store);

  static constexpr const char* kWindowIdentity = "{WK_00000001_IO}";

  std::vector<std::string> m_paneTitles;
  std::vector<CPvwIOInstanceCtrl*> m_paneByIndex;  // one for each title; null while it isn't open
  CPvwIOInstanceCtrl* m_pPaneInMaking = nullptr;   // not among the panes yet
  bool m_bRefreshLocked = false;
  std::int32_t m_savedTextFg;  // the text's real colour while the lock shows GREY
  std::uint64_t m_ioFileWriteTime = 0;
  CIODataFile* const m_pIOFile;
  CIOData* const m_pIOData;
  IQDeviceInfo* m_pDeviceInfo = nullptr;  // not owned; null where the host doesn't give it
  bool m_bSessionDirty = false;
  bool m_bTargetUpdate = false;
  std::string m_windowId;
  std::string m_sessionName;                   // as the host last gave it
  std::string m_ioFilePath;                    // with placeholders where it came with them
  std::u16string m_fontName = u"Courier New";  // as the host gave it
  std::int32_t m_fontSize = 11;                // points
  bool m_bRestoring = false;  // a session is being loaded: whether the window shows is up to the host
  std::string m_saveFileDir;
  std::string m_saveFileName;
  bool m_bSavePathName = false;
  std::string m_selectionText;  // as the session has it
};

}  // namespace pvw
