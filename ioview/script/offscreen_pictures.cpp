#include "ioview/script/offscreen_pictures.h"

#include <QtCore/qbytearray.h>
#include <QtCore/qlogging.h>
#include <QtWidgets/qapplication.h>

#include <cstdio>

#include "platform/qt/picture.h"

namespace ioview {

namespace {

constexpr const char* kPlatformVariable = "QT_QPA_PLATFORM";

// Standard error is for what is wrong with a script.
void TellWhatIsSevere(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtCriticalMsg && type != QtFatalMsg) return;
  std::fprintf(stderr, "ioview: %s\n", text.toLocal8Bit().constData());
}

bool PrepareDrawing() {
  if (qEnvironmentVariableIsEmpty(kPlatformVariable)) qputenv(kPlatformVariable, "offscreen");
  qInstallMessageHandler(TellWhatIsSevere);
  return true;
}

}  // namespace

// Qt keeps what it is given as the program's arguments.
struct OffscreenPictures::Drawing {
  bool prepared = PrepareDrawing();
  int argument_count = 1;
  char program[7] = "ioview";
  char* arguments[2] = {program, nullptr};
  QApplication application{argument_count, arguments};
};

OffscreenPictures::OffscreenPictures() = default;
OffscreenPictures::~OffscreenPictures() = default;

bool OffscreenPictures::Save(platform::CWnd& window, const std::string& native_path) {
  if (drawing_ == nullptr) drawing_ = std::make_unique<Drawing>();
  return platform::SavePicture(window, native_path);
}

}  // namespace ioview
