// The component's file, its five functions, and the faces behind them.

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <set>

#include "host/format_services.h"
#include "tests/component/component_world.h"
#include "tests/support/fake_services.h"

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

// What the command writes, word by word.
std::set<std::string> WordsOf(const std::string& command) {
  std::set<std::string> words;
  std::FILE* const pipe = ::popen(command.c_str(), "r");
  char word[4096];
  while (pipe != nullptr && std::fscanf(pipe, "%4095s", word) == 1) words.insert(word);
  if (pipe != nullptr) ::pclose(pipe);
  return words;
}

TEST(ComponentFileTest, ShowsItsFiveNamesAndNeedsThePlatformAndTheStandardLibraryAlone) {
  EXPECT_THAT(WordsOf("nm -D --defined-only --format=posix '" + kFile + "' | cut -d' ' -f1"),
              ElementsAre("CreateInstance", "DestroyInstance", "GetComponentVersion", "LibraryRegister2",
                          "QueryInterface2"));

  std::set<std::string> needed =
      WordsOf("readelf -d '" + kFile + "' | sed -n 's/.*(NEEDED).*\\[\\(.*\\)\\.so.*/\\1/p'");
  EXPECT_TRUE(needed.erase("libplatform"));
  for (const char* standard :
       {"libstdc++", "libgcc_s", "libm", "libc", "libasan", "libubsan", "ld-linux-x86-64"}) {
    needed.erase(standard);
  }
  EXPECT_THAT(needed, IsEmpty());
}

class Registrar final : public test::fakes::Services<IQLibraryRegistrar> {
 public:
  using Services::Services;
  Status RegisterLibrary(platform::BSTR name, std::uint32_t kind, std::uint32_t major, std::uint32_t minor,
                         const GUID* class_id) override {
    return host_.Begin("Register", test::fakes::Words(name, platform::SysStringLen(name), kind, major, minor,
                                                      platform::GuidText(*class_id)));
  }
};

TEST(ComponentFileTest, TellsWhatItIsBeforeThereIsAnInstanceAndGoesWithItsLastUser) {
  const void* inside = nullptr;
  {
    const ComponentFile file;
    std::uint32_t major = 77, minor = 77;
    EXPECT_EQ(file.GetComponentVersion(&major, &minor), S_OK);
    EXPECT_TRUE(major == 1 && minor == 0);

    test::FakeHost host;
    host.FailNext("Register");
    Registrar registrar(host);
    EXPECT_EQ(file.LibraryRegister2(&registrar), S_OK) << "the host's refusal isn't looked at";
    EXPECT_THAT(host.Transcript(),
                ElementsAre("Register Generic PVW IO 14 2 1 0 {80D58C53-E47D-11D3-8AF5-00AA0026624A}"));
    inside = reinterpret_cast<const void*>(file.CreateInstance);
    EXPECT_EQ(platform::ModuleOf(inside), file.module);
  }
  EXPECT_EQ(platform::ModuleOf(inside), nullptr);
}

TEST(ComponentFileTest, KeepsAControlForEachHandle) {
  const ComponentFile file;
  int a = 0, b = 0;
  const auto face = [&](void* handle) {
    void* out = handle;
    const Status status = file.QueryInterface2(handle, &IID_IQComponent, &out);
    EXPECT_EQ(status, out == nullptr ? E_NOINTERFACE : S_OK);
    return out;
  };
  EXPECT_EQ(face(&a), nullptr);
  for (int* handle : {&a, &b, &b}) EXPECT_EQ(file.CreateInstance(handle), S_OK) << "in place of one, too";
  void* const second = face(&b);
  EXPECT_NE(face(&a), second);
  for (int* handle : {&a, &a})
    EXPECT_EQ(file.DestroyInstance(handle), S_OK) << "though there is none any more";
  EXPECT_EQ(face(&a), nullptr);
  EXPECT_EQ(face(&b), second);
  EXPECT_EQ(file.DestroyInstance(&b), S_OK);
}

// What each id that a component may be asked for gives: a face, numbered as it is first given, or "-", where
// null has to come out.
template <typename Ask>
std::string FacesOf(Ask ask) {
  std::string answers;
  std::vector<void*> faces;
  int before = 0;
  for (const GUID& id : {IID_IUnknown, IID_IQRegistryClient, IID_IQComponent, CLSID_PvwIO,
                         IID_IQErrorReporter, IID_IQSteppingClient, IID_IQTestComponentGroup,
                         IID_IQUpdateWindowClient, IID_IQWorkSpaceClient, IID_IQWorkSpaceClient2,
                         IID_IQFormatViewClient, IID_IQFormatViewClient2, IID_IQIOServer, IID_IQSettings}) {
    void* out = &before;
    const Status status = ask(&id, &out);
    EXPECT_EQ(status, out == nullptr ? E_NOINTERFACE : S_OK) << platform::GuidText(id);
    const auto known = std::ranges::find(faces, out);
    answers += out == nullptr ? "-" : std::to_string(known - faces.begin() + 1);
    if (out != nullptr && known == faces.end()) faces.push_back(out);
  }
  return answers;
}

class FacesTest : public test::ConnectedTest {};

TEST_F(FacesTest, OfTheControlAreTheSameFromEachOfThem) {
  const std::string expected = "1122345-------";
  EXPECT_EQ(FacesOf([&](const GUID* id, void** out) { return file.QueryInterface2(&instance, id, out); }),
            expected);
  for (const GUID& id : {IID_IQRegistryClient, IID_IQComponent, IID_IQErrorReporter, IID_IQSteppingClient,
                         IID_IQTestComponentGroup}) {
    SCOPED_TRACE(platform::GuidText(id));
    auto* const face = instance.Face<IQUnknown>(id);
    EXPECT_EQ(FacesOf([&](const GUID* iid, void** out) { return face->QueryInterface(iid, out); }), expected);
    EXPECT_EQ(face->AddRef(), 1u);
    EXPECT_EQ(face->Release() + face->Release(), 0u);
  }
  EXPECT_EQ(world.Stepping(), instance.Face<IQSteppingClient>(IID_IQSteppingClient));
}

TEST_F(FacesTest, OfTheFrameAreTheClientsOfWorkspaceAndUpdate) {
  IQUnknown* const faces[] = {world.Sessions(), world.Format(), world.Update(), world.Server()};
  for (IQUnknown* face : faces) {
    EXPECT_EQ(FacesOf([&](const GUID* iid, void** out) { return face->QueryInterface(iid, out); }),
              "1------211----");
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
  std::vector<int> bytes[2];
  for (const platform::ScopedVariant* list : {&first, &second}) {
    ASSERT_EQ(list->Get().vt, 8209);
    for (std::size_t i = 0; i < platform::SafeArrayGetCount(list->Get().parray); ++i) {
      const platform::VARIANT* byte = platform::SafeArrayVariantAt(list->Get().parray, i);
      EXPECT_EQ(byte->vt, platform::VT_UI1);
      bytes[list == &second].push_back(byte->bVal);
    }
  }
  EXPECT_EQ(bytes[0].size(), 16u * 15 * 4);
  EXPECT_GT(std::set<int>(bytes[0].begin(), bytes[0].end()).size(), 1u) << "a picture, not a plain area";
  EXPECT_EQ(bytes[0], bytes[1]);
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
