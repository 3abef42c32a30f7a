// Push buttons and check boxes. Stands in for the system's button control.
#pragma once

#include "platform/gui/graphics.h"
#include "platform/gui/window.h"

namespace platform {

class CButton : public CWnd {
 public:
  WindowKind GetKind() const override { return WindowKind::Button; }
  // Enter presses it, wherever in its dialog the focus is.
  bool IsDefault() const { return (GetStyle() & BS_DEFPUSHBUTTON) != 0; }
  // A picture in place of the text; not owned, null for none.
  void SetImage(const CImageList* image);
  const CImageList* GetImage() const { return m_image; }
  // The user clicked it, by mouse or by key: the parent gets BN_CLICKED. Nothing happens while it is
  // disabled.
  virtual void Clicked();

 protected:
  LRESULT DefWindowProc(const MSG& msg) override;
  void TakeStateFrom(CWnd& from) override;

 private:
  const CImageList* m_image = nullptr;
};

// A click turns the mark before the parent hears of it.
class CCheckBox : public CButton {
 public:
  WindowKind GetKind() const override { return WindowKind::CheckBox; }
  bool GetCheck() const { return m_checked; }
  void SetCheck(bool on);
  void Clicked() override;

 protected:
  void TakeStateFrom(CWnd& from) override;

 private:
  bool m_checked = false;
};

}  // namespace platform
