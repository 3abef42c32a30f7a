// A pane of the I/O view: a grid over the record tree, with all the commands of the view.
//
// Two panes show the same tree side by side. The first has every record that the definition file defines and
// fills a module when it is opened; the second has the user's selection alone, with what the file lacks, and
// is filled whole. Opening a row is what makes its record take part in reads of the target.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "component/instance/debug_instance_data_ctrl.h"
#include "component/services/session_store.h"
#include "frame/controls/row_table.h"
#include "frame/controls/tree_grid_ctrl.h"
#include "model/io_data.h"
#include "model/io_data_file.h"
#include "model/watch.h"
#include "platform/gui/dialog.h"
#include "platform/gui/graphics.h"
#include "view/pane_frame.h"
#include "view/record_rows.h"

namespace pvw {

// The owner calls, in this order: SetFrame, LinkOtherPane (on both panes, for the second), CreatePane,
// SetStateValid, SetFont, SetItemColours, RefreshData. It destroys the window before the file, the tree or
// the frame go.
class CPvwIOInstanceCtrl : public CPvwDebugInstanceDataCtrl {
 public:
  // `paneIndex` 0 is the pane of all records, 1 that of the selection. Nothing is owned; host and registrar
  // may be null.
  CPvwIOInstanceCtrl(CIODataFile* file, CIOData* data, std::size_t paneIndex, IQComponentHost* componentHost,
                     CUiRegistrar* registrar, std::uint32_t unused);
  ~CPvwIOInstanceCtrl() override;

  static const platform::MessageTable kMessages;

  void SetFrame(CPaneFrame* frame) { m_pFrame = frame; }
  // Not owned. A pane whose window goes clears what the other holds of it.
  void LinkOtherPane(CPvwIOInstanceCtrl* pane) { m_pOtherPane = pane; }
  // Whether the definition file was there when the view opened. Without one LoadState does nothing.
  void SetStateValid(bool valid) { m_bStateValid = valid; }

  // Shows what the records hold now, and marks what has changed. Nothing is read from the target.
  void RefreshData() override;
  // `size` in points. Always 0.
  virtual platform::Status SetFont(std::string_view face, std::int32_t size);
  // Indices of logical colours; `item` isn't used. Always 0.
  virtual platform::Status SetItemColours(std::string_view item, std::int32_t fg, std::int32_t bk);
  virtual platform::HWND GetTreeWindow() const { return m_tree.GetHandle(); }
  // The state of the grid under `key`; the first pane writes the selection besides. Always 0.
  virtual platform::Status SaveState(CSessionStore& store, std::string_view key);
  virtual platform::Status LoadState(CSessionStore& store, std::string_view key);

  // Loads another definition into both panes, in the first; does nothing in the second. A base of 0 is the
  // file's own. `path` has placeholders expanded, and ".io" appended where it doesn't end so. The selection
  // survives by name. The frame's path stays as it is. While refreshes are locked the second pane stays
  // empty.
  void LoadIOFile(std::string_view path, std::uint32_t baseAddress);
  // The frame's lock has just ended, and values weren't read yet: the second pane catches up with a load.
  void OnLockEnded();

  // Deletes all rows and makes them anew; the second pane opens its rows, unless the target runs.
  void RebuildTree();
  // Takes back the opens that this pane has counted and lets go of its records; dialogs over them end,
  // cancelled, and a Watch<CPvwIOInstanceCtrl> of who is in the midst of the rows doesn't stand any more. The
  // rows stay as they look, and neither refresh, open nor close any more. Runs by itself before the window
  // goes.
  void ReleaseExpandCounts();

  // Escape and Delete belong to an edit that is open.
  bool PreTranslateMessage(const platform::MSG& msg) override;

  // Null for a row without a record.
  CIORec* FindRecord(platform::HTREEITEM item) const;
  // False for a top-level row whose only row below it stands for children that haven't been read.
  bool HasRealChildren(platform::HTREEITEM item) const;

  // The last write time, in units of 100 ns since 1601; false, and `time` stays, when the file can't be
  // opened.
  static bool GetFileWriteTime(std::string_view path, std::uint64_t& time);

 protected:
  const platform::MessageTable& GetMessageTable() const override { return kMessages; }

 private:
  using HTREEITEM = platform::HTREEITEM;

  // Window.
  platform::LRESULT OnCreate(const platform::MSG& msg);
  platform::LRESULT OnDestroy(const platform::MSG& msg);
  platform::LRESULT OnSetFocus(const platform::MSG& msg);
  bool RegisterAtHost();  // false when the host has ended the pane meanwhile
  bool CreateTree(const std::string (&titles)[4]);
  platform::HWND GetParentHandle() const;

  // Rows.
  bool IsVisibleHere(const CIORec& record) const;
  HTREEITEM InsertRow(CIORec& record, HTREEITEM parent);
  void FillTree(bool openAll);
  RecordRows Records();
  bool AddChildRows(CIORec& record, HTREEITEM parent);
  // kRowsGone when the host ends the rows as it is asked for texts.
  HTREEITEM AddChildRow(CIORec& child, HTREEITEM parent);
  void ApplySelectionToRow(HTREEITEM item, CIORec& record);
  void SetLeafImage(HTREEITEM item, const CIORec& record);
  void FillSelectedRow(HTREEITEM item, CIORec& record);
  void OpenSelectedRows(bool openAll);
  void DeleteRows();
  void OpenRow(HTREEITEM item, CIORec& record);
  void CountOpening(CIORec& record);
  // False for a module whose fault the user has been told of, and when the rows are gone.
  bool ReadChildren(HTREEITEM item, CIORec& record);
  void CloseRow(HTREEITEM item, CIORec& record);

