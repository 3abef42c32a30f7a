#include "ioview/target/access.h"

#include "ioview/number_text.h"

namespace ioview {

std::string AccessText(const Access& access) {
  const bool block = access.kind == Access::Kind::kBlock;
  const bool write = block || access.kind == Access::Kind::kWrite;
  std::string text = block ? "block " : write ? "write " : "read ";
  text += DigitsText(access.first, 16, 8) + '-' + DigitsText(access.last, 16, 8);
  if (!block) text += " width " + DigitsText(access.width, 10);
  if (access.kind == Access::Kind::kRead) text += " plain";
  if (access.kind == Access::Kind::kReadLittle) text += " little";
  if (write) text += ':';
  for (const std::uint8_t byte : access.bytes) text += ' ' + DigitsText(byte, 16, 2);
  if (access.failed) text += " failed";
  return text;
}

}  // namespace ioview
