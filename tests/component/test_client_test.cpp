// The test client as the host's test framework finds it: through the component's exports.

#include <gmock/gmock.h>

#include "host/test_client.h"
#include "platform/gui/dialog.h"
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

TEST_F(TestClientTest, HasTheFacesThatTheFrameworkAsksFor) {
  ScopedBstr name, version, text;
  platform::GUID id{};
  IQTestComponentGroup* group = nullptr;
  std::uint32_t kind = 0;
  EXPECT_EQ(Client()->GetClientInfo(name.Receive(), &id, &group, &kind, version.Receive()), 0);
  EXPECT_EQ(group, instance.Face<IQTestComponentGroup>(IID_IQTestComponentGroup));
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
  EXPECT_EQ(details->GetClientName(text.Receive()) + details->Query6() + details->Query7(), 2);
  EXPECT_EQ(text.Text(), "IO test client");
  auto* const enhanced = static_cast<IQEnhancedClient*>(face(IID_IQEnhancedClient));
  EXPECT_EQ(enhanced->GetPlatformText(text.Receive()) + enhanced->Query5(), 0);
  world.host.FailNext("GetPlatformText", 5 - 0x7FFFFFFF);
  EXPECT_EQ(enhanced->GetPlatformText(text.Receive()), platform::E_FAIL);
  world.host.Lack(IID_IQWorkspaceInfo);
  EXPECT_EQ(enhanced->GetPlatformText(text.Receive()), platform::E_FAIL);
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
