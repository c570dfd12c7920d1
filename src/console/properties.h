// What can be asked of a control, as JSON.
#pragma once

#include <string>
#include <string_view>

#include "platform/form.h"

namespace tarnvik {

// The one value that a control of its kind stands for: the text of a box, the caption of a label, the tick of
// a check box (0 or 1), the mark of an option (true or false), the current entry's text, the page in front.
// Kinds without one value stop with an error.
std::string ControlValue(const Control& control);

// A property by its word: "Enabled", "TabCaption(2)", "CellBackColor(1,3)". A property that the kind of
// control lacks, or an index that the control lacks, stops with an error.
std::string PropertyValue(const Control& control, std::string_view property);

// An object of all properties of a control: those with one index as arrays, those of single cells left out.
std::string PropertiesOf(const Control& control);

}  // namespace tarnvik
