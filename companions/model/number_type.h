// The model is written once, as templates over the number type: double for the report, adouble to record the
// operations for derivatives. Nothing in it may branch on the value of a parameter, since a recording holds
// one branch only.
#pragma once

#include <adolc/adouble.h>

#include <cmath>

namespace model {

// The present value of a number. Whatever is decided by it becomes a constant of the recording.
inline double PresentValue(double x) { return x; }
inline double PresentValue(const adouble& x) { return x.value(); }

// The smaller of x and `limit`, in a form that a recording keeps.
inline double HeldTo(double x, double limit) { return std::fmin(x, limit); }
inline adouble HeldTo(const adouble& x, double limit) {
  adouble held;
  const adouble room = limit - x;
  const adouble most = limit;
  condassign(held, room, x, most);
  return held;
}

}  // namespace model
