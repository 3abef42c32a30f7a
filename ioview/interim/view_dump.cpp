#include "ioview/interim/view_dump.h"

#include <cstdint>

#include "host/host_ptr.h"
#include "host/workspace_services.h"
#include "ioview/interim/page_rows.h"
#include "ioview/interim/text_dump.h"
#include "model/io_data.h"
#include "model/io_data_file.h"
#include "platform/base/resources.h"
#include "resources/ids.h"
#include "target/debugger_binding.h"

namespace ioview::interim {

namespace {

constexpr std::size_t kPieceBytes = 1u << 16;

// The time in which the host's target counts as connected.
class TargetConnection {
 public:
  explicit TargetConnection(pvw::IQComponentHost& host) : host_(host) {
    pvw::BindDebuggerFunctions(&host_, 1);
  }
  TargetConnection(const TargetConnection&) = delete;
  TargetConnection& operator=(const TargetConnection&) = delete;
  ~TargetConnection() { pvw::UnbindDebuggerFunctions(&host_); }

 private:
  pvw::IQComponentHost& host_;
};

std::uint32_t DeviceBase(pvw::IQComponentHost& host) {
  std::uint32_t base = 0;
  auto* device = pvw::GetService<pvw::IQDeviceInfo>(&host, pvw::IID_IQDeviceInfo);
  if (device != nullptr && platform::Failed(device->GetBaseAddress(&base))) base = 0;
  return base;
}

void WriteRows(const PageRows& page, const std::function<void(std::string_view)>& write) {
  std::string piece;
  AppendHeader(piece,
               {platform::LoadString(pvw::IDS_COLUMN_NAME), platform::LoadString(pvw::IDS_COLUMN_ADDRESS),
                platform::LoadString(pvw::IDS_COLUMN_VALUE), platform::LoadString(pvw::IDS_COLUMN_ACCESS)});
  for (PageRows::Step step = page.FirstShown(); step.row != PageRows::kRoot; step = page.NextShown(step)) {
    const pvw::CIORec& record = page.Record(step.row);
    RowText row{step.level, page.HasChildren(step.row), page.IsOpen(step.row), {record.GetName()}};
    if (!record.IsMissing()) {
      row.cells[1] = record.GetAddressText(0);
      row.cells[2] = record.GetValueText();
      row.cells[3] = record.GetAccessText();
    }
    AppendRow(piece, row);
    if (piece.size() < kPieceBytes) continue;
    write(piece);
    piece.clear();
  }
  write(piece);
}

}  // namespace

void WriteViewDump(pvw::IQComponentHost& host, const DumpRequest& request,
                   const std::function<void(std::string_view)>& write) {
  const TargetConnection connection(host);
  pvw::CIODataFile file;
  pvw::CIOData data;
  file.Open(request.path, DeviceBase(host));
  data.SetHost(&host);
  data.ParseSelection(request.selection);
  data.LoadModules(&file);
  data.ApplySelection();

  // Both pages are there before the first row opens, and share the records.
  auto* target = pvw::GetService<pvw::IQDebugger>(&host, pvw::IID_IQDebugger);
  PageRows all(Page::kAll, file, data, target);
  PageRows selected(Page::kSelected, file, data, target);
  all.Fill();
  selected.Fill();

  PageRows& page = request.page == Page::kAll ? all : selected;
  page.Open(request.open);
  WriteRows(page, write);
}

}  // namespace ioview::interim
