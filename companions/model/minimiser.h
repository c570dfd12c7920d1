// Minimises a smooth function in two stages: limited-memory BFGS (NLopt) from far away, then a damped Newton
// method that polishes, and goes on alone where the first stage gave up.
#pragma once

#include <Eigen/Core>

#include <functional>

namespace model {

// The function in three forms. Values that are not finite are allowed away from the start.
struct Minimand {
  std::function<double(const Eigen::VectorXd& u)> value;
  std::function<double(const Eigen::VectorXd& u, Eigen::VectorXd& gradient)> valueAndGradient;
  std::function<Eigen::MatrixXd(const Eigen::VectorXd& u)> hessian;
};

struct MinimiserLimits {
  double gradient = 1e-6;  // Newton stops when no component of the gradient is larger
  int newtonSteps = 300;
  int evaluations = 3000;  // of the first stage
};

struct Minimum {
  Eigen::VectorXd u;
  double value = 0;
  double maxGradient = 0;  // largest absolute component at u
  int evaluations = 0;     // of the first stage
  int newtonSteps = 0;
};

// Starts from `start`, where the function must be finite; the end point is never higher.
Minimum Minimise(const Minimand& f, const Eigen::VectorXd& start, const MinimiserLimits& limits);

}  // namespace model
