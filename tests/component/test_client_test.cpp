// The test client as the host's test framework finds it: through the component's exports.

#include <gmock/gmock.h>

#include "host/test_client.h"
#include "platform/gui/dialog.h"
#include "platform/headless/user.h"
#include "tests/component/component_world.h"

namespace pvw {
namespace {

using platform::ScopedBstr;
using testing::ElementsAre;

class TestClientTest : public test::ConnectedTest {
 protected:
  IQTestClient* Client() { return static_cast<IQTestClient*>(world.host.Registered(IID_IQTestClient)); }
  std::string Captured() {
    ScopedBstr text;
    EXPECT_EQ(Client()->GetTestData(text.Receive()), 0);
    return text.Text();
  }
};

TEST_F(TestClientTest, SaysWhatItIs) {
  ScopedBstr name, version, group_name, text;
  platform::GUID id{};
  IQTestComponentGroup* group = nullptr;
  std::uint32_t kind = 0;
  EXPECT_EQ(Client()->GetClientInfo(name.Receive(), &id, &group, &kind, version.Receive()), 0);
  EXPECT_EQ(name.Text(), "IO");
  EXPECT_EQ(platform::GuidText(id), "{385BE09B-CBD1-4D73-81FF-408BF4D12307}");
  EXPECT_EQ(group, instance.Face<IQTestComponentGroup>(IID_IQTestComponentGroup));
  EXPECT_EQ(kind, 17u);
  EXPECT_EQ(version.Text(), "1.0");
  EXPECT_THAT((std::vector{Client()->Query12(0), Client()->Query13(0), Client()->Query14(0, 0),
                           Client()->Query17(0)}),
              ElementsAre(1, 0, 1, 1));

  const auto face = [&](const platform::GUID& iid) {
    void* out = &kind;
    const bool found = Client()->QueryInterface(&iid, &out) == 0;
    EXPECT_EQ(found, out != nullptr);
    return out;
  };
  EXPECT_THAT((std::vector{face(IID_IUnknown), face(IID_IQTestClient), face(IID_IQTestComponentGroup)}),
              ElementsAre(Client(), Client(), nullptr));
  auto* const details = static_cast<IQClientDetails*>(face(IID_IQClientDetails));
  EXPECT_EQ(details->GetClientName(text.Receive()), 0);
  EXPECT_EQ(text.Text(), "IO test client");
  EXPECT_EQ(details->GetClientDescription(text.Receive()), 0);
  EXPECT_EQ(text.Text(), "Compares IO registers");
  EXPECT_EQ(details->Query6() + details->Query7(), 2);

  auto* const enhanced = static_cast<IQEnhancedClient*>(face(IID_IQEnhancedClient));
  EXPECT_EQ(enhanced->GetPlatformText(text.Receive()) + enhanced->Query5(), 0);
  EXPECT_EQ(text.Text(), "Simulator");
  world.host.FailNext("GetPlatformText", 5 - 0x7FFFFFFF);
  EXPECT_EQ(enhanced->GetPlatformText(text.Receive()), platform::E_FAIL);
  world.host.Lack(IID_IQWorkspaceInfo);
  EXPECT_EQ(enhanced->GetPlatformText(text.Receive()), platform::E_FAIL);
}

TEST_F(TestClientTest, CapturesAndComparesApartFromTheView) {
  const ScopedBstr chosen("1.0&&0&2&TCNT x 0 0&PDATA x 0 0");
  std::uint32_t result = 77;
  EXPECT_EQ(Client()->SetTestDataChecked(chosen.Get(), &result), 0);
  EXPECT_EQ(result, 0u);
  const ScopedBstr before(Captured());
  EXPECT_EQ(before.Text(), "1.0&device&0&2&TCNT H'00FF0010 2 1011&PDATA H'00FF0000 1 0")
      << "the device's own file, which no view has opened";

  world.OpenView();
  world.Expand(0, 0);
  world.host.Poke(0xFF0000, {0xA5});
  ScopedBstr summary, detail, words;
  std::uint32_t status = 77;
  EXPECT_EQ(Client()->CompareWithTarget(before.Get(), summary.Receive(), detail.Receive(), &status), 0);
  EXPECT_EQ(status, 1u);
  EXPECT_EQ(summary.Text(), "0 0 PDATA");
  for (const std::uint32_t kind : {64u, 128u, 0u}) {
    const bool has_words = kind == 0;
    EXPECT_EQ(Client()->FormatResult(detail.Get(), kind, words.Receive()), has_words ? 0 : 1) << kind;
    EXPECT_EQ(words.Get() != nullptr, has_words);
  }
  EXPECT_EQ(words.Text(), "Failed at PDATA, register value is different: Src = 00, Dest = A5");
  EXPECT_EQ(Client()->FormatResult(nullptr, 0, words.Receive()), 1);
  EXPECT_THAT(world.Rows(0), ElementsAre("PORT", "PDATA 00", "PDIR 01", "TIMER")) << "as it was shown";

  display.Give(platform::DialogAnswer{{[](platform::CDialog& dialog) {
    EXPECT_EQ(dialog.GetDlgItem(13004)->GetText(), "PDATA, TCNT");
    platform::user::PressOk(dialog);
  }}});
  EXPECT_EQ(Client()->EditDetails(), 0);
  EXPECT_EQ(Captured(), "1.0&device&0&2&PDATA H'00FF0000 1 a5&TCNT H'00FF0010 2 1011");
  EXPECT_THAT(user, ElementsAre("dialog: Edit Test IO registers"));
}

TEST_F(TestClientTest, LivesFromConnectToDisconnect) {
  EXPECT_EQ(instance.Disconnect(), platform::S_OK);
  EXPECT_EQ(Client(), nullptr);

  // A default name that ends in any other way than ".io" has that appended.
  world.dir.Write("x.IO.io", "[Modules]\nModule1=M\n[M]\nOTHER=10 B A\n");
  world.host.device_path = world.dir.Path("x.IO");
  EXPECT_EQ(instance.Connect(world.host), platform::S_OK);
  const ScopedBstr chosen("1.0&&0&1&OTHER x 0 0");
  EXPECT_EQ(Client()->SetTestData(chosen.Get()), 0);
  EXPECT_EQ(Captured(), "1.0&x.IO&0&1&OTHER H'00000010 1 10");

  display.Give(platform::DialogAnswer{{[&](platform::CDialog& dialog) {
    instance.Destroy();
    dialog.EndDialog(platform::IDOK);
  }}});
  EXPECT_EQ(Client()->EditDetails(), 0) << "the instance goes while the dialog is open";
  EXPECT_EQ(Client(), nullptr);
}

}  // namespace
}  // namespace pvw
