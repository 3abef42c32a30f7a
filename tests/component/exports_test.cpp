// The component's file, its five functions, and the faces behind them.

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <set>
#include <sstream>

#include "tests/component/component_world.h"

namespace pvw {
namespace {

using platform::E_NOINTERFACE;
using platform::GUID;
using platform::S_OK;
using platform::Status;
using test::ComponentFile;
using test::Instance;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kFile = BINARY_DIR "/bin/PvwIO.dll";

std::vector<std::string> LinesOf(const std::string& command) {
  std::vector<std::string> lines;
  std::FILE* const pipe = ::popen(command.c_str(), "r");
  if (pipe == nullptr) return {"can't run " + command};
  char line[4096];
  while (std::fgets(line, sizeof line, pipe) != nullptr) {
    std::string text(line);
    while (!text.empty() && text.back() == '\n') text.pop_back();
    lines.push_back(text);
  }
  ::pclose(pipe);
  return lines;
}

TEST(ComponentFileTest, ShowsItsFiveNamesAndNothingElse) {
  std::vector<std::string> names;
  for (const std::string& line : LinesOf("nm -D --defined-only '" + kFile + "'")) {
    names.push_back(line.substr(line.rfind(' ') + 1));
  }
  std::ranges::sort(names);
  EXPECT_THAT(names, ElementsAre("CreateInstance", "DestroyInstance", "GetComponentVersion",
                                 "LibraryRegister2", "QueryInterface2"));
}

TEST(ComponentFileTest, NeedsThePlatformAndTheStandardLibraryAlone) {
  std::vector<std::string> other;
  bool platform_seen = false;
  for (const std::string& line : LinesOf("readelf -d '" + kFile + "'")) {
    if (line.find("(NEEDED)") == std::string::npos) continue;
    const std::string name = line.substr(line.find('[') + 1, line.find(']') - line.find('[') - 1);
    const std::string plain = name.substr(0, name.find(".so"));
    platform_seen |= plain == "libplatform";
    const std::set<std::string> allowed = {"libplatform", "libstdc++", "libgcc_s", "libm",
                                           "libc",        "libasan",   "libubsan", "ld-linux-x86-64"};
    if (!allowed.contains(plain)) other.push_back(name);
  }
  EXPECT_TRUE(platform_seen);
  EXPECT_THAT(other, IsEmpty());
}

TEST(ComponentFileTest, GoesWhenItsLastUserFreesIt) {
  const void* inside = nullptr;
  {
    const ComponentFile file;
    inside = reinterpret_cast<const void*>(file.CreateInstance);
    EXPECT_EQ(platform::ModuleOf(inside), file.module);
  }
  EXPECT_EQ(platform::ModuleOf(inside), nullptr);
}

class Registrar final : public IQLibraryRegistrar {
 public:
  Status QueryInterface(const GUID*, void**) override { return E_NOINTERFACE; }
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }
  Status RegisterLibrary(platform::BSTR name, std::uint32_t kind, std::uint32_t major, std::uint32_t minor,
                         const GUID* class_id) override {
    std::ostringstream line;
    line << platform::BstrText(name) << '|' << platform::SysStringLen(name) << ' ' << kind << ' ' << major
         << ' ' << minor << ' ' << platform::GuidText(*class_id);
    said = line.str();
    return platform::E_FAIL;
  }
  std::string said;
};

TEST(ComponentFileTest, TellsWhatItIsBeforeThereIsAnInstance) {
  const ComponentFile file;
  std::uint32_t major = 77, minor = 77;
  EXPECT_EQ(file.GetComponentVersion(&major, &minor), S_OK);
  EXPECT_EQ(major, 1u);
  EXPECT_EQ(minor, 0u);

  Registrar registrar;
  EXPECT_EQ(file.LibraryRegister2(&registrar), S_OK) << "the host's refusal isn't looked at";
  EXPECT_EQ(registrar.said, "Generic PVW IO|14 2 1 0 {80D58C53-E47D-11D3-8AF5-00AA0026624A}");
}

TEST(ComponentFileTest, KeepsAControlForEachHandle) {
  const ComponentFile file;
  int a = 0, b = 0;
  const auto ask = [&](void* handle, void** out) {
    return file.QueryInterface2(handle, &IID_IQComponent, out);
  };
  void *first = nullptr, *second = nullptr, *out = &a;
  EXPECT_EQ(ask(&a, &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr) << "an instance that isn't there";

  EXPECT_EQ(file.CreateInstance(&a), S_OK);
  EXPECT_EQ(file.CreateInstance(&b), S_OK);
  EXPECT_EQ(ask(&a, &first), S_OK);
  EXPECT_EQ(ask(&b, &second), S_OK);
  EXPECT_NE(first, second);

  EXPECT_EQ(file.DestroyInstance(&a), S_OK);
  EXPECT_EQ(file.DestroyInstance(&a), S_OK) << "there is none any more";
  EXPECT_EQ(ask(&a, &out), E_NOINTERFACE);
  EXPECT_EQ(ask(&b, &out), S_OK);
  EXPECT_EQ(out, second);

  EXPECT_EQ(file.CreateInstance(&b), S_OK) << "in place of the one that is there";
  EXPECT_EQ(ask(&b, &out), S_OK);
  EXPECT_EQ(file.DestroyInstance(&b), S_OK);
}

struct Id {
  const char* name;
  GUID id;
};
// All that the component implements somewhere, and one that it asks of its host.
const Id kIds[] = {{"IUnknown", IID_IUnknown},
                   {"IQRegistryClient", IID_IQRegistryClient},
                   {"IQComponent", IID_IQComponent},
                   {"CLSID_PvwIO", CLSID_PvwIO},
                   {"IQErrorReporter", IID_IQErrorReporter},
                   {"IQSteppingClient", IID_IQSteppingClient},
                   {"IQTestComponentGroup", IID_IQTestComponentGroup},
                   {"IQUpdateWindowClient", IID_IQUpdateWindowClient},
                   {"IQWorkSpaceClient", IID_IQWorkSpaceClient},
                   {"IQWorkSpaceClient2", IID_IQWorkSpaceClient2},
                   {"IQFormatViewClient", IID_IQFormatViewClient},
                   {"IQFormatViewClient2", IID_IQFormatViewClient2},
                   {"IQIOServer", IID_IQIOServer},
                   {"IQTestClient", IID_IQTestClient},
                   {"IQClientDetails", IID_IQClientDetails},
                   {"IQEnhancedClient", IID_IQEnhancedClient},
                   {"IQSettings", IID_IQSettings}};

// "IQComponent=1": a face, numbered as it is first given; "IQSettings-": the status is no, and null comes
// out.
template <typename Ask>
std::vector<std::string> AnswersOf(Ask ask) {
  std::vector<std::string> answers;
  std::vector<void*> faces;
  int before = 0;
  for (const Id& id : kIds) {
    void* out = &before;
    const Status status = ask(&id.id, &out);
    if (status == E_NOINTERFACE && out == nullptr) {
      answers.push_back(std::string(id.name) + "-");
      continue;
    }
    EXPECT_EQ(status, S_OK) << id.name;
    const auto known = std::ranges::find(faces, out);
    const auto number = known - faces.begin() + 1;
    if (known == faces.end()) faces.push_back(out);
    answers.push_back(id.name + ("=" + std::to_string(number)));
  }
  return answers;
}

class FacesTest : public test::ConnectedTest {};

TEST_F(FacesTest, OfTheControlAreTheSameFromEachOfThem) {
  const auto expected =
      ElementsAre("IUnknown=1", "IQRegistryClient=1", "IQComponent=2", "CLSID_PvwIO=2", "IQErrorReporter=3",
                  "IQSteppingClient=4", "IQTestComponentGroup=5", "IQUpdateWindowClient-",
                  "IQWorkSpaceClient-", "IQWorkSpaceClient2-", "IQFormatViewClient-", "IQFormatViewClient2-",
                  "IQIOServer-", "IQTestClient-", "IQClientDetails-", "IQEnhancedClient-", "IQSettings-");
  EXPECT_THAT(AnswersOf([&](const GUID* id, void** out) { return file.QueryInterface2(&instance, id, out); }),
              expected);
  for (const GUID& id : {IID_IQRegistryClient, IID_IQComponent, IID_IQErrorReporter, IID_IQSteppingClient,
                         IID_IQTestComponentGroup}) {
    auto* const face = instance.Face<IQUnknown>(id);
    EXPECT_THAT(AnswersOf([&](const GUID* iid, void** out) { return face->QueryInterface(iid, out); }),
                expected)
        << platform::GuidText(id);
    EXPECT_EQ(face->AddRef(), 1u);
    EXPECT_EQ(face->Release(), 0u);
    EXPECT_EQ(face->Release(), 0u);
  }
  EXPECT_EQ(instance.Face<IQComponent>(IID_IQComponent)->Reserved6(1), S_OK);
  EXPECT_EQ(instance.Face<IQComponent>(IID_IQComponent)->Reserved7(1), S_OK);
  EXPECT_EQ(instance.Face<IQRegistryClient>(IID_IQRegistryClient)->Reserved4(1), S_OK);
  EXPECT_EQ(world.Stepping(), instance.Face<IQSteppingClient>(IID_IQSteppingClient));
}

TEST_F(FacesTest, OfTheFrameAreTheClientsOfWorkspaceAndUpdate) {
  IQUnknown* const faces[] = {world.Sessions(), world.Format(), world.Update(), world.Server()};
  for (IQUnknown* face : faces) {
    EXPECT_THAT(AnswersOf([&](const GUID* iid, void** out) { return face->QueryInterface(iid, out); }),
                ElementsAre("IUnknown=1", "IQRegistryClient-", "IQComponent-", "CLSID_PvwIO-",
                            "IQErrorReporter-", "IQSteppingClient-", "IQTestComponentGroup-",
                            "IQUpdateWindowClient=2", "IQWorkSpaceClient=1", "IQWorkSpaceClient2=1",
                            "IQFormatViewClient-", "IQFormatViewClient2-", "IQIOServer-", "IQTestClient-",
                            "IQClientDetails-", "IQEnhancedClient-", "IQSettings-"));
    EXPECT_EQ(face->AddRef(), 1u);
    EXPECT_EQ(face->Release(), 0u);
  }
  void* out = nullptr;
  EXPECT_EQ(world.Update()->QueryInterface(&IID_IQWorkSpaceClient, &out), S_OK);
  EXPECT_EQ(out, world.Sessions());
  EXPECT_EQ(world.Sessions()->QueryInterface(&IID_IQUpdateWindowClient, &out), S_OK);
  EXPECT_EQ(out, world.Update());
}

TEST_F(FacesTest, OfTheTestGroupHaveItsNameAndItsPictureTwice) {
  auto* const group = instance.Face<IQTestComponentGroup>(IID_IQTestComponentGroup);
  platform::ScopedBstr name;
  EXPECT_EQ(group->GetGroupName(name.Receive()), S_OK);
  EXPECT_EQ(name.Text(), "CPU");

  platform::ScopedVariant first, second;
  EXPECT_EQ(group->GetGroupBitmaps(first.Receive(), second.Receive()), S_OK);
  const auto bytes_of = [](const platform::VARIANT& list) {
    EXPECT_EQ(list.vt, 8209);
    std::vector<int> bytes;
    for (std::size_t i = 0; i < platform::SafeArrayGetCount(list.parray); ++i) {
      const platform::VARIANT* const element = platform::SafeArrayVariantAt(list.parray, i);
      EXPECT_EQ(element->vt, platform::VT_UI1);
      bytes.push_back(element->bVal);
    }
    return bytes;
  };
  const std::vector<int> bytes = bytes_of(first.Get());
  EXPECT_EQ(bytes.size(), 16u * 15 * 4);
  EXPECT_GT(std::set<int>(bytes.begin(), bytes.end()).size(), 1u) << "a picture, not a plain area";
  EXPECT_EQ(bytes_of(second.Get()), bytes);
}

TEST_F(FacesTest, OfTheErrorReporterAnswerAsTheHostsErrorServiceDoes) {
  auto* const reporter = instance.Face<IQErrorReporter>(IID_IQErrorReporter);
  world.host.error_texts[5] = "Five.";
  platform::ScopedBstr text;
  EXPECT_EQ(reporter->GetErrorText(5, text.Receive()), S_OK);
  EXPECT_EQ(text.Text(), "Five.");
  world.host.FailNext("GetErrorText", -3);
  EXPECT_EQ(reporter->GetErrorText(5, text.Receive()), -3);
  instance.Disconnect();
  EXPECT_EQ(reporter->GetErrorText(5, text.Receive()), platform::E_FAIL) << "there is no host any more";
}

}  // namespace
}  // namespace pvw
