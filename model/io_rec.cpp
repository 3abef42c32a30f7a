#include "model/io_rec.h"

#include <iterator>

#include "host/host_ptr.h"
#include "host/ids.h"
#include "model/edit_hook.h"
#include "model/number_text.h"
#include "platform/base/message_box.h"
#include "platform/base/resources.h"
#include "resources/ids.h"
#include "support/message_text.h"

namespace pvw {

CIORec::CIORec(std::string name, IQComponentHost* host)
    : m_pTop(this),
      m_pParent(nullptr),
      m_pNumberFormat(pvw::GetService<IQNumberFormat>(host, IID_IQNumberFormat)),
      m_pHost(host),
      m_name(std::move(name)) {
  // About what any kind of record takes.
  constexpr std::size_t kRecordBytes = 320;
  Charge(kRecordBytes + m_name.size());
}

CIORec::CIORec(std::string name, CIORec* parent)
    : CIORec(std::move(name), parent != nullptr ? parent->m_pHost : nullptr) {
  if (parent == nullptr) return;
  m_pParent = parent;
  m_pTop = parent->m_pTop;
}

CIORec::~CIORec() {
  Watch<CIORec>::OnGone(this);
  s_bytes -= m_chargedBytes;
  // Records that are destroyed here have given their children up first, so that no depth of them nests.
  for (Records pending = std::move(m_children); !pending.empty();) {
    const std::unique_ptr<CIORec> record = std::move(pending.back());
    pending.pop_back();
    std::move(record->m_children.begin(), record->m_children.end(), std::back_inserter(pending));
    record->m_children.clear();
  }
}

void CIORec::Charge(std::size_t bytes) {
  m_chargedBytes += static_cast<std::uint32_t>(bytes);
  s_bytes += bytes;
}

void CIORec::Relocate(std::uint32_t delta) {
  for (const auto& child : m_children) child->Relocate(delta);
}

void CIORec::UpdateEnabled() {
  const bool enabled = m_pTop->IsConditionMet();
  m_bEnabled = enabled;
  m_pTop->m_bEnabled = enabled;
  // Up to the first record that agrees: a chain can be long, and is updated from each of its records. One
  // further up can be behind until its own update; the value comes from the top, so that misleads nobody.
  for (CIORec* record = m_pParent; record != nullptr && record->m_bEnabled != enabled;
       record = record->m_pParent) {
    record->m_bEnabled = enabled;
  }
}

bool CIORec::SetValue(IQDebugger* /*target*/, std::uint64_t /*value*/) {
  return false;
}

bool CIORec::EditValue(IQDebugger* /*target*/, IQNumberFormat* /*numberFormat*/, IQComponentHost* /*host*/) {
  return false;
}

bool CIORec::LoadChildren(CIODataFile* /*file*/, IQDebugger* /*target*/) {
  return true;
}

platform::Status CIORec::ReadValue(IQDebugger* target) {
  const Watch<CIORec> watch(this);
  for (std::size_t i = 0; i < m_children.size(); ++i) {
    if (i + kPrefetchSteps < m_children.size()) m_children[i + kPrefetchSteps]->Prefetch();
    if (m_children[i]->m_bMissing) continue;
    m_children[i]->ReadValue(target);
    if (!watch.Stands()) return platform::E_FAIL;
  }
  return platform::S_OK;
}

platform::Status CIORec::WriteValue(IQDebugger* target) {
  const Watch<CIORec> watch(this);
  for (std::size_t i = 0; i < m_children.size(); ++i) {
    if (m_children[i]->m_bMissing) continue;
    m_children[i]->WriteValue(target);
    if (!watch.Stands()) return platform::E_FAIL;
  }
  return platform::S_OK;
}

const std::string& CIORec::GetName() const {
  static const std::string kNoName;
  return kNoName;
}

std::string CIORec::GetAddressText(std::uint32_t /*offset*/) const {
  return {};
}

std::string CIORec::GetValueText() const {
  return {};
}

std::string CIORec::GetAccessText() const {
  return {};
}

void CIORec::SetExpanded(bool expanded) {
  m_expandCount += expanded ? 1 : -1;
  m_bExpanded = m_expandCount >= 1;
}

template <typename Visit>
void CIORec::ForAll(Visit visit) {
  std::vector<CIORec*> pending{this};
  while (!pending.empty()) {
    CIORec* const record = pending.back();
    pending.pop_back();
    visit(*record);
    for (const auto& child : record->m_children) pending.push_back(child.get());
  }
}

void CIORec::MarkMissing() {
  ForAll([](CIORec& record) { record.SetMissing(true); });
}

void CIORec::LeaveForSelection() {
  Watch<CIORec>::OnGone(this);
  m_bChildrenKnown = true;
  m_expandCount = 0;
  m_bExpanded = false;
}

void CIORec::AddChild(std::unique_ptr<CIORec> child) {
  m_children.push_back(std::move(child));
}

std::unique_ptr<CIORec> CIORec::RemoveChild(std::size_t index) {
  if (index >= m_children.size()) return nullptr;
  std::unique_ptr<CIORec> child = std::move(m_children[index]);
  m_children.erase(m_children.begin() + static_cast<std::ptrdiff_t>(index));
  return child;
}

void CIORec::AdoptMissing(std::unique_ptr<CIORec> child) {
  CIORec& adopted = *child;
  m_children.push_back(std::move(child));
  adopted.m_pParent = this;
  adopted.OnAdopted();
  adopted.ForAll([this](CIORec& record) {
    record.m_bMissing = true;
    record.m_pTop = m_pTop;
  });
}

std::string CIORec::GetNumberText(std::uint64_t value, std::uint32_t bits) const {
  return NumberText(m_pNumberFormat, value, bits);
}

void CIORec::ShowTooBig(std::uint64_t limit) const {
  constexpr std::uint32_t kAnyLimit = 64;
  platform::MessageBox(
      FormatMessageText(platform::LoadString(IDS_VALUE_TOO_BIG), GetNumberText(limit, kAnyLimit)),
      platform::MB_ICONEXCLAMATION);
}

bool CIORec::RunEditDialog(IQNumberFormat* numberFormat, IQComponentHost* host, std::uint64_t& value,
                           std::uint32_t bits, const std::string& addressText) {
  // The address goes into the last place first: a name may look like a place itself.
  std::string caption = platform::LoadString(IDS_EDIT_CAPTION);
  const std::size_t place = caption.rfind("%s");
  if (place != std::string::npos) caption.replace(place, 2, addressText);
  caption = FormatMessageText(std::move(caption), GetName());

  // The dialog's message loop lets the host go on, which may load another definition meanwhile.
  const Watch<CIORec> watch(this);
  return RunEditValueHook(numberFormat, host, value, bits, caption) && watch.Stands();
}

}  // namespace pvw
