// The text of a snapshot, as far as a host has to know it: items joined by '&', with '\' before an '&' or a
// '\' of an item's own. The first four are version, device, a flag for ignored addresses and the number of
// registers; then comes one item a register, which begins with its name and a blank.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ioview {

std::vector<std::string> SplitItems(std::string_view text);
std::string JoinItems(const std::vector<std::string>& items);

// A snapshot that asks for these registers and knows nothing of them yet.
std::string SnapshotRequest(const std::vector<std::string>& names);
// The names of the registers in a snapshot, in its order.
std::vector<std::string> SnapshotNames(std::string_view text);
// False for a text that is no snapshot or has been cut off: fewer than four items, another first one, or not
// as many registers with their four words (name, address, size, value) as the fourth item says.
bool IsSnapshot(std::string_view text);
// The snapshot with its flag set.
std::string IgnoringAddresses(std::string_view text);

}  // namespace ioview
