#include "testclient/test_client_io.h"

#include <optional>
#include <utility>
#include <vector>

#include "component/services/module_state.h"
#include "host/host_ptr.h"
#include "host/ids.h"
#include "model/io_data.h"
#include "model/io_data_file.h"
#include "platform/base/bstr.h"
#include "platform/base/files.h"
#include "platform/base/resources.h"
#include "platform/gui/common_dialogs.h"
#include "platform/gui/messages.h"
#include "resources/ids.h"
#include "support/hex_text.h"
#include "support/path_text.h"
#include "support/placeholder_expander.h"
#include "testclient/dlg_edit_test_details.h"
#include "testclient/result_text.h"
#include "view/dlg_set_io_file.h"
#include "view/host_dialog.h"

namespace pvw {

using platform::BSTR;
using platform::BstrText;
using platform::NewBstr;
using platform::S_OK;
using platform::Status;

namespace {

constexpr const char* kName = "IO";
constexpr const char* kVersion = "1.0";
constexpr std::uint32_t kKind = 17;
constexpr const char* kClientName = "IO test client";
constexpr const char* kNoDevice = "undefined CPU";

// Kinds of results that have no words.
constexpr std::uint32_t kWordless1 = 64, kWordless2 = 128;

// Results of FormatResult.
constexpr Status kFormatted = 0, kNotFormatted = 1;

// What the Value column shows, as digits: a decimal number of 4 bytes has blanks in front.
std::string ValueDigits(const CIORec& record) {
  std::string text = record.GetValueText();
  text.erase(0, text.find_first_not_of(' '));
  return text;
}

CompareEntry EntryOf(const CIORec& record) {
  return {record.GetName(), record.GetAddressText(0), ParseHex(ValueDigits(record)),
          static_cast<std::uint32_t>(record.GetValueText().size() / 2)};
}

Status Give(const Comparison& comparison, BSTR* summary, BSTR* detail, std::uint32_t* status) {
  *status = comparison.status;
  if (comparison.status == 0) return S_OK;
  *summary = NewBstr(comparison.summary);
  *detail = NewBstr(comparison.detail);
  return S_OK;
}

}  // namespace

// The client's own tree, and its registers by display name.
struct CTestClientIO::Registers {
  // While one lives, the registers stay as they are, but for the operation that made it.
  class Use {
   public:
    explicit Use(std::shared_ptr<Registers> registers) : m_registers(std::move(registers)) {
      m_registers->m_bInUse = true;
    }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;
    ~Use() { m_registers->m_bInUse = false; }

   private:
    const std::shared_ptr<Registers> m_registers;
  };

  void Close();
  void Open(const std::string& path, IQComponentHost* host);
  void AddRegisters(const CIORec& module);
  // By value: the host is asked for each address, and may hand over another text or end the client meanwhile.
  static std::vector<CDlgEditTestDetails::RegInfo> DetailsOf(std::shared_ptr<Registers> registers,
                                                             ComparedRegisters compared);

