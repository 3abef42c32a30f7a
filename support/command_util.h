// Paths for the dialogs that ask for a file.
#pragma once

#include <string>
#include <string_view>

#include "host/component_host.h"

namespace pvw {

class CCommandUtil {
 public:
  // `host` isn't owned; null for none.
  explicit CCommandUtil(IQComponentHost* host) : m_pHost(host) {}

  // Where a file dialog should open: the directory of the expanded path with its backslash, or, for a path
  // without a directory from the root, the configuration's directory.
  std::string GetBrowseDirectory(std::string_view path) const;

  // The full path of what the user typed, its placeholders expanded. A path without a directory from the root
  // is taken from the configuration's directory, else the host's own, else the current one; a path without a
  // drive goes to the current drive. Empty for an empty path.
  std::string ResolvePath(std::string_view path) const;

 private:
  std::string BaseDirectory() const;

  IQComponentHost* m_pHost;
};

}  // namespace pvw
