// The text that a pane of the I/O view shows, for a host that has no view yet: opens a definition file,
// builds the rows of both pages, opens rows of one, and writes that one.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "host/component_host.h"

namespace ioview::interim {

enum class Page { kAll, kSelected };
// Which rows of the page are opened: none, those at the top, or every one that has children.
enum class OpenRows { kNone, kModules, kAll };

struct DumpRequest {
  std::string path;       // of the definition file, a drive path
  std::string selection;  // in the form that sessions keep it
  Page page = Page::kAll;
  OpenRows open = OpenRows::kModules;
};

// Writes in pieces of whole lines, each ended by a line feed. The base address is the one of the host's
// device. Messages of the file go to the message presenter. The host counts as connected to its target
// meanwhile.
void WriteViewDump(pvw::IQComponentHost& host, const DumpRequest& request,
                   const std::function<void(std::string_view)>& write);

}  // namespace ioview::interim
