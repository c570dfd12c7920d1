#include "console/chart_model.h"

#include <charconv>
#include <cmath>

#include "console/json_text.h"

namespace tarnvik {

namespace {

// The shortest text that reads back as the number. JSON has no word for what is not a finite number.
std::string NumberOrNull(double value) {
  if (!std::isfinite(value) || value == Chart::Hidden) return "null";
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

std::string NumberOrNull(const std::optional<double>& value) { return value ? NumberOrNull(*value) : "null"; }
std::string NumberOrNull(const std::optional<int>& value) { return value ? JsonNumber(*value) : "null"; }

// The array of what `item` makes of each.
template <class T, class F>
std::string ArrayOf(const std::vector<T>& items, F&& item) {
  return JsonArray(0, static_cast<int>(items.size()) - 1,
                   [&](int i) { return item(items[static_cast<std::size_t>(i)]); });
}

std::string Numbers(const std::vector<double>& values) {
  return ArrayOf(values, [](double value) { return NumberOrNull(value); });
}

std::string Axis(const ChartAxis& axis) {
  return JsonObject({{"min", NumberOrNull(axis.Min)},
                     {"max", NumberOrNull(axis.Max)},
                     {"title", JsonText(axis.Title)},
                     {"decimals", NumberOrNull(axis.Decimals)}});
}

std::string Series(const ChartSeries& series) {
  return JsonObject({{"legend", JsonText(series.Legend)},
                     {"gallery", NumberOrNull(series.Gallery)},
                     {"x", Numbers(series.X)},
                     {"y", Numbers(series.Y)}});
}

}  // namespace

std::string ChartModel(const Chart& chart) {
  const auto text = [](const std::string& one) { return JsonText(one); };
  return JsonObject({{"titles", JsonArray(0, 1, [&](int i) { return JsonText(chart.Titles[i]); })},
                     {"gallery", NumberOrNull(chart.Gallery)},
                     {"axisX", Axis(chart.AxisX)},
                     {"axisY", Axis(chart.AxisY)},
                     {"legendBox", JsonFlag(chart.SerLegBoxVisible)},
                     {"markerSetting", NumberOrNull(chart.MarkerSetting)},
                     {"finished", JsonFlag(chart.ChartFinishFlag)},
                     {"pointLabels", ArrayOf(chart.PointLabels(), text)},
                     {"series", ArrayOf(chart.AllSeries(), Series)}});
}

}  // namespace tarnvik
