// What a comparison came to: a sentence, and a line for each difference.
#pragma once

#include <QtWidgets/qdialog.h>

#include <string>
#include <vector>

namespace ioview {

class ResultDialog final : public QDialog {
 public:
  // `file` names the snapshot to the user. Without lines it says that nothing differs.
  ResultDialog(const QString& file, const std::vector<std::string>& lines, QWidget* parent);
};

}  // namespace ioview
