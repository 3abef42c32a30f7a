#include "ioview/target/simulated_target.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ioview/statuses.h"

namespace ioview {

namespace {

bool Fits(std::uint32_t address, std::size_t size) {
  return size <= 0x100000000u - address;
}

// The number of bytes of a range that an access may cover; nothing for another.
std::optional<std::size_t> AccessSize(std::uint32_t first, std::uint32_t last) {
  if (last < first) return std::nullopt;
  const std::uint64_t size = std::uint64_t{last} - first + 1;
  if (size > SimulatedTarget::kLongestAccess) return std::nullopt;
  return static_cast<std::size_t>(size);
}

bool IsWidth(std::uint32_t width) {
  return width == 1 || width == 2 || width == 4;
}

}  // namespace

bool SimulatedTarget::Poke(std::uint32_t address, std::span<const std::uint8_t> bytes) {
  if (!Fits(address, bytes.size())) return false;
  memory_.Write(address, bytes);
  return true;
}

bool SimulatedTarget::Peek(std::uint32_t address, std::span<std::uint8_t> bytes) const {
  if (!Fits(address, bytes.size())) return false;
  memory_.Read(address, bytes);
  return true;
}

void SimulatedTarget::FailReads(platform::Status status) {
  read_failure_ = status;
  write_failure_ = platform::S_OK;
}

void SimulatedTarget::FailWrites(platform::Status status) {
  read_failure_ = platform::S_OK;
  write_failure_ = status;
}

void SimulatedTarget::FailNothing() {
  read_failure_ = write_failure_ = platform::S_OK;
}

platform::Status SimulatedTarget::Read(Access::Kind kind, std::uint32_t first, std::uint32_t last,
                                       std::uint32_t width, std::uint8_t* bytes) {
  const std::optional<std::size_t> size = AccessSize(first, last);
  platform::Status status = read_failure_;
  if (!size || !IsWidth(width) || bytes == nullptr) status = kTargetAccessFailed;
  Log({kind, first, last, width, {}, platform::Failed(status)});
  if (!platform::Failed(status)) memory_.Read(first, {bytes, *size});
  return status;
}

platform::Status SimulatedTarget::Write(std::uint32_t first, std::uint32_t last, std::uint32_t width,
                                        const std::uint8_t* bytes) {
  const std::optional<std::size_t> size = AccessSize(first, last);
  if (!size || !IsWidth(width) || bytes == nullptr) {
    Log({Access::Kind::kWrite, first, last, width, {}, true});
    return kTargetAccessFailed;
  }
  const bool failed = platform::Failed(write_failure_);
  Log({Access::Kind::kWrite, first, last, width, {bytes, bytes + *size}, failed});
  if (!failed) memory_.Write(first, {bytes, *size});
  return write_failure_;
}

platform::Status SimulatedTarget::WriteNumber(std::uint32_t first, std::uint32_t last,
                                              const std::uint8_t* bytes) {
  const std::optional<std::size_t> size = AccessSize(first, last);
  if (!size || bytes == nullptr) {
    Log({Access::Kind::kBlock, first, last, 0, {}, true});
    return kTargetAccessFailed;
  }
  std::vector<std::uint8_t> number(bytes, bytes + *size);
  const bool failed = platform::Failed(write_failure_);
  Log({Access::Kind::kBlock, first, last, 0, number, failed});
  if (failed) return write_failure_;
  if (areas_.At(first).order == ByteOrder::kLittle) std::ranges::reverse(number);
  memory_.Write(first, number);
  return write_failure_;
}

void SimulatedTarget::LogAccesses(bool on) {
  logging_ = on;
  if (!on) TakeAccesses();
}

std::vector<Access> SimulatedTarget::TakeAccesses() {
  logged_bytes_ = 0;
  std::deque<Access> taken = std::exchange(accesses_, {});
  return {std::move_iterator(taken.begin()), std::move_iterator(taken.end())};
}

void SimulatedTarget::Log(Access access) {
  if (!logging_) return;
  logged_bytes_ += access.bytes.size();
  accesses_.push_back(std::move(access));
  while (accesses_.size() > kMostAccesses || logged_bytes_ > kMostLoggedBytes) {
    logged_bytes_ -= accesses_.front().bytes.size();
    accesses_.pop_front();
  }
}

}  // namespace ioview
