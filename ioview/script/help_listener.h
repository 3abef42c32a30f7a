// Hears of each call of the help engine.
#pragma once

#include <functional>
#include <string>

namespace ioview {

// Makes the file at this drive path the system's help engine. `heard` gets the path and the number of each
// call, before the engine does; the latest one counts, and is called from inside the component. A file that
// can't be loaded is the engine all the same, as the system has it: help is unavailable then.
void ListenToHelpEngine(const std::string& path,
                        std::function<void(const std::string& path, std::uint32_t number)> heard);

}  // namespace ioview