  // Refresh.
  void UpdateRowValues(HTREEITEM item);
  // Both ask `rows` once the host has given a text.
  void UpdateRowValue(HTREEITEM item, const Watch<CPvwIOInstanceCtrl>& rows);
  void RefreshRow(HTREEITEM item, CIORec& record, const Watch<CPvwIOInstanceCtrl>& rows);
  std::string ExpandedIOFilePath() const;
  // False, and the user is told, when the file isn't the one that was loaded any more.
  bool CheckIOFile() const;

  // Commands.
  void OnRefresh();
  void OnLockRefresh();
  void OnUpdateLockRefresh(platform::CCmdUI& ui);
  void OnLoadIOFile();
  void OnPrint();
  void OnSaveToFile();
  void OnShowToolbar();
  void OnUpdateShowToolbar(platform::CCmdUI& ui);
  void OnCustomizeToolbar();
  void OnUpdateCustomizeToolbar(platform::CCmdUI& ui);
  bool IsToolbarShown() const;

  // Select.
  void OnSelectRegister();
  void OnUpdateSelectRegister(platform::CCmdUI& ui);
  // Runs a dialog over the records that this pane shows. It ends, cancelled, when the pane lets go of them.
  int RunDialog(platform::CDialog& dialog);
  void EndDialogs();

  // Find.
  void OnFind();
  void OnFindNext();
  void OnUpdateFindNext(platform::CCmdUI& ui);
  void FindFirst(std::string text, bool wholeWord);
  void FindNextMatch(std::string text, bool wholeWord);
  [[nodiscard]] bool LoadAllRows();
  void LoadRowsOf(HTREEITEM row, CIORec& record);
  HTREEITEM SearchRows(HTREEITEM behind, std::string text, bool wholeWord) const;
  void ShowHit(HTREEITEM row);
  void EndSearch(std::uint32_t name_message, std::uint32_t address_message);

  // Notifications of the grid.
  platform::LRESULT OnItemExpanding(platform::NMHDR& header);
  platform::LRESULT OnSelChanged(platform::NMHDR& header);
  platform::LRESULT OnBeginNameEdit(platform::NMHDR& header);

  // Progress.
  void OpenRows();

  // Drag.
  platform::LRESULT OnBeginDrag(platform::NMHDR& header);

  // Editing. A cell's edit is idle, open (m_bEditing), or on its way out without a value (m_bEditCancelled).
  platform::LRESULT OnBeginCellEdit(platform::NMHDR& header);
  platform::LRESULT OnEndCellEdit(platform::NMHDR& header);
  platform::LRESULT OnEndLabelEdit(platform::NMHDR& header);
  platform::LRESULT OnClick(platform::NMHDR& header);
  platform::LRESULT OnDblClick(platform::NMHDR& header);
  platform::LRESULT OnReturn(platform::NMHDR& header);
  // Closes the edit, with what is typed written first unless it is cancelled. Nothing when none is open.
  void EndCellEdit();
  void CommitCellEdit(HTREEITEM item);
  bool EndValueEdit(platform::LVITEM& cell);
  void WriteEditToValue(HTREEITEM item);
  // The dialog for the selected row, or a message that it can't be edited. `point`, in the grid, is where a
  // double click fell; null for the keyboard.
  void EditSelectedRow(const platform::POINT* point);
  // Names, and what may be edited, from the records.
  void RefreshLabels();
  // By the host; nothing, and the user has been told, when the text isn't a number.
  std::optional<std::uint64_t> ParseValueText(std::string_view text) const;
  // The row's record once it has written the value; null when it hasn't, and when the record, the row or the
  // window has gone meanwhile.
  CIORec* WriteValue(HTREEITEM item, std::uint64_t value);
  // The text of the open edit; false, and the user has been told, when it isn't hexadecimal.
  bool TakeHexText(std::string& text);
  // WriteValue with that text, whose value it gives. A message on the way closes the edit, cancelled.
  CIORec* WriteEditText(HTREEITEM item, std::string_view text, std::uint64_t& value);

  CRowTable<CIORec*> m_itemMap;
  std::vector<CIORec*> m_opening;  // counted as open, and being read; the innermost last
  std::string m_findText;          // of the search that Find Next goes on with; empty for none
  bool m_bFindWholeWord = false;
  std::string m_findColumn;
  CTreeGridCtrl m_tree;
  platform::CImageList m_images;
  std::vector<platform::CDialog*> m_runningDialogs;  // by RunDialog
  std::int32_t m_textColour = 0;                     // as SetItemColours last gave them
  std::int32_t m_backColour = 0;

  bool m_bEditing = false;
  bool m_bEditCancelled = false;
  platform::LVITEM m_editCell;  // as the edit began
  HTREEITEM m_editItem = 0;
  std::optional<std::uint64_t> m_committedValue;  // what a commit has tried to write, until its edit closes

  HTREEITEM m_lastFoundItem = 0;  // may be gone
  bool m_bRebuildDue = false;     // a load in a locked view has left the pane empty

  CIODataFile* const m_pIOFile;
  CIOData* const m_pIOData;
  const std::size_t m_paneIndex;
  CPaneFrame* m_pFrame = nullptr;
  bool m_bStateValid = true;
  CPvwIOInstanceCtrl* m_pOtherPane = nullptr;
};

}  // namespace pvw
