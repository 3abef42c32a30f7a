// What the host's test framework calls on the test client, which captures and compares register values.
//
// A text that an operation gives belongs to the caller. A number in a name is the operation's place in its
// interface.
#pragma once

#include "host/component_clients.h"

namespace pvw {

class IQTestClient : public IQUnknown {
 public:
  // An argument that isn't looked at.
  using Ignored = std::uintptr_t;

  virtual platform::Status GetClientInfo(platform::BSTR* name, platform::GUID* client_id,
                                         IQTestComponentGroup** group, std::uint32_t* kind,
                                         platform::BSTR* version) = 0;
  // Reads the registers under test and gives them as one text.
  virtual platform::Status GetTestData(platform::BSTR* text) = 0;
  virtual platform::Status SetTestDataChecked(platform::BSTR text, std::uint32_t* result) = 0;
  // `status` is 0 for equal; only above 0, for any difference, are the two texts given.
  virtual platform::Status CompareWithTarget(platform::BSTR text, platform::BSTR* summary,
                                             platform::BSTR* detail, std::uint32_t* status) = 0;
  virtual platform::Status CompareTexts(platform::BSTR text1, platform::BSTR text2, platform::BSTR* summary,
                                        platform::BSTR* detail, std::uint32_t* status) = 0;
  virtual platform::Status EditDetails() = 0;
  // Turns coded result lines into words. With a result of 1 `out` stays as it was.
  virtual platform::Status FormatResult(platform::BSTR text, std::uint32_t kind, platform::BSTR* out) = 0;
  virtual platform::Status SetTestData(platform::BSTR text) = 0;
  // Queries of the framework with constant answers: 1, 0 and 1.
  virtual platform::Status Query12(Ignored) = 0;
  virtual platform::Status Query13(Ignored) = 0;
  virtual platform::Status Query14(Ignored, Ignored) = 0;
  virtual platform::Status CompareWithTarget2(platform::BSTR text, Ignored, platform::BSTR* summary,
                                              platform::BSTR* detail, std::uint32_t* status) = 0;
  virtual platform::Status CompareTexts2(platform::BSTR text1, Ignored, platform::BSTR text2, Ignored,
                                         platform::BSTR* summary, platform::BSTR* detail,
                                         std::uint32_t* status) = 0;
  // Constant answer 1.
  virtual platform::Status Query17(Ignored) = 0;
  // The last entry of the interface; no other has a destructor.
  virtual ~IQTestClient() = default;
};

class IQClientDetails : public IQUnknown {
 public:
  virtual platform::Status GetClientName(platform::BSTR* name) = 0;
  virtual platform::Status GetClientDescription(platform::BSTR* text) = 0;
  // Constant answers 1.
  virtual platform::Status Query6() = 0;
  virtual platform::Status Query7() = 0;

 protected:
  ~IQClientDetails() = default;
};

class IQEnhancedClient : public IQUnknown {
 public:
  virtual platform::Status GetPlatformText(platform::BSTR* text) = 0;
  // Constant answer 0.
  virtual platform::Status Query5() = 0;

 protected:
  ~IQEnhancedClient() = default;
};

}  // namespace pvw
