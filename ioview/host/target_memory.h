// IQTargetMemory and IQBlockMemory over the simulated target.
#pragma once

#include "host/debug_services.h"
#include "ioview/host/service.h"
#include "ioview/target/simulated_target.h"

namespace ioview {

class TargetMemory : public Service<pvw::IQTargetMemory, pvw::IID_IQTargetMemory> {
 public:
  explicit TargetMemory(SimulatedTarget& target) : target_(target) {}

  // Both give the bytes in the order of their addresses; the log tells them apart.
  platform::Status ReadDirect(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                              std::uint8_t* buffer) override {
    if (!Enter("ReadDirect", first, last, width, buffer)) return platform::E_FAIL;
    return target_.Read(Access::Kind::kRead, first, last, width, buffer);
  }
  platform::Status ReadDirectLittle(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                                    std::uint8_t* buffer) override {
    if (!Enter("ReadDirectLittle", first, last, width, buffer)) return platform::E_FAIL;
    return target_.Read(Access::Kind::kReadLittle, first, last, width, buffer);
  }
  platform::Status WriteMemory(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                               const std::uint8_t* buffer) override {
    if (!Enter("WriteMemory", first, last, width, buffer)) return platform::E_FAIL;
    return target_.Write(first, last, width, buffer);
  }

 private:
  SimulatedTarget& target_;
};

class BlockMemory : public Service<pvw::IQBlockMemory, pvw::IID_IQBlockMemory> {
 public:
  explicit BlockMemory(SimulatedTarget& target) : target_(target) {}

  // `size` must be the length of the range, else kTooManyBytes; the flag has no meaning here.
  platform::Status WriteBlock(std::uint32_t first, std::uint32_t last, std::uint32_t flag, std::uint32_t size,
                              const std::uint8_t* buffer) override;

 private:
  SimulatedTarget& target_;
};

}  // namespace ioview
