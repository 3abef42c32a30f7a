// What the view remembers in a session, kept by the host's data manager as texts under keys of its own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/workspace_services.h"
#include "platform/base/bstr.h"
#include "platform/base/guid.h"

namespace pvw {

// One open view of the data manager, for the length of one load or one save. Nothing is cached: the host is
// the only holder. Texts are in the ANSI code page. A key reaches the host behind the identity's braced text.
class CSessionStore {
 public:
  // Keeps copies of the names; `store_manager`, not owned, may be null: then every read gives its default and
  // every write fails.
  CSessionStore(IQDataManager* store_manager, platform::BSTR workspace_name, platform::BSTR project_name,
                platform::BSTR session_name, platform::BSTR configuration_name,
                const platform::GUID& identity);
  CSessionStore(const CSessionStore&) = delete;
  CSessionStore& operator=(const CSessionStore&) = delete;

  virtual ~CSessionStore() = default;
  // The host's status.
  virtual platform::Status WriteString(std::string_view key, std::string_view value);
  // Always 0: for a key that the host doesn't give, `out` is the default.
  virtual platform::Status ReadString(std::string_view key, std::string_view defaultValue, std::string& out);
  // A decimal text in the store.
  virtual platform::Status WriteInt(std::string_view key, std::int32_t value);
  // Always 0. White space, a sign and digits are read and what follows them isn't looked at; a text without
  // such a number gives the default, a number beyond 32 bits the nearest that fits.
  virtual platform::Status ReadInt(std::string_view key, std::int32_t defaultValue, std::int32_t* out);

 private:
  std::string FullKey(std::string_view key) const { return keyPrefix + std::string(key); }

  IQDataManager* const manager;
  const platform::ScopedBstr workspace;
  const platform::ScopedBstr project;
  const platform::ScopedBstr name;  // goes no further
  const platform::ScopedBstr configuration;
  const std::string keyPrefix;
};

}  // namespace pvw
