#include "minimiser.h"

#include <nlopt.h>
#include <Eigen/Cholesky>

#include <algorithm>
#include <cmath>
#include <memory>

namespace model {

namespace {

using Eigen::MatrixXd;
using Eigen::VectorXd;

constexpr double kNotFinite = 1e300;  // stands for a value that is not a finite number
constexpr double kLongestStep = 3;    // of one component in one Newton step
constexpr int kTriesPerStep = 40;

double Finite(double value) { return std::isfinite(value) ? value : kNotFinite; }

double LargestComponent(const VectorXd& v) { return v.size() == 0 ? 0 : v.cwiseAbs().maxCoeff(); }

// ---- Limited-memory BFGS ----

struct QuasiNewtonCall {
  const Minimand* f;
  int evaluations;
};

double EvaluateForNlopt(unsigned n, const double* point, double* gradient, void* call) {
  auto& state = *static_cast<QuasiNewtonCall*>(call);
  ++state.evaluations;
  const VectorXd u = Eigen::Map<const VectorXd>(point, n);
  if (gradient == nullptr) return Finite(state.f->value(u));
  VectorXd g;
  const double value = Finite(state.f->valueAndGradient(u, g));
  for (unsigned i = 0; i < n; ++i) gradient[i] = std::isfinite(g[i]) ? g[i] : 0;
  return value;
}

// The library often ends with a code that only says that rounding limits it, so its end point is judged by
// its value.
void RunQuasiNewton(const Minimand& f, Minimum& at, int evaluations) {
  const auto n = static_cast<unsigned>(at.u.size());
  const std::unique_ptr<nlopt_opt_s, decltype(&nlopt_destroy)> optimiser(nlopt_create(NLOPT_LD_LBFGS, n),
                                                                         &nlopt_destroy);
  if (!optimiser) return;
  QuasiNewtonCall call{&f, 0};
  nlopt_set_min_objective(optimiser.get(), EvaluateForNlopt, &call);
  nlopt_set_ftol_rel(optimiser.get(), 1e-14);
  nlopt_set_xtol_rel(optimiser.get(), 1e-12);
  nlopt_set_maxeval(optimiser.get(), evaluations);
  VectorXd end = at.u;
  double reported = 0;
  nlopt_optimize(optimiser.get(), end.data(), &reported);
  at.evaluations = call.evaluations;
  const double value = Finite(f.value(end));
  if (value < at.value) {
    at.value = value;
    at.u = end;
  }
}

// ---- Damped Newton ----

struct Damping {
  double lambda = 0;

  void Raise() { lambda = std::max(0.001, 4 * lambda); }
  void Adjust(double gainRatio) {
    if (gainRatio > 0.7)
      lambda = lambda < 1e-6 ? 0 : lambda / 8;
    else if (gainRatio < 0.25)
      lambda = std::max(0.0001, 2 * lambda);
  }
};

// A step that gains next to nothing is taken when rounding alone can explain that it does not.
bool Acceptable(double value, double newValue, double predicted) {
  return newValue <= value - 0.0001 * std::max(0.0, predicted) ||
         (newValue <= value + 1e-10 * std::abs(value) && predicted < 1e-8 * (1 + std::abs(value)));
}

bool TakeNewtonStep(const Minimand& f, const VectorXd& g, Minimum& at, Damping& damping) {
  const MatrixXd H = f.hessian(at.u);
  if (!H.allFinite()) return false;
  const VectorXd scale = H.diagonal().cwiseAbs().cwiseMax(1.0);
  for (int attempt = 0; attempt < kTriesPerStep; ++attempt) {
    MatrixXd damped = H;
    damped.diagonal() += damping.lambda * scale;
    const Eigen::LLT<MatrixXd> factor(damped);
    if (factor.info() == Eigen::Success) {
      VectorXd d = -factor.solve(g);
      if (const double longest = LargestComponent(d); longest > kLongestStep) d *= kLongestStep / longest;
      const double value = Finite(f.value(at.u + d));
      const double predicted = -(g.dot(d) + 0.5 * d.dot(H * d));
      if (Acceptable(at.value, value, predicted)) {
        damping.Adjust((at.value - value) / std::max(predicted, 1e-300));
        at.u += d;
        at.value = value;
        return true;
      }
    }
    damping.Raise();
  }
  return false;
}

void RunNewton(const Minimand& f, Minimum& at, const MinimiserLimits& limits) {
  Damping damping;
  VectorXd g;
  at.value = f.valueAndGradient(at.u, g);
  while (g.allFinite() && LargestComponent(g) >= limits.gradient && at.newtonSteps < limits.newtonSteps) {
    if (!TakeNewtonStep(f, g, at, damping)) break;
    ++at.newtonSteps;
    at.value = f.valueAndGradient(at.u, g);
  }
  at.maxGradient = g.allFinite() ? LargestComponent(g) : kNotFinite;
}

}  // namespace

Minimum Minimise(const Minimand& f, const VectorXd& start, const MinimiserLimits& limits) {
  Minimum at;
  at.u = start;
  at.value = f.value(start);
  RunQuasiNewton(f, at, limits.evaluations);
  RunNewton(f, at, limits);
  return at;
}

}  // namespace model
