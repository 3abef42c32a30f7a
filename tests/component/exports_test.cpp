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

TEST(ComponentFileTest, TellsWhatItIsBeforeThereIsAnInstanceAndGoesWithItsLastUser) {
  const void* inside = nullptr;
  {
    const ComponentFile file;
    std::uint32_t major = 77, minor = 77;
    EXPECT_EQ(file.GetComponentVersion(&major, &minor), S_OK);
    EXPECT_EQ(major, 1u);
    EXPECT_EQ(minor, 0u);

    Registrar registrar;
    EXPECT_EQ(file.LibraryRegister2(&registrar), S_OK) << "the host's refusal isn't looked at";
    EXPECT_EQ(registrar.said, "Generic PVW IO|14 2 1 0 {80D58C53-E47D-11D3-8AF5-00AA0026624A}");
    inside = reinterpret_cast<const void*>(file.CreateInstance);
    EXPECT_EQ(platform::ModuleOf(inside), file.module);
  }
  EXPECT_EQ(platform::ModuleOf(inside), nullptr);
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

// What the ids that a component may be asked for give: "IQComponent=1" is a face, numbered as it is first
// given. Where there is none, null has to come out.
template <typename Ask>
std::vector<std::string> FacesOf(Ask ask) {
  const std::pair<const char*, GUID> ids[] = {{"IUnknown", IID_IUnknown},
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
                                              {"IQSettings", IID_IQSettings}};
  std::vector<std::string> answers;
  std::vector<void*> faces;
  int before = 0;
  for (const auto& [name, id] : ids) {
    void* out = &before;
    const Status status = ask(&id, &out);
    EXPECT_EQ(status, out == nullptr ? E_NOINTERFACE : S_OK) << name;
    if (out == nullptr) continue;
    const auto known = std::ranges::find(faces, out);
    answers.push_back(name + ("=" + std::to_string(known - faces.begin() + 1)));
    if (known == faces.end()) faces.push_back(out);
  }
  return answers;
}

class FacesTest : public test::ConnectedTest {};

TEST_F(FacesTest, OfTheControlAreTheSameFromEachOfThem) {
  const auto expected = ElementsAre("IUnknown=1", "IQRegistryClient=1", "IQComponent=2", "CLSID_PvwIO=2",
                                    "IQErrorReporter=3", "IQSteppingClient=4", "IQTestComponentGroup=5");
  EXPECT_THAT(FacesOf([&](const GUID* id, void** out) { return file.QueryInterface2(&instance, id, out); }),
              expected);
  for (const GUID& id : {IID_IQRegistryClient, IID_IQComponent, IID_IQErrorReporter, IID_IQSteppingClient,
                         IID_IQTestComponentGroup}) {
    SCOPED_TRACE(platform::GuidText(id));
    auto* const face = instance.Face<IQUnknown>(id);
    EXPECT_THAT(FacesOf([&](const GUID* iid, void** out) { return face->QueryInterface(iid, out); }),
                expected);
    EXPECT_EQ(face->AddRef(), 1u);
    EXPECT_EQ(face->Release(), 0u);
    EXPECT_EQ(face->Release(), 0u);
  }
  EXPECT_EQ(world.Stepping(), instance.Face<IQSteppingClient>(IID_IQSteppingClient));
}

TEST_F(FacesTest, OfTheFrameAreTheClientsOfWorkspaceAndUpdate) {
  IQUnknown* const faces[] = {world.Sessions(), world.Format(), world.Update(), world.Server()};
  for (IQUnknown* face : faces) {
    EXPECT_THAT(
        FacesOf([&](const GUID* iid, void** out) { return face->QueryInterface(iid, out); }),
        ElementsAre("IUnknown=1", "IQUpdateWindowClient=2", "IQWorkSpaceClient=1", "IQWorkSpaceClient2=1"));
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
    std::vector<int> bytes(platform::SafeArrayGetCount(list.parray));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      EXPECT_EQ(platform::SafeArrayVariantAt(list.parray, i)->vt, platform::VT_UI1);
      bytes[i] = platform::SafeArrayVariantAt(list.parray, i)->bVal;
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
