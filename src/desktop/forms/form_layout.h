// Lays out a form: its controls into frames and onto pages as the record says, beside one another as the
// arrangements say.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/forms/captions.h"
#include "desktop/forms/control_view.h"
#include "platform/form.h"

namespace tarnvik {

// The views of a form, as far as they have been built.
struct FormParts {
  Form& form;
  std::vector<std::unique_ptr<ControlView>> views;
  std::unordered_map<const Control*, ControlView*> view_of;

  ControlView* Find(const Control& control) const {
    const auto found = view_of.find(&control);
    return found == view_of.end() ? nullptr : found->second;
  }
  ControlView& Add(std::unique_ptr<ControlView> view) {
    view_of[view->Shown()] = view.get();
    views.push_back(std::move(view));
    return *views.back();
  }
};

// Fills a widget with the controls that lie on the form itself, in a frame, or on a page of a tab control
// (container null for the form). Letters given away already are not given again.
void LayOut(FormParts& parts, QWidget& widget, Control* container, int page, AltLetters& letters);

}  // namespace tarnvik
