// Recorded derivatives against central differences, on every path of the model.

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "case_runs.h"
#include "fit.h"

namespace {

using model::Matrix;
using model::Vector;

constexpr double kStep = 1e-5;

// The objective function without recording, as the report computes it.
double PlainObjective(const model::Fit& fit, const Vector& u) {
  double hold = 0;
  const auto values = model::FromFreeNumbers<double>(fit.values, fit.phase, {u.begin(), u.end()}, hold);
  const auto population = model::ComputePopulation(fit.data, values, fit.phase);
  return model::ComputeComponents(fit.data, fit.settings, values, population, hold).Total();
}

void CheckAt(const model::Fit& fit, const Vector& u, bool withHessian) {
  const auto recording = model::RecordObjective(fit);
  Vector gradient;
  EXPECT_NEAR(recording->ValueAndGradient(u, gradient), PlainObjective(fit, u),
              1e-9 * std::abs(PlainObjective(fit, u)));
  const Matrix hessian = withHessian ? recording->Hessian(u) : Matrix();
  const double scale = gradient.cwiseAbs().maxCoeff();
  for (Eigen::Index i = 0; i < u.size(); ++i) {
    Vector left = u, right = u, gLeft, gRight;
    left[i] -= kStep;
    right[i] += kStep;
    const double difference = (PlainObjective(fit, right) - PlainObjective(fit, left)) / (2 * kStep);
    EXPECT_NEAR(gradient[i], difference, 1e-6 * scale) << "free number " << i;
    if (!withHessian) continue;
    recording->ValueAndGradient(left, gLeft);
    recording->ValueAndGradient(right, gRight);
    const Vector row = (gRight - gLeft) / (2 * kStep);
    EXPECT_LT((hessian.col(i) - row).cwiseAbs().maxCoeff(), 1e-6 * hessian.cwiseAbs().maxCoeff())
        << "free number " << i;
  }
}

Vector NearStart(const model::Fit& fit) {
  std::mt19937 random(11);
  std::uniform_real_distribution<> shift(-0.3, 0.3);
  Vector u = model::CurrentFreeNumbers(fit);
  for (double& x : u) x += shift(random);
  return u;
}

TEST(Derivatives, agree_with_central_differences_in_all_forms_of_the_model) {
  for (const Variant& variant : Variants()) {
    SCOPED_TRACE(variant.name);
    const LoadedCase loaded = Load(SmallCase().With(variant.inDat, variant.inPin));
    std::ostringstream ignored;
    model::Fit fit(loaded.data, loaded.start, {ignored, ignored});
    fit.phase = fit.layout.LastPhase();
    CheckAt(fit, NearStart(fit), true);
  }
}

TEST(Derivatives, agree_with_central_differences_in_the_cod_case) {
  const LoadedCase loaded = Load(CodCase());
  std::ostringstream ignored;
  model::Fit fit(loaded.data, loaded.start, {ignored, ignored});
  fit.phase = fit.layout.LastPhase();
  CheckAt(fit, NearStart(fit), false);
}

}  // namespace
