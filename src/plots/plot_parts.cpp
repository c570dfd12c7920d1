#include "plots/plot_parts.h"

#include <algorithm>
#include <cmath>

#include "core/text.h"
#include "platform/runtime_error.h"

namespace tarnvik {

namespace {

constexpr int kXValues = 6;
constexpr int kYValues = 1;
constexpr double kMargin = 1.05;

}  // namespace

double Finite(double result) {
  if (!std::isfinite(result)) throw RunTimeError(kErrOverflow);
  return result;
}

void YLimits::Take(double y) {
  TakeLower(y);
  TakeUpper(y);
}

void YLimits::TakeLower(double y) { min = std::min(min, y); }

void YLimits::TakeUpper(double y) { max = std::max(max, y); }

void YLimits::AddMargin() {
  min = Finite(min * kMargin);
  AddUpperMargin();
}

void YLimits::AddUpperMargin() { max = Finite(max * kMargin); }

void OpenPoints(Chart& chart, int series, int points) {
  chart.OpenData(kXValues, series, points);
  chart.OpenData(kYValues, series, points);
}

void ClosePoints(Chart& chart) {
  chart.CloseData(kXValues);
  chart.CloseData(kYValues);
}

void SetLimits(ChartAxis& axis, double min, double max) {
  axis.Min = min;
  axis.Max = max;
}

void ShowLegend(Chart& chart) {
  chart.SerLegBoxVisible = true;
  chart.LegendBoxDocked = kDockedRight;
}

void HideLegend(Chart& chart) { chart.SerLegBoxVisible = false; }

void FinishChart(Chart& chart, int gallery, int marker_setting) {
  chart.MarkerSetting = marker_setting;
  chart.Gallery = gallery;
  chart.ChartFinishFlag = true;
}

bool HasObservedShare(const Grid& shares, int row, int first_age_col) {
  if (row >= shares.Rows()) return false;
  const int end = std::min(first_age_col + NAges, shares.Cols());
  for (int col = first_age_col; col < end; ++col) {
    const std::string& share = shares.TextMatrix(row, col);
    if (share != kNotAvailable && Val(share) > 0) return true;
  }
  return false;
}

}  // namespace tarnvik
