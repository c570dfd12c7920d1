// Exact derivatives: a function is recorded once, operation by operation, and swept for values, gradients,
// Hessians and Jacobians (Griewank and Walther 2008). One recording per kind is alive at a time.
#pragma once

#include "number_type.h"

#include <Eigen/Core>

#include <functional>
#include <vector>

namespace model {

using Vector = Eigen::VectorXd;
using Matrix = Eigen::MatrixXd;

enum class RecordingKind : short { Objective = 1, Quantities = 2 };

// A function of n >= 1 numbers. The result of `f` has m elements; m is found by the recording itself.
class Recording {
 public:
  using Function = std::function<std::vector<adouble>(const std::vector<adouble>&)>;

  // Records f at `point`. `operations` is a rough upper guess of the number of operations: above it the
  // recording would continue in files in the current directory, beside the user's case.
  Recording(RecordingKind kind, const Vector& point, std::size_t operations, const Function& f);
  ~Recording();
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  // The first three are for functions with one result.
  double Value(const Vector& u) const;
  double ValueAndGradient(const Vector& u, Vector& gradient) const;
  Matrix Hessian(const Vector& u) const;
  Matrix Jacobian(const Vector& u) const;  // m x n

 private:
  short tag_;
  int inputs_;
  int outputs_ = 0;
};

}  // namespace model
