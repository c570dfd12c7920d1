// The chart as data: the plot model that a drawing routine leaves behind, and the operations that fill it.
// Rendering is a front end's affair.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/control.h"

namespace tarnvik {

inline constexpr int kClearAllData = 67108864;

struct ChartAxis {
  std::optional<double> Min;
  std::optional<double> Max;
  std::string Title;
  std::optional<int> Decimals;
};

struct ChartSeries {
  std::string Legend;
  std::optional<int> Gallery;  // the chart's own where it has none
  std::vector<double> X;
  std::vector<double> Y;
};

class Chart : public Control {
 public:
  Chart(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::Chart, std::move(name), index) {}

  // Removes all data; the settings of axes and titles stay until they are set anew.
  void ClearData(int what = kClearAllData);
  // Opens a block of y values (kind 1) or x values (kind 6) of that many series and points, both at least 1.
  // Raises 380 for other kinds and counts.
  void OpenData(int kind, int series, int points);
  void CloseData(int kind);
  // Series and points count from 0; outside the open block they raise 9 "Subscript out of range".
  void SetValue(int series, int point, double y);
  void SetXValue(int series, int point, double x);
  // The y value of a point that is not drawn.
  static constexpr double Hidden = 1e308;

  const std::vector<ChartSeries>& AllSeries() const { return series_; }
  ChartSeries& Series(int series);
  // Writes the present picture to a file through the host. Kind 5 is a picture for documents: 900 x 600, PNG
  // whatever the file's ending. Raises 380 for other kinds, and what the host raises: 70, 75 or 76.
  void Export(int kind, const std::string& path) const;
  // Text labels of the points on the category axis.
  void SetPointLabel(int point, std::string_view text);
  const std::vector<std::string>& PointLabels() const { return point_labels_; }

  std::optional<int> Gallery;  // 1 lines, 2 bars, 4 points, 19 filled curves, 20 horizontal bars
  std::optional<int> MarkerSetting;
  bool ChartFinishFlag = false;
  bool SerLegBoxVisible = false;
  std::optional<int> LegendBoxDocked;
  ChartAxis AxisX;
  ChartAxis AxisY;
  std::string Titles[2];

 private:
  double& Point(int series, int point, std::vector<double> ChartSeries::*values);
  std::vector<ChartSeries> series_;
  std::vector<std::string> point_labels_;
};

}  // namespace tarnvik
