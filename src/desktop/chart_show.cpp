#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "desktop/chart_frame.h"
#include "desktop/chart_painting.h"
#include "desktop/chart_palette.h"
#include "desktop/chart_picture.h"

namespace tarnvik {

namespace {

constexpr double kLineWidth = 1.7;
constexpr double kBigMarker = 6.5;
constexpr double kSmallMarker = 4.5;
constexpr int kMarkersByYear = 3;
constexpr int kLegendCharacters = 28;
constexpr double kBarsShare = 0.8;  // of the distance between places

// --- Lines and points

// A graph whose markers are drawn whole where they stand on the frame.
class MarkedGraph : public QCPGraph {
 public:
  using QCPGraph::QCPGraph;

 protected:
  void drawScatterPlot(QCPPainter* painter, const QVector<QPointF>& scatters,
                       const QCPScatterStyle& style) const override {
    const QRectF inside = QRectF(clipRect()).adjusted(-1, -1, 1, 1);
    QVector<QPointF> shown;
    std::copy_if(scatters.begin(), scatters.end(), std::back_inserter(shown),
                 [&](const QPointF& point) { return inside.contains(point); });
    painter->save();
    painter->setClipping(false);
    QCPGraph::drawScatterPlot(painter, shown, style);
    painter->restore();
  }
};

QVector<QCPGraphData> PointsOf(const ChartSeries& series) {
  QVector<QCPGraphData> points;
  points.reserve(static_cast<qsizetype>(series.Y.size()));
  for (std::size_t i = 0; i < series.Y.size(); ++i) {
    const double place = PlaceOf(series, i);
    if (!IsDrawn(place)) continue;
    // A value that is not a number interrupts the line.
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    points.append({place, IsDrawn(series.Y[i]) ? series.Y[i] : nothing});
  }
  return points;
}

// The points that no line reaches: both neighbours are hidden.
QVector<QCPGraphData> LonePoints(const QVector<QCPGraphData>& points) {
  QVector<QCPGraphData> lone;
  for (qsizetype i = 0; i < points.size(); ++i) {
    const bool before = i > 0 && !std::isnan(points[i - 1].value);
    const bool behind = i + 1 < points.size() && !std::isnan(points[i + 1].value);
    if (!before && !behind && !std::isnan(points[i].value)) lone.append(points[i]);
  }
  return lone;
}

QCPScatterStyle MarkerOf(std::size_t series, double size) {
  static constexpr QCPScatterStyle::ScatterShape kShapes[] = {
      QCPScatterStyle::ssDisc, QCPScatterStyle::ssSquare, QCPScatterStyle::ssTriangle,
      QCPScatterStyle::ssDiamond, QCPScatterStyle::ssTriangleInverted};
  const QColor colour = SeriesColour(series);
  return {kShapes[series % std::size(kShapes)], QPen(colour), QBrush(colour), size};
}

class SeriesPainter {
 public:
  SeriesPainter(const Chart& chart, const ChartFrame& frame) : chart_(chart), frame_(frame) {}

  // Draws a series and returns what stands for it in the legend.
  QCPAbstractPlottable* Add(std::size_t number) const {
    const ChartSeries& series = chart_.AllSeries()[number];
    if (IsHorizontal(chart_)) return AddHorizontalBars(number, series);
    switch (LookOf(chart_, series)) {
      case Look::Bars:
      case Look::HorizontalBars:  // of a single series in an upright chart
        return AddBars(number, series);
      case Look::Points:
        return AddPoints(number, series);
      case Look::FilledCurve:
        return AddFilledCurve(number, series);
      case Look::Line:
        break;
    }
    return AddLine(number, series);
  }

 private:
  QCPAxis* Bottom(std::size_t panel = 0) const { return frame_.panels[panel]->axis(QCPAxis::atBottom); }
  QCPAxis* Left(std::size_t panel = 0) const { return frame_.panels[panel]->axis(QCPAxis::atLeft); }

  bool HasPoints() const {
    const auto& all = chart_.AllSeries();
    return std::any_of(all.begin(), all.end(),
                       [&](const auto& s) { return LookOf(chart_, s) == Look::Points; });
  }

  MarkedGraph* NewGraph(const QVector<QCPGraphData>& points) const {
    auto* graph = new MarkedGraph(Bottom(), Left());
    graph->data()->set(points);
    return graph;
  }

  QCPAbstractPlottable* AddPoints(std::size_t number, const ChartSeries& series) const {
    MarkedGraph* graph = NewGraph(PointsOf(series));
    graph->setLineStyle(QCPGraph::lsNone);
    graph->setScatterStyle(MarkerOf(number, kBigMarker));
    return graph;
  }

  // A line among observed points has no markers of its own: it is what the model expects between them.
  QCPAbstractPlottable* AddLine(std::size_t number, const ChartSeries& series) const {
    const double size = chart_.MarkerSetting.value_or(0) == kMarkersByYear && series.Y.size() <= 60
                            ? kBigMarker
                            : kSmallMarker;
    const QVector<QCPGraphData> points = PointsOf(series);
    MarkedGraph* graph = NewGraph(points);
    graph->setPen(QPen(SeriesColour(number), kLineWidth));
    if (!HasPoints()) {
      graph->setScatterStyle(MarkerOf(number, size));
    } else if (const auto lone = LonePoints(points); !lone.isEmpty()) {
      MarkedGraph* markers = NewGraph(lone);
      markers->setLineStyle(QCPGraph::lsNone);
      markers->setScatterStyle(MarkerOf(number, size));
    }
    return graph;
  }

