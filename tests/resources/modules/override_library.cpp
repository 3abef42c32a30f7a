#include "platform/base/resources.h"
#include "resources/ids.h"

namespace {

constexpr platform::StringResource kStrings[] = {
    {pvw::IDS_COLUMN_NAME, "Nom"},
};
const platform::ResourceTables kTables{kStrings, {}};
const platform::ResourceRegistration kRegistration(kTables, platform::ResourceRole::kLibrary);

}  // namespace
