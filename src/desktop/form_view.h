// The window of a form: a view for each of its controls, laid out in groups and on pages.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "desktop/control_view.h"
#include "platform/form.h"

namespace tarnvik {

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
  // The widget of a control; null for controls without one.
  QWidget* WidgetOf(const Control& control) const;

 private:
  Form* form_;
  std::vector<std::unique_ptr<ControlView>> views_;
};

}  // namespace tarnvik
