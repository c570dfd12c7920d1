// Views of the kinds that hold one value or a list, and what they share.
#pragma once

#include <functional>
#include <memory>

#include "desktop/forms/control_view.h"
#include "desktop/forms/events.h"

namespace tarnvik {

// A view with a widget of one type for a control of one type.
template <class ControlT, class WidgetT>
class FieldView : public ControlView {
 public:
  FieldView(ControlT& control, WidgetT* widget) : ControlView(control), widget_(widget) {}
  QWidget* Widget() const override { return widget_; }

 protected:
  // The control; null when its form has gone.
  ControlT* Its() const { return static_cast<ControlT*>(Shown()); }
  // An act of the user on the control: whatever text is still being edited elsewhere comes first, and may
  // take the control away.
  void Act(const std::function<void(ControlT&)>& act) const {
    if (!Shown()) return;
    CommitPendingEdits();
    if (Shown()) UserEvent([&] { act(*Its()); });
  }
  WidgetT* widget_;
};

std::unique_ptr<ControlView> MakeTextBoxView(TextBox& box, QWidget* parent);
std::unique_ptr<ControlView> MakeLabelView(Label& label, QWidget* parent);
std::unique_ptr<ControlView> MakeButtonView(CommandButton& button, QWidget* parent);
std::unique_ptr<ControlView> MakeCheckView(CheckBox& check, QWidget* parent);
std::unique_ptr<ControlView> MakeOptionView(OptionButton& option, QWidget* parent);
std::unique_ptr<ControlView> MakeComboView(ComboBox& combo, QWidget* parent);
std::unique_ptr<ControlView> MakeListView(ListBox& list, QWidget* parent);

}  // namespace tarnvik
