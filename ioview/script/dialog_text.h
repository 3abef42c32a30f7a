// A dialog as lines of text: each control with its state, in the order of the template.
#pragma once

#include <functional>
#include <string>

#include "platform/gui/dialog.h"

namespace ioview {

// Without line ends: ID KIND "TEXT" with its marks; below a combo box its entries, below a tree or list its
// rows, both two blanks in.
void ForEachDialogLine(const platform::CDialog& dialog, const std::function<void(const std::string&)>& line);

}  // namespace ioview
