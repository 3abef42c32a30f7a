// How the main window was left: its place, docks and toolbars. The settings file keeps it as bytes.
#pragma once

#include <QtCore/qbytearray.h>

#include <cstdint>
#include <set>
#include <string>

namespace ioview {

struct WindowLayout {
  QByteArray geometry = {};
  QByteArray state = {};
  std::set<std::uint32_t> hidden_buttons = {};  // commands, of the view's toolbar

  std::string ToBytes() const;
  // Bytes of another form give an empty layout.
  static WindowLayout FromBytes(const std::string& bytes);
};

}  // namespace ioview
