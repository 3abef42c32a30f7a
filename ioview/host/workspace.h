// The workspace, project and configuration that the host has open. The services that speak of them share one.
#pragma once

#include <string>

namespace ioview {

// Names are in the ANSI code page. All empty when no workspace is open.
struct Workspace {
  std::string name;
  std::string project;
  std::string configuration;
  std::string directory;  // a drive path without a trailing backslash

  bool IsOpen() const { return !name.empty(); }
};

}  // namespace ioview
