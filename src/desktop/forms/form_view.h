// The window of a form: a view for each of its controls, laid out in groups and on pages.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/form.h"

namespace tarnvik {

struct FormParts;

class FormView : public QWidget {
 public:
  // Builds the window from the form's controls: what lies in which frame and on which page the record says
  // itself; how groups stand beside one another the layout of the form says (layouts.h).
  explicit FormView(Form& form, QWidget* parent = nullptr);
  ~FormView() override;

  // Null once the form has been unloaded.
  Form* Shown() const { return form_; }
  // The form goes: no view passes anything on any more.
  void LetGo();
  // The widget of a control; null for controls without one. Builds the page on which it lies.
  QWidget* WidgetOf(const Control& control) const;

  QSize sizeHint() const override;

 protected:
  // Enter and Escape press the button that is meant by them.
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;  // other colours

 private:
  Form* form_;
  std::unique_ptr<FormParts> parts_;
};

}  // namespace tarnvik
