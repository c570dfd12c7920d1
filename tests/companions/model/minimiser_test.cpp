#include "minimiser.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using Eigen::MatrixXd;
using Eigen::VectorXd;

// A function of two numbers with its derivatives by central differences of the gradient.
model::Minimand WithGradient(const std::function<double(const VectorXd&, VectorXd&)>& f) {
  model::Minimand m;
  m.valueAndGradient = f;
  m.value = [f](const VectorXd& u) {
    VectorXd ignored(u.size());
    return f(u, ignored);
  };
  m.hessian = [f](const VectorXd& u) {
    MatrixXd H(u.size(), u.size());
    for (Eigen::Index i = 0; i < u.size(); ++i) {
      VectorXd left = u, right = u, gLeft(u.size()), gRight(u.size());
      left[i] -= 1e-5;
      right[i] += 1e-5;
      f(left, gLeft);
      f(right, gRight);
      H.col(i) = (gRight - gLeft) / 2e-5;
    }
    return MatrixXd((H + H.transpose()) / 2);
  };
  return m;
}

double Rosenbrock(const VectorXd& u, VectorXd& g) {
  const double a = u[1] - u[0] * u[0];
  g.resize(2);
  g << -400 * u[0] * a - 2 * (1 - u[0]), 200 * a;
  return 100 * a * a + (1 - u[0]) * (1 - u[0]);
}

// Its logarithm ends at u0 = -1; the minimum lies at (1, 2).
double WithBorder(const VectorXd& u, VectorXd& g) {
  g.resize(2);
  if (u[0] <= -1) {
    g.setConstant(std::numeric_limits<double>::quiet_NaN());
    return std::numeric_limits<double>::quiet_NaN();
  }
  g << 1 - 2 / (1 + u[0]), 2 * (u[1] - 2);
  return u[0] - 2 * std::log(1 + u[0]) + (u[1] - 2) * (u[1] - 2);
}

// Two minima at u0 = +-1 and a ridge between them, where the Hessian is indefinite.
double TwoValleys(const VectorXd& u, VectorXd& g) {
  g.resize(2);
  g << 4 * u[0] * (u[0] * u[0] - 1), 2 * u[1];
  return std::pow(u[0] * u[0] - 1, 2) + u[1] * u[1];
}

struct Task {
  const char* name;
  double (*f)(const VectorXd&, VectorXd&);
  double start[2];
  double minimum;
};

TEST(Minimiser, reaches_the_minimum_with_either_stage) {
  const Task tasks[] = {{"curved valley", Rosenbrock, {-1.2, 1}, 0},
                        {"curved valley from afar", Rosenbrock, {-3, -4}, 0},
                        {"border of the defined", WithBorder, {-0.999, -50}, 1 - 2 * std::log(2)},
                        {"ridge", TwoValleys, {0.001, 3}, 0}};
  for (const Task& task : tasks) {
    for (const int evaluations : {3000, 1}) {  // with one evaluation the Newton stage is on its own
      SCOPED_TRACE(task.name + std::string(", evaluations ") + std::to_string(evaluations));
      const VectorXd start = Eigen::Map<const VectorXd>(task.start, 2);
      const model::Minimum end = model::Minimise(WithGradient(task.f), start, {1e-8, 300, evaluations});
      EXPECT_NEAR(end.value, task.minimum, 1e-10);
      EXPECT_LT(end.maxGradient, 1e-8);
    }
  }
}

TEST(Minimiser, never_ends_higher_than_it_started_and_tells_the_true_gradient) {
  VectorXd start(2);
  start << -1.2, 1;
  VectorXd g;
  const double first = Rosenbrock(start, g);
  const model::Minimum end = model::Minimise(WithGradient(Rosenbrock), start, {1e-8, 2, 3});
  EXPECT_LE(end.value, first);
  EXPECT_DOUBLE_EQ(end.value, Rosenbrock(end.u, g));
  EXPECT_DOUBLE_EQ(end.maxGradient, g.cwiseAbs().maxCoeff());
  EXPECT_LE(end.newtonSteps, 2);
}

}  // namespace
