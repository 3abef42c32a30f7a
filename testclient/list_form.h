// How the test framework's texts hold lists: items, each of which can hold fields.
#pragma once

namespace pvw {

inline constexpr char kListSeparator = '&';
inline constexpr char kListEscape = '\\';
inline constexpr char kFieldSeparator = ' ';

}  // namespace pvw
