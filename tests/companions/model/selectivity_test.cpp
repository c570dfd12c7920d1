#include "selectivity.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "recording.h"

namespace {

using List = std::vector<double>;

// The curve over real ages, by giving every age a fine step of its own: beta and a50 scale with the step.
double GreatestOverRealAges(double logGamma, double beta, double a50, double* at) {
  constexpr int finer = 200;
  const List s = model::DomedSelectivity(logGamma, std::log(beta / finer), std::log(a50 * finer), 40 * finer,
                                         40 * finer);
  const auto top = std::max_element(s.begin(), s.end());
  *at = static_cast<double>(top - s.begin() + 1) / finer;
  return *top;
}

TEST(Selectivity, domed_curve_has_its_top_of_1_where_theory_puts_it) {
  const double cases[][3] = {{-2, 1, 3}, {-0.7, 0.5, 8}, {-4, 2, 2}, {-1, 3, 10}};
  for (const auto& [logGamma, beta, a50] : cases) {
    double at = 0;
    EXPECT_NEAR(GreatestOverRealAges(logGamma, beta, a50, &at), 1, 1e-4);
    const double gamma = std::exp(logGamma);
    EXPECT_NEAR(at, a50 + std::log((1 - gamma) / gamma) / beta, 0.01);
  }
}

TEST(Selectivity, domed_curve_becomes_the_logistic_one_as_gamma_goes_to_0) {
  const List domed = model::DomedSelectivity(-30.0, std::log(1.2), std::log(3.0), 6, 8);
  const List logistic = model::FlatToppedSelectivity(std::log(1.2), std::log(3.0), 6, 8);
  for (std::size_t a = 0; a < domed.size(); ++a) EXPECT_NEAR(domed[a] / domed[5], logistic[a], 1e-9);
}

TEST(Selectivity, ages_above_the_last_estimated_one_have_its_value) {
  const List logistic = model::FlatToppedSelectivity(0.3, 0.7, 3, 6);
  const List domed = model::DomedSelectivity(-1.0, 0.3, 0.7, 3, 6);
  EXPECT_DOUBLE_EQ(logistic[2], 1);
  EXPECT_LT(logistic[1], logistic[2]);
  for (std::size_t a = 3; a < 6; ++a) {
    EXPECT_DOUBLE_EQ(logistic[a], logistic[2]);
    EXPECT_DOUBLE_EQ(domed[a], domed[2]);
  }
}

// Within the bounds, 100 ages bring beta (a50 - a) to 1450, far beyond the range of exp.
TEST(Selectivity, stays_finite_with_its_derivatives_at_the_corners_of_the_bounds) {
  constexpr int nAges = 100;
  for (const double logGamma : {-8.0, -0.1})
    for (const double logBeta : {-4.0, 2.5})
      for (const double logA50 : {-2.0, std::log(1.2 * nAges)})
        for (const bool flat : {true, false}) {
          model::Vector u(3);
          u << logGamma, logBeta, logA50;
          const model::Recording curve(
              model::RecordingKind::Quantities, u, 0, [flat](const std::vector<adouble>& x) {
                return flat ? model::FlatToppedSelectivity(x[1], x[2], nAges, nAges)
                            : model::DomedSelectivity(x[0], x[1], x[2], nAges, nAges);
              });
          EXPECT_TRUE(curve.Jacobian(u).allFinite()) << logGamma << ' ' << logBeta << ' ' << logA50;
          const List s = flat ? model::FlatToppedSelectivity(logBeta, logA50, nAges, nAges)
                              : model::DomedSelectivity(logGamma, logBeta, logA50, nAges, nAges);
          for (const double value : s) EXPECT_TRUE(std::isfinite(value) && value >= 0) << value;
        }
}

}  // namespace
