// The system's version as one number, for the choice of a help engine.
#pragma once

namespace pvw {

// 1 to 9 in the order that the systems came out; 10 for every later or unknown one.
int GetWindowsVersionCode();
bool IsWindowsVersionAtLeast(int code);

}  // namespace pvw
