// The view of one control: shows what it holds, and passes the user's acts on it to the logic. There is one
// kind of view for each kind of control; none knows a form.
#pragma once

#include <memory>

#include "platform/chart.h"
#include "platform/control.h"
#include "platform/grid.h"
#include "platform/lists.h"

class QWidget;

namespace tarnvik {

class ControlView {
 public:
  // Registers as the view of the control: RefreshViews calls Refresh after an event that changed it.
  explicit ControlView(Control& control);
  virtual ~ControlView();
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  // The widget, owned by its parent widget.
  virtual QWidget* Widget() const = 0;
  // Brings the widget in line with the control; the logic hears nothing of it.
  virtual void Refresh() = 0;

  // The control; null once its form has been unloaded: the widget may live on until Qt deletes it, and passes
  // nothing on.
  Control* Shown() const { return control_; }
  // The form goes.
  void LetGo();

 protected:
  // The last moment in which what the view points to in the control is there.
  virtual void Leave() {}

 private:
  Control* control_;
};

// What every kind has: enabled, visible, tip, colours, and the accessible name, for which the caption serves.
void ShowCommon(const Control& control, QWidget& widget);

// A view of the control's kind. Frames and tab controls are laid out by their form's view.
std::unique_ptr<ControlView> MakeView(Control& control, QWidget* parent);

// One per kind with a file of its own.
std::unique_ptr<ControlView> MakeGridView(Grid& grid, QWidget* parent);
std::unique_ptr<ControlView> MakeChartView(Chart& chart, QWidget* parent);
std::unique_ptr<ControlView> MakeTextView(RichText& text, QWidget* parent);  // for viewing long texts

}  // namespace tarnvik