  CIOData m_data;
  CIODataFile m_file;
  ByName<CIORec*> m_known;
  bool m_bInUse = false;
};

void CTestClientIO::Registers::Close() {
  m_known.clear();
  m_data.DeleteModules();
  m_file.Close();
}

void CTestClientIO::Registers::Open(const std::string& path, IQComponentHost* host) {
  m_file.Open(path, 0);
  m_data.SetHost(host);
  // A fault of the file has been told to the user, and what could be read counts.
  static_cast<void>(m_data.LoadModules(&m_file));
  const platform::WaitCursor wait;
  const CIODataFile::Reading reading(m_file);
  std::vector<const CIORec*> loaded;
  std::size_t count = 0;
  for (const auto& module : m_data.GetModules()) {
    if (module->AreChildrenKnown() || !module->LoadChildren(&m_file, nullptr)) continue;
    loaded.push_back(module.get());
    count += module->GetChildren().size();
  }
  m_known.reserve(count);
  for (const CIORec* const module : loaded) AddRegisters(*module);
}

// Bit fields come into being when a row opens, which nothing here does.
void CTestClientIO::Registers::AddRegisters(const CIORec& module) {
  for (const auto& record : module.GetChildren()) {
    if (record->IsEditable()) m_known.insert_or_assign(record->GetName(), record.get());
  }
}

// The copies are the point.
// NOLINTBEGIN(performance-unnecessary-value-param)
std::vector<CDlgEditTestDetails::RegInfo> CTestClientIO::Registers::DetailsOf(
    std::shared_ptr<Registers> registers, ComparedRegisters compared) {
  std::optional<Use> use;
  if (!registers->m_bInUse) use.emplace(registers);
  std::vector<CDlgEditTestDetails::RegInfo> details;
  details.reserve(registers->m_known.size());
  for (const auto& [name, record] : registers->m_known) {
    details.push_back({record->GetName(), record->GetAddressText(0),
                       static_cast<std::uint32_t>(record->GetValueText().size() / 2),
                       compared.Contains(name)});
  }
  return details;
}
// NOLINTEND(performance-unnecessary-value-param)

// Lifetime ------------------------------------------------------------------------------------------------

CTestClientIO::CTestClientIO(IQComponentHost* host, IQTestComponentGroup* group, CPaneFrame* frame,
                             std::string defaultPath)
    : m_pHost(host),
      m_pGroup(group),
      m_pFrame(frame),
      m_defaultPath(std::move(defaultPath)),
      m_registers(std::make_shared<Registers>()) {
  m_pHost->AddClient(&IID_IQTestClient, static_cast<IQTestClient*>(this));
}

CTestClientIO::~CTestClientIO() {
  m_pHost->RemoveClient(&IID_IQTestClient, static_cast<IQTestClient*>(this));
}

Status CTestClientIO::QueryInterface(const platform::GUID* iid, void** out) {
  *out = nullptr;
  if (*iid == IID_IUnknown || *iid == IID_IQTestClient) {
    *out = static_cast<IQTestClient*>(this);
  } else if (*iid == IID_IQClientDetails) {
    *out = static_cast<IQClientDetails*>(this);
  } else if (*iid == IID_IQEnhancedClient) {
    *out = static_cast<IQEnhancedClient*>(this);
  }
  return *out != nullptr ? S_OK : platform::E_NOINTERFACE;
}

// What the client is --------------------------------------------------------------------------------------

Status CTestClientIO::GetClientInfo(BSTR* name, platform::GUID* client_id, IQTestComponentGroup** group,
                                    std::uint32_t* kind, BSTR* version) {
  *name = NewBstr(kName);
  *client_id = ID_TestClientIO;
  *group = m_pGroup;
  *kind = kKind;
  *version = NewBstr(kVersion);
  return S_OK;
}

Status CTestClientIO::GetClientName(BSTR* name) {
  *name = NewBstr(kClientName);
  return S_OK;
}

Status CTestClientIO::GetClientDescription(BSTR* text) {
  const CModuleState state;
  *text = NewBstr(platform::LoadString(IDS_TEST_DESCRIPTION));
  return S_OK;
}

Status CTestClientIO::GetPlatformText(BSTR* text) {
  const CHostPtr<IQWorkspaceInfo> info(m_pHost, IID_IQWorkspaceInfo);
  platform::ScopedBstr received;
  if (!info || platform::Failed(info->GetPlatformText(received.Receive()))) return platform::E_FAIL;
  *text = received.Release();
  return S_OK;
}

// The file ------------------------------------------------------------------------------------------------

void CTestClientIO::LoadFile() {
  const std::shared_ptr<Registers> registers = m_registers;
  if (registers->m_bInUse) return;
  const Registers::Use use(registers);
  const CModuleState state;
  IQComponentHost* const host = m_pHost;

  std::string path = m_pFrame->GetIOFilePath();
  if (path.empty()) path = m_defaultPath;
  std::string expanded = CPlaceholderExpander(host).Expand(path);
  if (HasFile(expanded)) return;
  if (registers->m_file.IsOpen()) registers->Close();
  if (FileExistsAt(expanded, nullptr)) {
    if (m_pFrame->GetIOFilePath().empty()) m_pFrame->SetIOFilePath(path);
  } else {
    const auto given = AskForFile(path);
    if (!given) return;
    expanded = CPlaceholderExpander(host).Expand(*given);
  }
  registers->Open(expanded, host);
}

bool CTestClientIO::HasFile(const std::string& path) const {
  const auto written = platform::GetLastWriteTime(path);
  const bool same = !written || *written == m_pFrame->GetIOFileWriteTime();
  return same && m_registers->m_file.IsOpen() && path == m_registers->m_file.GetPath();
}

std::optional<std::string> CTestClientIO::AskForFile(const std::string& path) {
  const Life life = m_life;
  CDlgSetIOFile dialog(path, m_pHost, nullptr);
  dialog.SetSavePath(m_pFrame->GetSavePathName());
  if (RunHostDialog(dialog, m_pHost) != static_cast<int>(platform::IDOK) || life.expired())
    return std::nullopt;
  m_pFrame->SetIOFilePath(dialog.GetPath());
  m_pFrame->SetSavePathName(dialog.GetSavePath());
  m_pFrame->SetSessionDirty();
  return dialog.GetPath();
}

// Snapshots -----------------------------------------------------------------------------------------------

void CTestClientIO::TakeTestData(const TestData& data) {
  ComparedRegisters compared;
  for (const CompareEntry& entry : data.registers) compared.Enter(entry);
  m_compared = std::move(compared);
  if (data.ignoreAddress) m_bIgnoreAddress = *data.ignoreAddress;
  if (!m_compared.IsEmpty()) LoadFile();
}

Status CTestClientIO::SetTestData(BSTR text) {
  TakeTestData(ParseTestData(BstrText(text)));
  return S_OK;
}

Status CTestClientIO::SetTestDataChecked(BSTR text, std::uint32_t* result) {
  SetTestData(text);
  *result = 0;
  return S_OK;
}

CompareEntries CTestClientIO::Capture() {
  const std::shared_ptr<Registers> registers = m_registers;
  if (m_compared.IsEmpty() || registers->m_bInUse) return {};
  const Life life = m_life;
  LoadFile();
  if (life.expired()) return {};
  const Registers::Use use(registers);
  auto* const target = GetService<IQDebugger>(m_pHost, IID_IQDebugger);
  // A copy: while the target is read, the host can hand over another text.
  const CompareEntries compared = m_compared.GetEntries();
  CompareEntries captured;
  for (const CompareEntry& entry : compared) {
    const auto known = registers->m_known.find(entry.name);
    if (known == registers->m_known.end()) continue;
    // A failed read is silent: the last value counts.
    static_cast<void>(known->second->ReadValue(target));
    captured.push_back(EntryOf(*known->second));
  }
  return captured;
}

std::string CTestClientIO::DeviceName() const {
  const std::string name = GetFileLeafOf(m_pFrame->GetIOFilePath());
  return !name.empty() ? name : kNoDevice;
}

Status CTestClientIO::GetTestData(BSTR* text) {
  const Life life = m_life;
  const CompareEntries captured = Capture();
  if (life.expired()) return S_OK;
  *text = NewBstr(MakeTestData(DeviceName(), m_bIgnoreAddress, captured));
  for (const CompareEntry& entry : captured) m_compared.SetValue(entry.name, entry.value);
  return S_OK;
}

Status CTestClientIO::EditDetails() {
  const CModuleState state;
  const Life life = m_life;
  LoadFile();
  if (life.expired()) return S_OK;
  std::vector<CDlgEditTestDetails::RegInfo> rows = Registers::DetailsOf(m_registers, m_compared);
  if (life.expired()) return S_OK;
  CDlgEditTestDetails dialog(std::move(rows));
  dialog.m_bIgnoreAddress = m_bIgnoreAddress;
  if (dialog.DoModal() != static_cast<int>(platform::IDOK) || life.expired()) return S_OK;
  m_compared = dialog.TakeCompared();
  m_bIgnoreAddress = dialog.m_bIgnoreAddress;
  return S_OK;
}

// Comparisons ---------------------------------------------------------------------------------------------

Status CTestClientIO::CompareWithTarget(BSTR text, BSTR* summary, BSTR* detail, std::uint32_t* status) {
  const Life life = m_life;
  *status = 0;
  const TestData data = ParseTestData(BstrText(text));
  TakeTestData(data);
  if (life.expired()) return S_OK;
  const CompareEntries captured = Capture();
  if (life.expired()) return S_OK;
  return Give(CompareRegisters(data.registers, captured, m_bIgnoreAddress), summary, detail, status);
}

Status CTestClientIO::CompareTexts(BSTR text1, BSTR text2, BSTR* summary, BSTR* detail,
                                   std::uint32_t* status) {
  const Life life = m_life;
  *status = 0;
  const TestData first = ParseTestData(BstrText(text1));
  const TestData second = ParseTestData(BstrText(text2));
  TakeTestData(first);
  if (life.expired()) return S_OK;
  return Give(CompareRegisters(first.registers, second.registers, m_bIgnoreAddress), summary, detail, status);
}

Status CTestClientIO::CompareWithTarget2(BSTR text, Ignored, BSTR* summary, BSTR* detail,
                                         std::uint32_t* status) {
  return CompareWithTarget(text, summary, detail, status);
}

Status CTestClientIO::CompareTexts2(BSTR text1, Ignored, BSTR text2, Ignored, BSTR* summary, BSTR* detail,
                                    std::uint32_t* status) {
  return CompareTexts(text1, text2, summary, detail, status);
}

Status CTestClientIO::FormatResult(BSTR text, std::uint32_t kind, BSTR* out) {
  if (kind == kWordless1 || kind == kWordless2) return kNotFormatted;
  const std::string result = BstrText(text);
  if (result.empty()) return kNotFormatted;
  const CModuleState state;
  *out = NewBstr(WordsOfResult(result));
  return kFormatted;
}

}  // namespace pvw
