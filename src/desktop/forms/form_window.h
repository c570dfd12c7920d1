// The child window of a form. Its contents are built when it is first seen.
#pragma once

#include <QMdiSubWindow>

#include "desktop/forms/form_view.h"
#include "platform/form.h"

namespace tarnvik {

class FormWindow : public QMdiSubWindow {
 public:
  explicit FormWindow(FormSlot& slot);
  FormSlot& Slot() const { return slot_; }
  // The window of this record, or of one that has taken its place?
  bool Shows(const Form& form) const { return form_ == &form; }
  // The contents; built if need be.
  FormView& Contents();
  void TakeTitle();
  // The form has been unloaded: the window goes, now or when the event has ended.
  void LetGo();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;  // the logic decides

 private:
  FormSlot& slot_;
  Form* form_;
  FormView* view_ = nullptr;
};

}  // namespace tarnvik