  QCPAbstractPlottable* AddFilledCurve(std::size_t number, const ChartSeries& series) const {
    MarkedGraph* graph = NewGraph(PointsOf(series));
    const QColor shade = ShadeColour(number, chart_.AllSeries().size());
    graph->setBrush(shade);
    graph->setPen(QPen(shade.darker(130), 1));
    return graph;
  }

  // --- Bars

  // Bars of several series stand side by side: which of them this is, and how many there are.
  std::pair<int, int> BarsSlot(std::size_t number) const {
    int before = 0;
    int all = 0;
    for (std::size_t s = 0; s < chart_.AllSeries().size(); ++s) {
      const Look look = LookOf(chart_, chart_.AllSeries()[s]);
      if (look != Look::Bars && look != Look::HorizontalBars) continue;
      ++all;
      if (s < number) ++before;
    }
    return {before, all};
  }

  QCPBars* NewBars(std::size_t number, QCPAxis* places, QCPAxis* values, double room,
                   const ChartSeries& series) const {
    const auto [before, all] = BarsSlot(number);
    const double width = room / all;
    QVector<QCPBarsData> data;
    for (std::size_t i = 0; i < series.Y.size(); ++i) {
      if (!IsDrawn(PlaceOf(series, i)) || !IsDrawn(series.Y[i])) continue;
      data.append({PlaceOf(series, i) + width * (before - (all - 1) / 2.0), series.Y[i]});
    }
    auto* bars = new QCPBars(places, values);
    bars->data()->set(data);
    bars->setWidth(width);
    bars->setAntialiased(false);
    bars->setBrush(SeriesColour(number));
    bars->setPen(QPen(SeriesColour(number).darker(140)));
    return bars;
  }

  QCPAbstractPlottable* AddBars(std::size_t number, const ChartSeries& series) const {
    // A few bars do not fill the picture.
    constexpr double kWidestShare = 1.0 / 8;
    const double room = std::min(kBarsShare * BarSpacing(chart_), Bottom()->range().size() * kWidestShare);
    return NewBars(number, Bottom(), Left(), room, series);
  }

  QCPAbstractPlottable* AddHorizontalBars(std::size_t number, const ChartSeries& series) const {
    ChartSeries rows = series;
    rows.X.clear();  // the points stand above each other by their numbers
    QCPAbstractPlottable* first = nullptr;
    for (std::size_t panel = 0; panel < frame_.panels.size(); ++panel) {
      QCPBars* bars = NewBars(number, Left(panel), Bottom(panel), kBarsShare, rows);
      if (!first) first = bars;
    }
    return first;
  }

  const Chart& chart_;
  const ChartFrame& frame_;
};

// What is drawn first lies below. Fills are below everything, the widest, which comes last, below the others;
// points lie on lines.
std::vector<std::size_t> DrawingOrder(const Chart& chart) {
  const auto& all = chart.AllSeries();
  std::vector<std::size_t> order;
  for (std::size_t s = all.size(); s-- > 0;) {
    if (LookOf(chart, all[s]) == Look::FilledCurve) order.push_back(s);
  }
  for (const Look look : {Look::HorizontalBars, Look::Bars, Look::Line, Look::Points}) {
    for (std::size_t s = 0; s < all.size(); ++s) {
      if (LookOf(chart, all[s]) == look) order.push_back(s);
    }
  }
  return order;
}

void FillPlot(const Chart& chart, QCustomPlot& plot) {
  const ChartFrame frame = BuildFrame(chart, plot);
  const SeriesPainter painter(chart, frame);
  std::vector<QCPAbstractPlottable*> drawn(chart.AllSeries().size());
  for (const std::size_t number : DrawingOrder(chart)) drawn[number] = painter.Add(number);
  for (std::size_t number = 0; number < drawn.size(); ++number) {
    drawn[number]->setName(WrappedText(chart.AllSeries()[number].Legend, kLegendCharacters));
    if (frame.legend) drawn[number]->addToLegend(frame.legend);
  }
}

}  // namespace

void ShowChart(const Chart& chart, QCustomPlot& plot) {
  FillPlot(chart, plot);
  plot.replot(QCustomPlot::rpQueuedReplot);
}

void PaintChart(const Chart& chart, QPaintDevice& device, int width, int height, Painting painting) {
  // One widget draws all pictures; it goes when the application goes.
  static QCustomPlot* plot = nullptr;
  if (!plot) {
    plot = new QCustomPlot;
    qAddPostRoutine([] {
      delete plot;
      plot = nullptr;
    });
  }
  FillPlot(chart, *plot);
  QCPPainter painter(&device);
  if (painting == Painting::Vectors) painter.setMode(QCPPainter::pmVectorized);
  plot->toPainter(&painter, width, height);
}

}  // namespace tarnvik
