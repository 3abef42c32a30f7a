// What the host calls on a data control and on the view frame.
//
// A data control has the faces IQRegistryClient, IQComponent, IQErrorReporter, IQSteppingClient and
// IQTestComponentGroup; the frame has IQUpdateWindowClient and IQIOServer besides the clients in
// workspace_client.h and format_view_client.h. A number in a name is the operation's place in its interface.
#pragma once

#include "host/component_host.h"
#include "platform/base/variant.h"

namespace pvw {

// The primary face of a data control.
class IQRegistryClient : public IQUnknown {
 public:
  // What the host means by it isn't known; it is answered with 0.
  virtual platform::Status Reserved4(std::uint32_t value) = 0;

 protected:
  ~IQRegistryClient() = default;
};

class IQComponent : public IQUnknown {
 public:
  virtual platform::Status OnEvent(const QEventRecord* event) = 0;
  // With a `flag` of 0 both Connect and Disconnect test for the host and do nothing else.
  virtual platform::Status Connect(IQComponentHost* host, std::int16_t flag) = 0;
  // What the host means by these two isn't known; they are answered with 0.
  virtual platform::Status Reserved6(std::uint32_t value) = 0;
  virtual platform::Status Reserved7(std::uint32_t value) = 0;
  virtual platform::Status Disconnect(std::int16_t flag) = 0;

 protected:
  ~IQComponent() = default;
};

// How the host's test framework shows the group that the test client belongs to.
class IQTestComponentGroup : public IQUnknown {
 public:
  virtual platform::Status GetGroupName(platform::BSTR* name) = 0;
  // Two pictures, the pixel bytes row by row: type VT_ARRAY | VT_UI1, each element a VARIANT of VT_UI1.
  virtual platform::Status GetGroupBitmaps(platform::VARIANT* first, platform::VARIANT* second) = 0;

 protected:
  ~IQTestComponentGroup() = default;
};

// One OnStepBegin, any number of OnStep, one OnStepEnd.
class IQSteppingClient : public IQUnknown {
 public:
  // `kind` 7 asks for no refresh at the single steps; `step_count` 0 stands for a stop without steps.
  virtual platform::Status OnStepBegin(std::uint32_t step_count, std::uint32_t kind) = 0;
  virtual platform::Status OnStep() = 0;
  virtual platform::Status OnStepEnd() = 0;

 protected:
  ~IQSteppingClient() = default;
};

class IQUpdateWindowClient : public IQUnknown {
 public:
  // Has the view read and shown again.
  virtual platform::Status UpdateWindow() = 0;

 protected:
  ~IQUpdateWindowClient() = default;
};

// Offered to other components.
class IQIOServer : public IQUnknown {
 public:
  // Loads another definition file into an open view; a base of 0 is the file's own.
  virtual platform::Status LoadIOFile(platform::BSTR path, std::uint32_t base_address) = 0;

 protected:
  ~IQIOServer() = default;
};

}  // namespace pvw
