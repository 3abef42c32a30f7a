// The coded results of a comparison, and their words.
//
// A code is a line of fields with one blank between them, of which two numbers come first:
//
//   0 0 PDATA, PCTRL               all registers that differ
//   1 0 PDATA Dest                 missing on that side
//   1 1 PDATA H'FF0000 H'FF0001    two addresses
//   1 2 PDATA 1 2                  two sizes
//   1 3 PDATA 0F 10                two values
#pragma once

#include <string>
#include <string_view>

#include "testclient/compared_registers.h"

namespace pvw {

enum class Side { kSource, kDestination };

// The two of a difference have the same name.
std::string NotFoundLine(const std::string& name, Side missing);
std::string AddressLine(const CompareEntry& first, const CompareEntry& second);
std::string SizeLine(const CompareEntry& first, const CompareEntry& second);
// Each value has as many digits as its register's size asks for, 32 at most, which is the longest text of a
// register's value.
std::string ValueLine(const CompareEntry& first, const CompareEntry& second);
// `names` are joined by ", ".
std::string SummaryLine(std::string_view names);

// The words for a summary, or for each line of a detail text, which is a list joined by `&` in its escaped
// form; so is the result. A line with numbers that mean nothing has no words, and a field that is missing is
// empty.
std::string WordsOfResult(std::string_view text);

}  // namespace pvw
