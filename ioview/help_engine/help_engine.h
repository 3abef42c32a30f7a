// A help engine that tells the program of each call before it hands it to the user's own.
//
// The component loads an engine by its file and calls it directly, so the only place to listen is an engine.
#pragma once

#include <cstdint>

#include "platform/base/module.h"

namespace ioview {

// `path` is what the engine was given, `number` the topic's.
using HelpListener = void(void* context, const char* path, std::uint32_t number);

// The file beside the program's, and the export that takes a HelpSetup: who listens, and the real engine,
// which stays loaded.
inline constexpr const char* kHelpEngineFile = "ioview_help.so";
inline constexpr const char* kHelpEngineSetup = "SetUpHelpEngine";

struct HelpSetup {
  HelpListener* listener = nullptr;
  void* context = nullptr;
  platform::HMODULE engine = nullptr;
};

}  // namespace ioview
