// The tables of what a record cannot tell: how the groups of a form stand beside one another, and which of
// the few shapes a control has.
#pragma once

#include <QSize>
#include <string>
#include <string_view>

#include "platform/control.h"

namespace tarnvik {

// How the controls of one place stand: rows from top to bottom, parted by "/", of what stands side by side.
//   name     a control; of an array the element "name(3)", or "name" for all elements one after another
//   'text'   a text for the control that follows
//   a=b      controls that share one place: which is seen the logic says
//   ( ... )  rows within a row
//   .        nothing: an empty cell, wide enough to indent what follows
//   >        what follows stands at the right edge
//   x*3      three times as large a share of the space that is left
// A field brings the label that the record placed beside it. What is not named follows below.
struct Arrangement {
  const char* form;
  const char* place;  // a frame, a page "SSTab1 4", or "" for the form itself
  const char* rows;
};

// The rows of a place; null when the order of the record will do: one below the other.
const char* ArrangementOf(std::string_view form, std::string_view place);

enum class Look {
  Plain,
  Heading,    // a label in large letters
  Note,       // a label of several lines
  Value,      // a label that holds a number
  Path,       // a label that holds a path, cut in the middle where it is too long
  Wide,       // a text box that takes the width there is
  CheckList,  // a list whose entries are ticked
  Short,      // a grid of a few rows that are always the same
};
Look LookOf(const Control& control);

// Tab controls with more pages have them in a list at the left.
inline constexpr int kMostTabsInARow = 4;

// How large the window of a form is at first; without a height it is as high as it needs to be.
QSize FirstSizeOf(std::string_view form);

// Which buttons Enter and Escape press.
inline constexpr const char* kDefaultButton = "cmdOK";
inline constexpr const char* kCancelButton = "cmdCancel";

}  // namespace tarnvik
