// The data control of the I/O component: connects an instance to its host, owns its definition data and its
// view, and has the view refreshed when the target stops.
#pragma once

#include <memory>

#include "component/pvw_debug_data_ctrl.h"
#include "component/services/stepping_client.h"
#include "component/services/ui_registrar.h"
#include "model/io_data.h"
#include "model/io_data_file.h"
#include "support/dll_resource.h"
#include "testclient/test_client_io.h"

namespace pvw {

class CPvwIODataCtrl final : public CPvwDebugDataCtrl, public CSteppingClient, public IQTestComponentGroup {
 public:
  ~CPvwIODataCtrl() override;
  // Disconnects first where the host hasn't, then destroys the control. The host may ask for the end from
  // inside a call of an interface of the control: then the control is out of use at once, and goes with the
  // end of the outermost call.
  static void End(std::unique_ptr<CPvwIODataCtrl> control);

  // One answer for all faces.
  platform::Status QueryInterface(const platform::GUID* iid, void** out) override;
  std::uint32_t AddRef() override { return 1; }
  std::uint32_t Release() override { return 0; }

  // Throws a `const char*` out to the host when the target's debugger library is the wrong one; see
  // target/debugger_binding.h.
  platform::Status OnEvent(const QEventRecord* event) override;
  // E_FAIL, after a message, when the resource library beside the component can't be had. What a failed
  // connect has loaded stays until the next one or the end. A connect while connected disconnects first.
  //
  // What the host asks for in the midst of a connect or a disconnect: another connect fails; a disconnect
  // waits for the connect, which fails then; one in the midst of a disconnect fails, as one without a
  // connection does.
  platform::Status Connect(IQComponentHost* component_host, std::int16_t flag) override;
  platform::Status Disconnect(std::int16_t flag) override;
  platform::Status OnStep() override;
  platform::Status OnStepEnd() override;

  platform::Status GetGroupName(platform::BSTR* name) override;
  platform::Status GetGroupBitmaps(platform::VARIANT* first, platform::VARIANT* second) override;

  // Reads the target and shows it, as the news of one stop; nothing while the view isn't on the screen, or
  // refreshes are locked.
  void RefreshView();
  void OnRefreshNeeded() override { RefreshView(); }

 protected:
  void OnConnected() override;
  void OnDisconnected() override;

 private:
  // One call of the host into the control, which stays in memory until the outermost is over.
  class Call {
   public:
    explicit Call(CPvwIODataCtrl& called) : control(called) { ++control.calls; }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call();

   private:
    CPvwIODataCtrl& control;
  };
  enum class Change { kNone, kConnect, kDisconnect };
  // What the control is in the midst of, for as long as this lives.
  class Changing {
   public:
    Changing(CPvwIODataCtrl& changed, Change to) : control(changed) { control.change = to; }
    Changing(const Changing&) = delete;
    Changing& operator=(const Changing&) = delete;
    ~Changing() { control.change = Change::kNone; }

   private:
    CPvwIODataCtrl& control;
  };

  platform::Status ConnectAnew(IQComponentHost* component_host, std::int16_t flag);
  // False, and the user has been told, when there is no such library.
  bool LoadResources();
  // The host whose target this control had bound, null for none. The binding itself stays.
  IQComponentHost* LeaveBinding();
  // The last control at a host takes the binding with it.
  void UnbindHost();
  // The device's own, for the test client.
  std::string DefaultDefinitionFile() const;

  CIODataFile ioFile;
  CIOData ioData;
  std::unique_ptr<CDllResource> resources;  // null until a connect
  // From the first connect on. It keeps its host's services, so that another host gets another one.
  std::unique_ptr<CUiRegistrar> uiRegistrar;
  IQComponentHost* registrarHost = nullptr;
  std::unique_ptr<CTestClientIO> testClient;  // from a connect to its disconnect, as the view
  IQComponentHost* connectHost = nullptr;     // as Connect last got it, until the disconnect
  // Whose target this control has bound. The binding outlives a disconnect: it goes when the target does.
  IQComponentHost* boundHost = nullptr;

  int calls = 0;                           // of the host, that the control is in
  std::unique_ptr<CPvwIODataCtrl> itself;  // from End on
  Change change = Change::kNone;
  bool disconnectDue = false;  // asked for in the midst of a connect
};

}  // namespace pvw
