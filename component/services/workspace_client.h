// A workspace client that takes no part in anything: a base that leaves a client only what it cares for.
#pragma once

#include "host/workspace_client.h"

namespace pvw {

// Every operation gives 0; the two with an output set it to 0. The operations of IQUnknown are the
// subclass's.
class CWSClient2 : public IQWorkSpaceClient2 {
 public:
  platform::Status Reserved1(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved2(Reserved) override { return platform::S_OK; }
  platform::Status Reserved3(Reserved) override { return platform::S_OK; }
  platform::Status Reserved4(Reserved) override { return platform::S_OK; }
  platform::Status Reserved5(Reserved) override { return platform::S_OK; }
  platform::Status Reserved6(Reserved) override { return platform::S_OK; }
  platform::Status Reserved7(Reserved) override { return platform::S_OK; }
  platform::Status Reserved8() override { return platform::S_OK; }
  platform::Status Reserved9(Reserved) override { return platform::S_OK; }
  platform::Status Reserved10() override { return platform::S_OK; }
  platform::Status Reserved11(Reserved) override { return platform::S_OK; }
  platform::Status Reserved12(Reserved, std::uint32_t* answer) override {
    if (answer != nullptr) *answer = 0;
    return platform::S_OK;
  }
  platform::Status Reserved13(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved14(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved15(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved16(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved17(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved18(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved19(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved20(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved21(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved22(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved23(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved24(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved25(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved26(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved27(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved28(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved29(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved30(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved31(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved32(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved33(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved34(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved35(Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved36(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved37(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved38(Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved39(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved40(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved41(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status LoadSessionData(platform::BSTR, platform::BSTR, platform::BSTR, platform::BSTR) override {
    return platform::S_OK;
  }
  platform::Status Reserved43(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved44(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status Reserved45(Reserved, Reserved, Reserved, Reserved) override { return platform::S_OK; }
  platform::Status SaveSessionData(platform::BSTR, platform::BSTR, platform::BSTR) override {
    return platform::S_OK;
  }
  platform::Status IsSessionDataDirty(platform::BSTR, platform::BSTR, platform::BSTR,
                                      std::uint32_t* dirty) override {
    if (dirty != nullptr) *dirty = 0;
    return platform::S_OK;
  }

  virtual ~CWSClient2() = default;
};

}  // namespace pvw
