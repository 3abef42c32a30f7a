// Peers of the controls. Their windows have the kind that the name says.
#pragma once

#include "platform/qt/widget_peer.h"

class QAbstractButton;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;

namespace platform::qt {

class EditPeer final : public WidgetPeer {
 public:
  EditPeer(CWnd& owner, QWidget* parent);

 protected:
  void ShowPart(Part part) override;
  bool Takes(const MSG& msg) const override;
  bool HasOwnMenu() const override { return true; }

 private:
  QLineEdit* m_line;
  bool m_quiet = false;  // what the widget says now it was told itself
};

class ComboPeer final : public WidgetPeer {
 public:
  ComboPeer(CWnd& owner, QWidget* parent);

 protected:
  void ShowPart(Part part) override;
  bool Takes(const MSG& msg) const override;
  bool HasOwnMenu() const override { return true; }

 private:
  QComboBox* m_combo;
  QLineEdit* m_line = nullptr;
  bool m_quiet = false;
};

// Push buttons and check boxes.
class ButtonPeer final : public WidgetPeer {
 public:
  ButtonPeer(CWnd& owner, QWidget* parent);

 protected:
  void ShowPart(Part part) override;
  bool Takes(const MSG& msg) const override;
  void OnPressLost() override;

 private:
  QAbstractButton* m_button;
};

class LabelPeer final : public WidgetPeer {
 public:
  LabelPeer(CWnd& owner, QWidget* parent);

 protected:
  void ShowPart(Part part) override;

 private:
  QLabel* m_label;
};

class ProgressPeer final : public WidgetPeer {
 public:
  ProgressPeer(CWnd& owner, QWidget* parent);

 protected:
  void ShowPart(Part part) override;

 private:
  QProgressBar* m_bar;
};

}  // namespace platform::qt
