#include "ioview/desktop/window_layout.h"

#include <QtCore/qdatastream.h>
#include <QtCore/qiodevice.h>
#include <QtCore/qlist.h>

namespace ioview {

namespace {

constexpr quint32 kMark = 0x494F5601;  // "IOV" and the version of the form
constexpr quint32 kMostButtons = 1000;

}  // namespace

std::string WindowLayout::ToBytes() const {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setVersion(QDataStream::Qt_6_0);
  out << kMark << geometry << state << static_cast<quint32>(hidden_buttons.size());
  for (const std::uint32_t command : hidden_buttons) out << quint32{command};
  return bytes.toStdString();
}

WindowLayout WindowLayout::FromBytes(const std::string& bytes) {
  QDataStream in(QByteArray::fromStdString(bytes));
  in.setVersion(QDataStream::Qt_6_0);
  WindowLayout layout;
  quint32 mark = 0;
  quint32 count = 0;
  in >> mark;
  if (mark != kMark) return {};
  in >> layout.geometry >> layout.state >> count;
  for (quint32 i = 0; i < count && i < kMostButtons && in.status() == QDataStream::Ok; ++i) {
    quint32 command = 0;
    in >> command;
    layout.hidden_buttons.insert(command);
  }
  return in.status() == QDataStream::Ok ? layout : WindowLayout();
}

}  // namespace ioview
