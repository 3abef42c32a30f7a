// What the host tells a component about workspaces, projects and configurations, and the session that it
// keeps for them.
//
// Only the operations for the session have a known meaning. The others hold their place in the order of 47
// and are answered with 0; a number in a name is the place, counted behind the three operations of IQUnknown.
// Both versions are given as one face, so where the first ends can't be seen from outside: it is taken to be
// the notifications, and the six for session data to be what the second added.
#pragma once

#include "host/unknown.h"
#include "platform/base/bstr.h"

namespace pvw {

class IQWorkSpaceClient : public IQUnknown {
 public:
  // An argument that isn't looked at: a number, or a text that stays the host's.
  using Reserved = std::uintptr_t;

  virtual platform::Status Reserved1(Reserved, Reserved) = 0;
  virtual platform::Status Reserved2(Reserved) = 0;
  virtual platform::Status Reserved3(Reserved) = 0;
  virtual platform::Status Reserved4(Reserved) = 0;
  virtual platform::Status Reserved5(Reserved) = 0;
  virtual platform::Status Reserved6(Reserved) = 0;
  virtual platform::Status Reserved7(Reserved) = 0;
  virtual platform::Status Reserved8() = 0;
  virtual platform::Status Reserved9(Reserved) = 0;
  virtual platform::Status Reserved10() = 0;
  virtual platform::Status Reserved11(Reserved) = 0;
  // Gives a number; 0 from a client that has no answer.
  virtual platform::Status Reserved12(Reserved, std::uint32_t* answer) = 0;
  virtual platform::Status Reserved13(Reserved, Reserved) = 0;
  virtual platform::Status Reserved14(Reserved, Reserved) = 0;
  virtual platform::Status Reserved15(Reserved, Reserved) = 0;
  virtual platform::Status Reserved16(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved17(Reserved, Reserved) = 0;
  virtual platform::Status Reserved18(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved19(Reserved, Reserved) = 0;
  virtual platform::Status Reserved20(Reserved, Reserved) = 0;
  virtual platform::Status Reserved21(Reserved, Reserved) = 0;
  virtual platform::Status Reserved22(Reserved, Reserved) = 0;
  virtual platform::Status Reserved23(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved24(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved25(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved26(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved27(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved28(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved29(Reserved, Reserved) = 0;
  virtual platform::Status Reserved30(Reserved, Reserved) = 0;
  virtual platform::Status Reserved31(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved32(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved33(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved34(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved35(Reserved, Reserved) = 0;
  virtual platform::Status Reserved36(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved37(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved38(Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved39(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved40(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved41(Reserved, Reserved, Reserved, Reserved) = 0;

 protected:
  ~IQWorkSpaceClient() = default;
};

class IQWorkSpaceClient2 : public IQWorkSpaceClient {
 public:
  virtual platform::Status LoadSessionData(platform::BSTR workspace, platform::BSTR project,
                                           platform::BSTR name, platform::BSTR configuration) = 0;
  virtual platform::Status Reserved43(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved44(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status Reserved45(Reserved, Reserved, Reserved, Reserved) = 0;
  virtual platform::Status SaveSessionData(platform::BSTR workspace, platform::BSTR project,
                                           platform::BSTR configuration) = 0;
  // Whether something has changed that the session should save, 0 or 1.
  virtual platform::Status IsSessionDataDirty(platform::BSTR workspace, platform::BSTR project,
                                              platform::BSTR configuration, std::uint32_t* dirty) = 0;

 protected:
  ~IQWorkSpaceClient2() = default;
};

}  // namespace pvw
