#include "recording.h"

#include <adolc/adolc.h>

#include <algorithm>

namespace model {

namespace {

using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

std::vector<double*> RowPointers(RowMajor& matrix) {
  std::vector<double*> rows(static_cast<std::size_t>(matrix.rows()));
  for (Eigen::Index i = 0; i < matrix.rows(); ++i) rows[static_cast<std::size_t>(i)] = matrix.row(i).data();
  return rows;
}

}  // namespace

Recording::Recording(RecordingKind kind, const Vector& point, std::size_t operations, const Function& f)
    : tag_(static_cast<short>(kind)), inputs_(static_cast<int>(point.size())) {
  const auto buffer = static_cast<unsigned int>(std::clamp<std::size_t>(operations, 1U << 20, 1U << 30));
  trace_on(tag_, 0, buffer, buffer, buffer, buffer, 0);
  {
    std::vector<adouble> u(static_cast<std::size_t>(inputs_));
    for (int i = 0; i < inputs_; ++i) u[i] <<= point[i];
    std::vector<adouble> results = f(u);
    outputs_ = static_cast<int>(results.size());
    double ignored = 0;
    for (adouble& result : results) result >>= ignored;
  }
  trace_off();
}

Recording::~Recording() { removeTape(tag_, ADOLC_REMOVE_COMPLETELY); }

double Recording::Value(const Vector& u) const {
  double value = 0;
  zos_forward(tag_, 1, inputs_, 0, u.data(), &value);
  return value;
}

double Recording::ValueAndGradient(const Vector& u, Vector& gradient) const {
  double value = 0;
  double weight = 1;
  gradient.resize(inputs_);
  zos_forward(tag_, 1, inputs_, 1, u.data(), &value);
  fos_reverse(tag_, 1, inputs_, &weight, gradient.data());
  return value;
}

Matrix Recording::Hessian(const Vector& u) const {
  RowMajor lower = RowMajor::Zero(inputs_, inputs_);
  std::vector<double> point(u.begin(), u.end());
  hessian(tag_, inputs_, point.data(), RowPointers(lower).data());
  return Matrix(lower.selfadjointView<Eigen::Lower>());
}

Matrix Recording::Jacobian(const Vector& u) const {
  RowMajor result = RowMajor::Zero(outputs_, inputs_);
  jacobian(tag_, outputs_, inputs_, u.data(), RowPointers(result).data());
  return Matrix(result);
}

}  // namespace model
