#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "charts/chart_frame.h"
#include "charts/chart_painting.h"
#include "charts/chart_palette.h"
#include "charts/chart_picture.h"

namespace tarnvik {

namespace {

constexpr double kLineWidth = 1.7;
constexpr double kBigMarker = 6.5;
constexpr double kSmallMarker = 4.5;
constexpr int kMarkersByYear = 3;
constexpr int kLegendCharacters = 28;
constexpr std::size_t kRoomForBigMarkers = 60;  // points of a line
constexpr double kBarsShare = 0.8;              // of the distance between places
constexpr double kWidestBars = 1.0 / 8;         // of the picture: a few bars do not fill it

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

QVector<QCPGraphData> PointsOf(const Chart& chart, const ChartSeries& series) {
  QVector<QCPGraphData> points;
  points.reserve(static_cast<qsizetype>(series.Y.size()));
  for (std::size_t i = 0; i < series.Y.size(); ++i) {
    const double place = PlaceOf(chart, series, i);
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

// What a series is drawn from and on.
struct Sheet {
  const Chart& chart;
  const ChartFrame& frame;
  QCPAxis* Bottom(std::size_t panel = 0) const { return frame.panels[panel]->axis(QCPAxis::atBottom); }
  QCPAxis* Left(std::size_t panel = 0) const { return frame.panels[panel]->axis(QCPAxis::atLeft); }
};

MarkedGraph* NewGraph(const Sheet& sheet, const QVector<QCPGraphData>& points) {
  auto* graph = new MarkedGraph(sheet.Bottom(), sheet.Left());
  graph->data()->set(points);
  return graph;
}

MarkedGraph* NewMarkers(const Sheet& sheet, const QVector<QCPGraphData>& points,
                        const QCPScatterStyle& marker) {
  MarkedGraph* graph = NewGraph(sheet, points);
  graph->setLineStyle(QCPGraph::lsNone);
  graph->setScatterStyle(marker);
  return graph;
}

bool HasPoints(const Chart& chart) {
  const auto& all = chart.AllSeries();
  return std::any_of(all.begin(), all.end(), [&](const auto& s) { return LookOf(chart, s) == Look::Points; });
}

QCPAbstractPlottable* AddPoints(const Sheet& sheet, std::size_t number) {
  return NewMarkers(sheet, PointsOf(sheet.chart, sheet.chart.AllSeries()[number]),
                    MarkerOf(number, kBigMarker));
}

// A line among observed points has no markers of its own: it is what the model expects between them.
QCPAbstractPlottable* AddLine(const Sheet& sheet, std::size_t number) {
  const ChartSeries& series = sheet.chart.AllSeries()[number];
  const bool big = sheet.chart.MarkerSetting == kMarkersByYear && series.Y.size() <= kRoomForBigMarkers;
  const QCPScatterStyle marker = MarkerOf(number, big ? kBigMarker : kSmallMarker);
  const QVector<QCPGraphData> points = PointsOf(sheet.chart, series);
  MarkedGraph* graph = NewGraph(sheet, points);
  graph->setPen(QPen(SeriesColour(number), kLineWidth));
  if (!HasPoints(sheet.chart)) {
    graph->setScatterStyle(marker);
  } else if (const auto lone = LonePoints(points); !lone.isEmpty()) {
    NewMarkers(sheet, lone, marker);
  }
  return graph;
}

QCPAbstractPlottable* AddFilledCurve(const Sheet& sheet, std::size_t number) {
  MarkedGraph* graph = NewGraph(sheet, PointsOf(sheet.chart, sheet.chart.AllSeries()[number]));
  const QColor shade = ShadeColour(number, sheet.chart.AllSeries().size());
  graph->setBrush(shade);
  graph->setPen(QPen(shade.darker(130), 1));
  return graph;
}

// --- Bars

// Bars of several series stand side by side: how many stand before this one's, and how many there are.
std::pair<int, int> PlaceAmongBars(const Chart& chart, std::size_t number) {
  int before = 0;
  int all = 0;
  for (std::size_t s = 0; s < chart.AllSeries().size(); ++s) {
    const Look look = LookOf(chart, chart.AllSeries()[s]);
    if (look != Look::Bars && look != Look::HorizontalBars) continue;
    ++all;
    if (s < number) ++before;
  }
  return {before, std::max(all, 1)};
}

// The bars of the points from the first to the one before the last. `room` is what the bars of all series at
// one place take. SVG pictures cut nothing off: what does not belong into a panel must not be drawn there.
QCPBars* NewBars(const Sheet& sheet, std::size_t number, std::size_t first, std::size_t last, QCPAxis* places,
                 QCPAxis* values, double room) {
  const ChartSeries& series = sheet.chart.AllSeries()[number];
  const auto [before, all] = PlaceAmongBars(sheet.chart, number);
  const double width = room / all;
  const double shift = width * (before - (all - 1) / 2.0);
  QVector<QCPBarsData> data;
  for (std::size_t i = first; i < std::min(last, series.Y.size()); ++i) {
    const double place = PlaceOf(sheet.chart, series, i);
    if (IsDrawn(place) && IsDrawn(series.Y[i])) data.append({place + shift, series.Y[i]});
  }
  auto* bars = new QCPBars(places, values);
  bars->data()->set(data);
  bars->setWidth(width);
  bars->setAntialiased(false);
  bars->setBrush(SeriesColour(number));
  bars->setPen(QPen(SeriesColour(number).darker(140)));
  return bars;
}

QCPAbstractPlottable* AddBars(const Sheet& sheet, std::size_t number) {
  const double room =
      std::min(kBarsShare * BarSpacing(sheet.chart), sheet.Bottom()->range().size() * kWidestBars);
  return NewBars(sheet, number, 0, PointCount(sheet.chart), sheet.Bottom(), sheet.Left(), room);
}

QCPAbstractPlottable* AddHorizontalBars(const Sheet& sheet, std::size_t number) {
  QCPAbstractPlottable* first = nullptr;
  for (std::size_t panel = 0; panel < sheet.frame.panels.size(); ++panel) {
    const auto [from, to] = PointsOfPanel(sheet.chart, panel);
    QCPBars* bars = NewBars(sheet, number, from, to, sheet.Left(panel), sheet.Bottom(panel), kBarsShare);
    if (!first) first = bars;
  }
  return first;
}

// --- All series

// Draws a series and returns what stands for it in the legend.
QCPAbstractPlottable* AddSeries(const Sheet& sheet, std::size_t number) {
  switch (LookOf(sheet.chart, sheet.chart.AllSeries()[number])) {
    case Look::Bars:
      return AddBars(sheet, number);
    case Look::HorizontalBars:
      return AddHorizontalBars(sheet, number);
    case Look::Points:
      return AddPoints(sheet, number);
    case Look::FilledCurve:
      return AddFilledCurve(sheet, number);
    case Look::Line:
      break;
  }
  return AddLine(sheet, number);
}

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
  const Sheet sheet{chart, frame};
  std::vector<QCPAbstractPlottable*> drawn(chart.AllSeries().size());
  for (const std::size_t number : DrawingOrder(chart)) drawn[number] = AddSeries(sheet, number);
  for (std::size_t number = 0; number < drawn.size(); ++number) {
    drawn[number]->setName(WrappedText(chart.AllSeries()[number].Legend, kLegendCharacters));
    if (!frame.legend) continue;
    drawn[number]->addToLegend(frame.legend);
    // The strokes below the line of writing are to be seen whole.
    frame.legend->item(frame.legend->itemCount() - 1)->setMargins(QMargins(0, 1, 0, 2));
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
