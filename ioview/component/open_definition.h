// The definition file that a host's view opens first.
#pragma once

#include <string>

#include "ioview/host/host_services.h"
#include "ioview/store/stored_values.h"

namespace ioview {

// What the open session stores its values under.
SessionValues::Names NamesOf(const Workspace& workspace);

// The path that the open session has stored, with its placeholders; empty for none.
std::string StoredDefinition(const HostServices& host);

// Offers a file, by drive path: as the device's own, or, where its name doesn't end in ".io", which a
// component adds to that, as the session's. False in the second case.
bool OfferDefinition(HostServices& host, std::string path);
// The session has no file of its own any more.
void ForgetDefinition(HostServices& host);

}  // namespace ioview
