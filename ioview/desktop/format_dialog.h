// The host's dialog for a view's font and colours, over what the view offers as a format client.
#pragma once

#include <QtCore/qstring.h>
#include <QtWidgets/qdialog.h>

#include <cstdint>
#include <vector>

#include "host/format_view_client.h"

class QComboBox;
class QFontComboBox;
class QLabel;
class QListWidget;
class QSpinBox;

namespace ioview {

class FormatDialog final : public QDialog {
 public:
  // The client must outlive the dialog.
  FormatDialog(pvw::IQFormatViewClient2& client, QWidget* parent);

  // Gives the client what the user has changed since the last time, and no more. OK does the same.
  void Apply();

 private:
  struct Item {
    QString name;
    std::int32_t text = 0;  // indices of logical colours
    std::int32_t background = 0;
    bool changed = false;
  };

  void ReadClient();
  void LayOut();
  void ShowItem(int row);
  void ShowPreview();
  void PickColour();

  pvw::IQFormatViewClient2& client_;
  QString face_;
  std::int32_t size_ = 0;
  std::vector<Item> items_;
  bool showing_ = false;  // the boxes are being set, not used
  QListWidget* item_list_;
  QFontComboBox* faces_;
  QSpinBox* sizes_;
  QComboBox* text_colours_;
  QComboBox* back_colours_;
  QLabel* preview_;
};

}  // namespace ioview
