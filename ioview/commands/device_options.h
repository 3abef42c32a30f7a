// The options that every command about one definition file has: the file, the device and the stores.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "ioview/host/host_services.h"
#include "ioview/program_error.h"
#include "ioview/store/stored_values.h"

namespace ioview {

// What the word of an option stands for; throws ProgramError for one that isn't listed.
template <typename Value>
Value Choose(std::string_view option, std::string_view word,
             std::initializer_list<std::pair<std::string_view, Value>> choices) {
  std::string names;
  for (const auto& [name, value] : choices) {
    if (name == word) return value;
    names += (names.empty() ? "" : ", ") + std::string(name);
  }
  throw ProgramError(std::string(option) + ": " + Quoted(word) + " is not one of " + names);
}

// The words of the command line as they stand.
struct DeviceOptions {
  std::string file;
  std::string base = "0";
  std::optional<std::string> memory;
  std::string endian = "big";
  std::string code_page = "65001";
  std::optional<std::string> workspace;
  std::optional<std::string> settings;

  // FILE and the options, in this order: --base, --memory, --endian, --codepage, --workspace, --settings.
  // The object must outlive the parsing.
  void AddTo(CLI::App& app);

  // All of these throw ProgramError for what is wrong.

  // Sets the ANSI code page. Before anything else.
  void SetCodePage() const;
  std::uint32_t BaseAddress() const;
  // The user settings of --settings, else none. Notes about a bad file go to standard error.
  UserSettings LoadSettings() const;
  // Target, workspace and session of a host, and FILE as the one that its view opens: the device's own, or,
  // where its name doesn't end in ".io", the session's.
  void Prepare(HostServices& host) const;
};

}  // namespace ioview
