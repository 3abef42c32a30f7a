// A device that has something to do: at each step some of the simulated target's registers change by
// themselves, as if a program ran on it.
//
// The example device, the Lumen LM-8, counts, samples and blinks at the places of its ports, timer and
// converter, by this table (offsets from the device's base, numbers in the target's byte order):
//
//   offset  bytes  register  at each step
//   24      4      INTFLAG   the timer's flag, bit 0, changes when TCOUNT starts again
//   41      1      PDATA     the six lamps, bits 0 to 5, move round by one
//   42      1      PPIN      KEY0, bit 0, every second step; the door, bit 7, every fifth
//   62      2      TCOUNT    goes up by 250; behind TPERIOD it starts again at 0
//   66      4      TTOTAL    goes up by 250
//   82      1      SSTAT     RXFULL, bit 6, every second step
//   A2      2      BRIGHT    the sample, bits 4 to 15, goes up by 30 and falls back to 800
//   A4      2      TEMP      the sample goes up or down by 1
//
// Of another device a quarter of the registers that have been read count up, another quarter at each step.
#pragma once

#include <cstdint>
#include <set>
#include <string_view>
#include <utility>

#include "ioview/target/simulated_target.h"

namespace ioview {

class DemoDevice {
 public:
  // What is looked at of the registers that were read, at most.
  static constexpr std::size_t kMostRegisters = 65536;
  // The base that the example's definition files give.
  static constexpr std::uint32_t kExampleBase = 0xFF0000;

  explicit DemoDevice(SimulatedTarget& target) : target_(target) {}

  // Whether the text is one of the example device's definition files.
  static bool IsExample(std::string_view definition);
  // It is the example device, at this base.
  void SetExample(std::uint32_t base = kExampleBase) { example_base_ = base, is_example_ = true; }

  // Off at first. While it is on, it takes the target's log of accesses.
  void Switch(bool on);
  bool IsOn() const { return on_; }
  // Notes what has been read since the last look; to be called now and then, so that the log stays short.
  void Look();
  // One step of the device's program. Nothing while it is off.
  void Step();

 private:
  using Register = std::pair<std::uint32_t, std::uint32_t>;  // first address, bytes

  std::uint32_t Get(std::uint32_t address, std::uint32_t bytes) const;
  void Put(std::uint32_t address, std::uint32_t bytes, std::uint32_t value);
  void StepExample();
  void StepOther();

  SimulatedTarget& target_;
  bool on_ = false;
  bool is_example_ = false;
  std::uint32_t example_base_ = 0;
  std::uint32_t steps_ = 0;
  std::set<Register> read_;
};

}  // namespace ioview
