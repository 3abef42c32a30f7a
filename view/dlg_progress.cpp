#include "view/dlg_progress.h"

#include <algorithm>
#include <cassert>

#include "component/services/module_state.h"
#include "resources/ids.h"
#include "view/io_instance_ctrl.h"

namespace pvw {

using platform::HTREEITEM;
using platform::LRESULT;
using platform::MSG;
using platform::SECTreeCtrl;

namespace {

constexpr platform::UINT kBar = 13024;
constexpr platform::UINT kCancel = 13025;
constexpr platform::UINT kTimer = 1;
constexpr platform::UINT kTimerPeriod = 200;  // milliseconds
constexpr int kFullBar = 100;

// How many rows are still to be opened, in the whole process; -1 when it was set to 0 in the midst of an
// opening. User interface's thread only.
std::int32_t g_rowsRemaining = 0;

// The first of the row and its siblings behind it that has children.
HTREEITEM WithChildren(const SECTreeCtrl& tree, HTREEITEM row) {
  while (row != 0 && !tree.ItemHasChildren(row)) row = tree.GetNextSiblingItem(row);
  return row;
}

}  // namespace

HTREEITEM NextRowToOpen(const SECTreeCtrl& tree, HTREEITEM opened) {
  if (opened == 0) return tree.GetRootItem();
  const HTREEITEM parent = tree.GetParentItem(opened);
  const HTREEITEM top = parent != 0 ? parent : opened;
  const HTREEITEM from = parent != 0 ? tree.GetNextSiblingItem(opened) : tree.GetChildItem(opened);
  const HTREEITEM child = WithChildren(tree, from);
  return child != 0 ? child : tree.GetNextSiblingItem(top);
}

const platform::MessageTable CDlgProgress::kMessages{
    &CDialog::kMessages,
    {
        // Lifetime.
        platform::OnMessage<&CDlgProgress::OnDestroy>(platform::WM_DESTROY),
        platform::OnMessage<&CDlgProgress::OnTimer>(platform::WM_TIMER),
        // Buttons.
        platform::OnCommand<&CDlgProgress::OnCancel>(kCancel),
    }};

CDlgProgress::CDlgProgress(std::int32_t count, CPvwIOInstanceCtrl& pane)
    : CDialog(IDD_PROGRESS, &pane), m_treeWindow(pane.GetTreeWindow()), m_total(count) {
  assert(count > 0);
  g_rowsRemaining = m_total;
}

CDlgProgress::~CDlgProgress() {
  m_bOpening = false;
  m_worker.Join();
}

void CDlgProgress::DoDataExchange(platform::CDataExchange& dx) {
  CDialog::DoDataExchange(dx);
  platform::DDX_Control(dx, kBar, m_progress);
}

void CDlgProgress::OnInitDialog() {
  CDialog::OnInitDialog();
  m_progress.SetRange(kFullBar);
  platform::SetTimer(GetHandle(), kTimer, kTimerPeriod);
  m_bOpening = true;
  m_worker.Start([this] { OpenRows(); });
}

// The worker ---------------------------------------------------------------------------------------------

void CDlgProgress::OpenRows() {
  bool more = true;
  try {
    while (more) platform::gui::CallUi([&] { more = OpenNextRow(); });
  } catch (...) {
    // For want of memory: the rest stays closed.
    platform::gui::CallUi([this] { Stop(); });
  }
}

bool CDlgProgress::OpenNextRow() {
  if (!m_bOpening) return false;
  const CModuleState state;
  auto* tree = static_cast<SECTreeCtrl*>(platform::CWnd::FromHandle(m_treeWindow));
  const bool goes_on = tree != nullptr && g_rowsRemaining > 0;
  const HTREEITEM row = goes_on ? NextRowToOpen(*tree, m_lastOpened) : 0;
  if (row == 0) {
    // The count may say more: rows of a deep selection aren't all opened.
    g_rowsRemaining = 0;
    return false;
  }
  m_lastOpened = row;
  // The read may end the dialog, and the pane with it.
  tree->Expand(row, platform::TVE_EXPAND);
  --g_rowsRemaining;
  return true;
}

// The end ------------------------------------------------------------------------------------------------

LRESULT CDlgProgress::OnTimer(const MSG& msg) {
  if (msg.wParam == kTimer) {
    if (g_rowsRemaining == 0) OnCancel();
    const std::int64_t opened = std::int64_t{m_total} - g_rowsRemaining;
    m_progress.SetPos(static_cast<int>(std::clamp<std::int64_t>(opened * kFullBar / m_total, 0, kFullBar)));
  }
  return Default(msg, kMessages);
}

void CDlgProgress::OnCancel() {
  Stop();
  CDialog::OnCancel();
}

LRESULT CDlgProgress::OnDestroy(const MSG& msg) {
  const LRESULT result = Default(msg, kMessages);
  Stop();
  platform::KillTimer(msg.hwnd, kTimer);
  return result;
}

void CDlgProgress::Stop() {
  m_bOpening = false;
  g_rowsRemaining = 0;
}

}  // namespace pvw
