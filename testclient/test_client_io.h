// The component's client of the host's test framework: gives the values of chosen registers as one text, and
// compares such texts with each other and with the target.
//
// It reads the view's definition file and the same target, but into a tree of its own: always at the file's
// own base, and with nothing of the view's selection. A message that a faulty file shows, or a dialog, lets
// the host do anything meanwhile, disconnect included: then the operation that was under way ends without
// touching the client.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/component_host.h"
#include "host/test_client.h"
#include "testclient/comparison.h"
#include "testclient/test_data_text.h"
#include "view/pane_frame.h"

namespace pvw {

class CTestClientIO final : public IQTestClient, public IQClientDetails, public IQEnhancedClient {
 public:
  // Registers at the host for as long as it lives. Nothing is owned. The frame has the path of the
  // definition file and its time stamp; `defaultPath` is the path when the frame has none.
  CTestClientIO(IQComponentHost* host, IQTestComponentGroup* group, CPaneFrame* frame,
                std::string defaultPath);
  CTestClientIO(const CTestClientIO&) = delete;
  CTestClientIO& operator=(const CTestClientIO&) = delete;
  ~CTestClientIO() override;

  // One answer for all faces.
  platform::Status QueryInterface(const platform::GUID* iid, void** out) override;
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }

  platform::Status GetClientInfo(platform::BSTR* name, platform::GUID* client_id,
                                 IQTestComponentGroup** group, std::uint32_t* kind,
                                 platform::BSTR* version) override;
  platform::Status GetTestData(platform::BSTR* text) override;
  platform::Status SetTestDataChecked(platform::BSTR text, std::uint32_t* result) override;
  platform::Status CompareWithTarget(platform::BSTR text, platform::BSTR* summary, platform::BSTR* detail,
                                     std::uint32_t* status) override;
  platform::Status CompareTexts(platform::BSTR text1, platform::BSTR text2, platform::BSTR* summary,
                                platform::BSTR* detail, std::uint32_t* status) override;
  platform::Status EditDetails() override;
  platform::Status FormatResult(platform::BSTR text, std::uint32_t kind, platform::BSTR* out) override;
  platform::Status SetTestData(platform::BSTR text) override;
  platform::Status Query12(Ignored) override { return 1; }
  platform::Status Query13(Ignored) override { return 0; }
  platform::Status Query14(Ignored, Ignored) override { return 1; }
  platform::Status CompareWithTarget2(platform::BSTR text, Ignored, platform::BSTR* summary,
                                      platform::BSTR* detail, std::uint32_t* status) override;
  platform::Status CompareTexts2(platform::BSTR text1, Ignored, platform::BSTR text2, Ignored,
                                 platform::BSTR* summary, platform::BSTR* detail,
                                 std::uint32_t* status) override;
  platform::Status Query17(Ignored) override { return 1; }

  platform::Status GetClientName(platform::BSTR* name) override;
  platform::Status GetClientDescription(platform::BSTR* text) override;
  platform::Status Query6() override { return 1; }
  platform::Status Query7() override { return 1; }

  // E_FAIL when the host has no such text.
  platform::Status GetPlatformText(platform::BSTR* text) override;
  platform::Status Query5() override { return 0; }

 private:
  struct Registers;
  // Expires with the client. An operation makes one before whatever may show something, and asks it behind.
  using Life = std::weak_ptr<const bool>;

  // Makes the tree hold the present file. Of a file that isn't there the user is asked for another one; when
  // he gives none, the tree is empty.
  void LoadFile();
  // Whether the tree has the file of that path, and the frame knows of no later state of it.
  bool HasFile(const std::string& path) const;
  // What the user gives in place of the file that isn't there; nothing when he gives none.
  std::optional<std::string> AskForFile(const std::string& path);

  void TakeTestData(const TestData& data);
  // Reads the registers under test that the file has, in their order. None while another operation, in whose
  // message or dialog the host calls, works on the tree.
  CompareEntries Capture();
  std::string DeviceName() const;

  IQComponentHost* const m_pHost;
  IQTestComponentGroup* const m_pGroup;
  CPaneFrame* const m_pFrame;
  const std::string m_defaultPath;

  const std::shared_ptr<const bool> m_life = std::make_shared<const bool>(true);
  const std::shared_ptr<Registers> m_registers;  // outlives the client while an operation works on it
  ComparedRegisters m_compared;
  bool m_bIgnoreAddress = false;
};

}  // namespace pvw
