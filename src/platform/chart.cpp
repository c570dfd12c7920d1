#include "platform/chart.h"

#include "platform/host.h"

namespace tarnvik {

namespace {

constexpr int kYValues = 1;
constexpr int kXValues = 6;
constexpr int kPictureForDocuments = 5;

}  // namespace

void Chart::ClearData(int /*what*/) {
  series_.clear();
  point_labels_.clear();
  ChartFinishFlag = false;
  MarkChanged();
}

void Chart::OpenData(int kind, int series, int points) {
  if ((kind != kYValues && kind != kXValues) || series < 1 || points < 1)
    throw RunTimeError(kErrInvalidProperty);
  series_.resize(static_cast<std::size_t>(series));
  for (ChartSeries& one : series_) {
    (kind == kXValues ? one.X : one.Y).assign(static_cast<std::size_t>(points), 0.0);
  }
}

void Chart::CloseData(int /*kind*/) { MarkChanged(); }

double& Chart::Point(int series, int point, std::vector<double> ChartSeries::*values) {
  auto& points = Series(series).*values;
  if (point < 0 || static_cast<std::size_t>(point) >= points.size()) throw RunTimeError(kErrSubscript);
  return points[static_cast<std::size_t>(point)];
}

void Chart::SetValue(int series, int point, double y) { Point(series, point, &ChartSeries::Y) = y; }

void Chart::SetXValue(int series, int point, double x) { Point(series, point, &ChartSeries::X) = x; }

ChartSeries& Chart::Series(int series) {
  if (series < 0 || static_cast<std::size_t>(series) >= series_.size()) throw RunTimeError(kErrSubscript);
  return series_[static_cast<std::size_t>(series)];
}

void Chart::Export(int kind, const std::string& path) const {
  if (kind != kPictureForDocuments) throw RunTimeError(kErrInvalidProperty);
  TheHost().ExportChart(*this, path);
}

void Chart::SetPointLabel(int point, std::string_view text) {
  if (point < 0) throw RunTimeError(kErrSubscript);
  const auto at = static_cast<std::size_t>(point);
  if (point_labels_.size() <= at) point_labels_.resize(at + 1);
  point_labels_[at] = text;
}

}  // namespace tarnvik
