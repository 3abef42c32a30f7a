// The host's test framework: captures and comparisons of registers.

#include <string>

#include "host/test_client.h"
#include "ioview/script/command_table.h"
#include "platform/base/bstr.h"
#include "platform/base/guid.h"

namespace ioview {

namespace {

using platform::ScopedBstr;

pvw::IQTestClient& TestClient(ScriptRun& run) {
  auto* const client = static_cast<pvw::IQTestClient*>(run.Host().root.Client(pvw::IID_IQTestClient));
  if (client == nullptr) throw ScriptError("the component has no test client");
  return *client;
}

template <typename Interface>
Interface& FaceOf(pvw::IQTestClient& client, const platform::GUID& id) {
  void* face = nullptr;
  client.QueryInterface(&id, &face);
  if (face == nullptr) throw ScriptError("the test client lacks an interface");
  return *static_cast<Interface*>(face);
}

std::string OnlyText(Arguments& arguments) {
  std::string text = arguments.Text();
  arguments.End();
  return text;
}

struct Comparison {
  ScopedBstr summary;
  ScopedBstr detail;
  std::uint32_t status = 0;
};

void Print(ScriptRun& run, const Comparison& comparison) {
  run.out.Line("status " + std::to_string(comparison.status));
  if (comparison.summary.Get() != nullptr) run.out.Line("summary: " + comparison.summary.Text());
  if (comparison.detail.Get() != nullptr) run.out.Line("detail: " + comparison.detail.Text());
}

void Capture(ScriptRun& run, Arguments& arguments) {
  arguments.End();
  ScopedBstr text;
  TestClient(run).GetTestData(text.Receive());
  run.out.Line(text.Text());
}

void Set(ScriptRun& run, Arguments& arguments) {
  const ScopedBstr text(OnlyText(arguments));
  TestClient(run).SetTestData(text.Get());
}

void CompareTarget(ScriptRun& run, Arguments& arguments) {
  const ScopedBstr text(OnlyText(arguments));
  Comparison result;
  TestClient(run).CompareWithTarget(text.Get(), result.summary.Receive(), result.detail.Receive(),
                                    &result.status);
  Print(run, result);
}

void Compare(ScriptRun& run, Arguments& arguments) {
  const ScopedBstr first(arguments.Text());
  const ScopedBstr second(OnlyText(arguments));
  Comparison result;
  TestClient(run).CompareTexts(first.Get(), second.Get(), result.summary.Receive(), result.detail.Receive(),
                               &result.status);
  Print(run, result);
}

void Details(ScriptRun& run, Arguments& arguments) {
  arguments.End();
  TestClient(run).EditDetails();
}

void Words(ScriptRun& run, Arguments& arguments) {
  const ScopedBstr text(arguments.Text());
  const std::uint32_t kind = arguments.HasMore() ? arguments.Number() : 0;
  arguments.End();
  ScopedBstr words;
  const platform::Status status = TestClient(run).FormatResult(text.Get(), kind, words.Receive());
  run.out.Line(status != 0 ? "status " + std::to_string(status) : words.Text());
}

void Info(ScriptRun& run, Arguments& arguments) {
  arguments.End();
  pvw::IQTestClient& client = TestClient(run);
  auto& details = FaceOf<pvw::IQClientDetails>(client, pvw::IID_IQClientDetails);
  auto& enhanced = FaceOf<pvw::IQEnhancedClient>(client, pvw::IID_IQEnhancedClient);
  ScopedBstr name, description, version, platform_text;
  platform::GUID id;
  pvw::IQTestComponentGroup* group = nullptr;
  std::uint32_t kind = 0;
  client.GetClientInfo(name.Receive(), &id, &group, &kind, version.Receive());
  details.GetClientDescription(description.Receive());
  enhanced.GetPlatformText(platform_text.Receive());
  run.out.Line("name: " + name.Text());
  run.out.Line("description: " + description.Text());
  run.out.Line("version: " + version.Text());
  run.out.Line("kind: " + std::to_string(kind));
  run.out.Line("id: " + platform::GuidText(id));
  run.out.Line("platform: " + platform_text.Text());
}

void Test(ScriptRun& run, Arguments& arguments) {
  using Verb = void (*)(ScriptRun&, Arguments&);
  const Verb verb = arguments.Choice<Verb>({{"capture", Capture},
                                            {"set", Set},
                                            {"compare-target", CompareTarget},
                                            {"compare", Compare},
                                            {"details", Details},
                                            {"words", Words},
                                            {"info", Info}});
  verb(run, arguments);
}

constexpr ScriptCommand kCommands[] = {
    {"test", "capture|details|info, set TEXT, compare-target TEXT, compare TEXT TEXT, or words TEXT [KIND]",
     Test},
};

}  // namespace

std::span<const ScriptCommand> TestClientCommands() {
  return kCommands;
}

}  // namespace ioview
