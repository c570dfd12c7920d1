#include "plots/m_prior.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

#include "core/text.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "plots/frmplotinput.h"
#include "plots/plot_parts.h"

namespace tarnvik {

namespace {

// The root of 2 pi to these eleven digits: the curve keeps the values that it has always had.
constexpr double RootTwoPi = 2.5066282746;
constexpr double DM = 0.005;

struct Prior {
  double M0;                                    // the initial value of M, the centre
  double CV;                                    // the shape of the gamma form
  double Eps;                                   // added to M and M0
  double S() const { return Finite(CV * M0); }  // standard deviation
};

// M and its probability, point by point.
struct Curve {
  std::vector<double> XM;
  std::vector<double> YP;
};

// The limits of the bands from the lowest, minus three standard deviations, to the highest, plus three.
using Bounds = std::array<double, 6>;

double Ln(double x) { return Finite(std::log(x)); }
double Exp(double x) { return Finite(std::exp(x)); }
double Square(double x) { return Finite(x * x); }

// The density of a normal distribution but for its constant factor.
double Bell(double distance, double deviation) {
  return Exp(Finite(-0.5 * Square(distance) / Square(deviation)));
}

// The gamma function of x into result.
void GAMMAX(double x, double& result) { result = Finite(std::tgamma(x)); }

Bounds WithinGrid(Bounds Bound) {
  for (std::size_t k = 0; k < 3; ++k) Bound[k] = std::max(Bound[k], 0.0);
  for (std::size_t k = 3; k < 6; ++k) Bound[k] = std::min(Bound[k], 1.0);
  return Bound;
}

Bounds LognormalBounds(const Prior& prior) {
  const double S = prior.S();
  const double centre = Ln(prior.M0);
  return WithinGrid({Exp(centre - 3 * S), Exp(centre - 2 * S), Exp(centre - S), Exp(centre + S),
                     Exp(centre + 2 * S), Exp(centre + 3 * S)});
}

Bounds NormalBounds(const Prior& prior) {
  const double S = prior.S();
  return WithinGrid(
      {prior.M0 - 3 * S, prior.M0 - 2 * S, prior.M0 - S, prior.M0 + S, prior.M0 + 2 * S, prior.M0 + 3 * S});
}

double LognormalDensity(const Prior& prior, double M) {
  const double S = prior.S();
  const double distance = Ln(prior.Eps + M) - Ln(prior.Eps + prior.M0);
  return Finite(Bell(distance, S) / ((prior.Eps + M) * S * RootTwoPi));
}

double NormalDensity(const Prior& prior, double M) {
  const double S = prior.S();
  return Finite(Bell((prior.Eps + M) - (prior.Eps + prior.M0), S) / (S * RootTwoPi));
}

double GammaDensity(const Prior& prior, double M) {
  const double A = prior.CV;
  double G = 0;
  GAMMAX(A, G);
  const double ratio = Finite((M + prior.Eps) / prior.M0);
  const double rise = Finite(std::pow(A, A)) * Exp((A - 1) * Ln(ratio));
  return Finite(rise * Exp(-Finite((M + prior.Eps) * A / prior.M0)) / Exp(Ln(G)));
}

// By the entries of frmInput.cmbMType.
struct PriorForm {
  const char* name;
  int first_step;  // of the grid of M; the gamma form needs a positive M
  double (*density)(const Prior& prior, double M);
  Bounds (*bounds)(const Prior& prior);  // null for a curve without bands
};

constexpr std::array<PriorForm, 3> kForms = {{
    {"Lognormal", 0, LognormalDensity, LognormalBounds},
    {"Normal", 0, NormalDensity, NormalBounds},
    {"Gamma", 1, GammaDensity, nullptr},
}};

// The probabilities sum to 1.
Curve CurveOf(const PriorForm& form, const Prior& prior) {
  constexpr int kLastStep = 200;
  Curve curve;
  for (int step = form.first_step; step <= kLastStep; ++step) {
    curve.XM.push_back(step * DM);
    curve.YP.push_back(form.density(prior, curve.XM.back()));
  }
  const double sum = Finite(std::accumulate(curve.YP.begin(), curve.YP.end(), 0.0));
  for (double& y : curve.YP) y = Finite(y / sum);
  return curve;
}

YLimits Limits(const Curve& curve) {
  YLimits limits;
  for (const double y : curve.YP) limits.Take(y);
  limits.AddUpperMargin();
  return limits;
}

// Filled curves over one another, the narrowest band first; the last is the whole curve, whatever its name
// says. The values have the digits of their texts.
void DrawBands(Chart& chart, const Curve& curve, const Bounds& Bound) {
  const int n = static_cast<int>(curve.XM.size());
  OpenPoints(chart, 4, n);
  for (int i = 0; i < n; ++i) {
    const double x = curve.XM[static_cast<std::size_t>(i)];
    const double y = Val(NumberText(curve.YP[static_cast<std::size_t>(i)]));
    for (int s = 0; s < 4; ++s) {
      const auto width = static_cast<std::size_t>(s);
      const bool inside = s == 3 || (Bound[2 - width] <= x && x <= Bound[3 + width]);
      chart.SetXValue(s, i, x);
      chart.SetValue(s, i, inside ? y : Chart::Hidden);
    }
  }
  for (int s = 0; s < 4; ++s) chart.Series(s).Legend = "+/- " + NumberText(s + 1) + " STD";
  ClosePoints(chart);
}

void DrawCurve(Chart& chart, const Curve& curve) {
  const int n = static_cast<int>(curve.XM.size());
  OpenPoints(chart, 1, n);
  for (int i = 0; i < n; ++i) {
    chart.SetXValue(0, i, curve.XM[static_cast<std::size_t>(i)]);
    chart.SetValue(0, i, curve.YP[static_cast<std::size_t>(i)]);
  }
  ClosePoints(chart);
}

void SetTexts(Chart& chart, const PriorForm& form, const Prior& prior, std::string_view epsilon) {
  chart.Titles[0] = std::string("Input M, ") + form.name + " Distribution";
  chart.Titles[1] = "M = " + NumberText(prior.M0) + ", CV = " + NumberText(prior.CV) + ", Epsilon = ";
  chart.Titles[1] += epsilon;
  chart.AxisY.Title = "Probability";
  chart.AxisX.Title = "Natural Mortality";
}

// An error leaves what came before it: everything is computed before the note goes and the chart is filled.
void DrawPriorOf(Chart& chart, const PriorForm& form, const Prior& prior, std::string_view epsilon) {
  const Bounds Bound = form.bounds ? form.bounds(prior) : Bounds{};
  const Curve curve = CurveOf(form, prior);
  const YLimits limits = Limits(curve);
  frmPlotInput->lblMNoData.SetVisible(false);
  if (form.bounds) {
    DrawBands(chart, curve, Bound);
  } else {
    DrawCurve(chart, curve);
  }
  SetLimits(chart.AxisY, limits.min, limits.max);
  chart.AxisY.Decimals = 4;
  SetTexts(chart, form, prior, epsilon);
  SetLimits(chart.AxisX, 0, 1.0);
  chart.AxisX.Decimals = 4;
  if (form.bounds) {
    ShowLegend(chart);
  } else {
    HideLegend(chart);
  }
  FinishChart(chart, kFilledCurve, kMarkersByYear);
}

}  // namespace

void DrawMPrior() {
  DrawSilently([] {
    Chart& chart = frmPlotInput->Chart14;
    chart.ClearData();
    const std::string_view M0 = Trim(frmPin->txtParmFile(kParmM).Text());
    const std::string_view CV = Trim(frmInput->txtEstimate(kItemMCv).Text());
    const std::string_view epsilon = Trim(frmInput->txtEpsilon.Text());
    const int MType = frmInput->cmbMType.ListIndex();
    if (M0.empty() || CV.empty() || MType < 0) {
      frmPlotInput->lblMNoData.SetVisible(true);
      return;
    }
    const Prior prior{Val(M0), Val(CV), Val(epsilon)};
    DrawPriorOf(chart, kForms.at(static_cast<std::size_t>(MType)), prior, epsilon);
  });
}

}  // namespace tarnvik
