// The saved selection as one text, and the records that it names.
//
//   selection   {ITEM ITEM ...}
//   item        NAME?  and behind it, where records below are selected, their own selection
//
// "{PORT?{PDATA?{PLINE?}PCTRL?}TIMER?}" names a bit field of PDATA in module PORT, then PCTRL, then module
// TIMER. Names are display names and hold no `?`; there is no escape. The first character of a text isn't
// looked at. A text that breaks off or is malformed is read as far as it goes.
#pragma once

#include <string_view>

#include "model/io_rec.h"

namespace pvw {

// Appends a module record for each item of the text and register records for all below, whatever the file
// version and whatever they stand for. They are selected, missing, and have no more children than these.
void ParseSelectionText(std::string_view text, IQComponentHost* host, CIORec::Records& modules);

}  // namespace pvw
