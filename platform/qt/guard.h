// What Qt calls us back with lets no exception out, since Qt's frames can't carry one.
#pragma once

#include <QtCore/qlogging.h>

#include <exception>

namespace platform::qt {

template <typename Work>
void Guarded(const Work& work) {
  try {
    work();
  } catch (const std::exception& error) {
    qCritical("an event failed: %s", error.what());
  } catch (...) {
    qCritical("an event failed");
  }
}

}  // namespace platform::qt
