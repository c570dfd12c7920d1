#include "charts/chart_frame.h"

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>

#include "charts/chart_palette.h"
#include "charts/text.h"

namespace tarnvik {

namespace {

// Sizes in pixels, so that a picture is the same whatever the resolution of the screen.
constexpr int kTitlePixels = 13;  // 10 points
constexpr int kTextPixels = 12;
constexpr int kLeastTextPixels = 8;
constexpr int kDigitPixels = 8;  // a digit's width, generously
constexpr int kTitleCharacters = 100;
constexpr int kAxisTitleCharacters = 64;
constexpr std::size_t kRowsOfPanel = 40;  // as many as can be labelled above each other
constexpr std::size_t kMostPanels = 4;

QFont ChartFont(int pixels, bool bold = false) {
  QFont font("DejaVu Sans");
  font.setPixelSize(pixels);
  font.setBold(bold);
  // Colour fringes are made for one kind of screen and have no place in a file.
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  return font;
}

// --- Axes

// Round steps with plain labels, as many as there is room for in the picture.
class ScaleTicker : public QCPAxisTicker {
 public:
  // `share`: of the picture's width that the axis has.
  ScaleTicker(const QCPAxis& axis, const Scale& scale, double share)
      : axis_(axis), scale_(scale), share_(share) {}

 protected:
  double getTickStep(const QCPRange& range) override {
    Scale shown = scale_;
    shown.lower = range.lower;
    shown.upper = range.upper;
    step_ = TickStep(shown, MostTicks(shown));
    decimals_ = LabelDecimals(shown, step_);
    return step_;
  }

  int getSubTickCount(double step) override {
    const double mantissa = std::round(step / std::pow(10.0, std::floor(std::log10(step) + 1e-9)));
    if (scale_.whole && step < 1.5) return 0;
    if (mantissa == 5) return 4;
    return mantissa == 1 && !scale_.whole ? 4 : 1;
  }

  QString getTickLabel(double tick, const QLocale& locale, QChar, int) override {
    const double number = std::abs(tick) < step_ * 1e-6 ? 0.0 : tick;
    const bool plain = std::abs(number) < 1e15 && step_ > 1e-12;
    return plain ? locale.toString(number, 'f', decimals_) : locale.toString(number, 'g', 6);
  }

 private:
  int MostTicks(const Scale& shown) const {
    const QRect picture = axis_.parentPlot()->viewport();
    if (axis_.orientation() == Qt::Vertical) return std::clamp((picture.height() - 110) / 50, 2, 20);
    const int decimals = LabelDecimals(shown, TickStep(shown, 10));
    const double longest = std::max(std::abs(shown.lower), std::abs(shown.upper));
    const auto digits = QString::number(longest, 'f', decimals).size() + (shown.lower < 0 ? 1 : 0);
    const double room = (picture.width() - 100) * share_;
    const int most = static_cast<int>(room / static_cast<double>(digits * kDigitPixels + 16));
    return std::clamp(most, 2, shown.whole ? 30 : 11);
  }

  const QCPAxis& axis_;  // holds this ticker
  const Scale scale_;
  const double share_;
  double step_ = 1;
  int decimals_ = 0;
};

void StyleAxis(QCPAxis& axis, int label_pixels) {
  const QPen pen{QColor(kFrameColour)};
  axis.setBasePen(pen);
  axis.setTickPen(pen);
  axis.setSubTickPen(pen);
  axis.setTickLength(0, 5);
  axis.setSubTickLength(0, 3);
  axis.setTickLabelFont(ChartFont(label_pixels));
  axis.setTickLabelColor(QColor(kTextColour));
  axis.setLabelFont(ChartFont(kTextPixels));
  axis.setLabelColor(QColor(kTextColour));
  axis.setLabelPadding(6);
  axis.setLayer("axes");
  axis.grid()->setLayer("grid");
  axis.grid()->setPen(QPen(QColor(kGridColour)));
  axis.grid()->setZeroLinePen(Qt::NoPen);
}

void ScaleAxis(QCPAxis& axis, const Scale& scale, double share) {
  axis.setRange(scale.lower, scale.upper);
  axis.setTicker(QSharedPointer<QCPAxisTicker>(new ScaleTicker(axis, scale, share)));
  axis.setTicks(scale.known);
  axis.setTickLabels(scale.known);
  axis.grid()->setVisible(scale.known);
}

// Residuals go both ways from a line that has to be seen.
void ShowZeroLine(QCPAxis& axis) { axis.grid()->setZeroLinePen(QPen(QColor(kFrameColour))); }

void LabelPoints(QCPAxis& axis, const Chart& chart) {
  const QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
  ticker->setSubTickCount(0);
  const std::size_t count = PointCount(chart);
  for (std::size_t point = 0; point < count; ++point) {
    const auto& labels = chart.PointLabels();
    const QString label = point < labels.size() ? ShownText(labels[point]).simplified() : QString();
    ticker->addTick(static_cast<double>(point) + 1, label);
  }
  axis.setTicker(ticker);
}

// An axis rectangle with a plain line all round.
QCPAxisRect* NewPanel(QCustomPlot& plot, int label_pixels) {
  auto* panel = new QCPAxisRect(&plot);
  for (QCPAxis* axis : panel->axes()) StyleAxis(*axis, label_pixels);
  for (const auto side : {QCPAxis::atTop, QCPAxis::atRight}) {
    QCPAxis* axis = panel->axis(side);
    axis->setVisible(true);
    axis->setTicks(false);
    axis->setTickLabels(false);
    axis->grid()->setVisible(false);
  }
  panel->setMinimumMargins(QMargins(12, 8, 22, 8));
  return panel;
}

void BuildUprightPanel(const Chart& chart, QCPAxisRect& panel) {
  QCPAxis& places = *panel.axis(QCPAxis::atBottom);
  QCPAxis& values = *panel.axis(QCPAxis::atLeft);
  ScaleAxis(places, PlaceScale(chart), chart.SerLegBoxVisible ? 0.75 : 1);
  ScaleAxis(values, ValueScale(chart), 1);
  ShowZeroLine(values);
  if (!chart.PointLabels().empty()) LabelPoints(places, chart);
  places.setLabel(WrappedText(chart.AxisX.Title, kAxisTitleCharacters));
  values.setLabel(WrappedText(chart.AxisY.Title, kAxisTitleCharacters));
}

// --- Horizontal bars: the first row, at the top, is the point of the highest number.

std::size_t PanelCount(const Chart& chart) {
  return std::clamp<std::size_t>((PointCount(chart) + kRowsOfPanel - 1) / kRowsOfPanel, 1, kMostPanels);
}

std::size_t RowsOfPanel(const Chart& chart) {
  return std::max<std::size_t>(1, (PointCount(chart) + PanelCount(chart) - 1) / PanelCount(chart));
}

int RowTextPixels(const Chart& chart) {
  constexpr int kRoomForRows = 500;
  return std::clamp(kRoomForRows * 4 / 5 / static_cast<int>(RowsOfPanel(chart)), kLeastTextPixels,
                    kTextPixels);
}

// All panels have room for as many rows, so that all rows are of one height.
void BuildHorizontalPanel(const Chart& chart, QCPAxisRect& panel, std::size_t number) {
  QCPAxis& rows = *panel.axis(QCPAxis::atLeft);
  QCPAxis& values = *panel.axis(QCPAxis::atBottom);
  const double top = static_cast<double>(PointsOfPanel(chart, number).second) + 0.5;
  rows.setRange(top - static_cast<double>(RowsOfPanel(chart)), top);
  rows.grid()->setVisible(false);
  LabelPoints(rows, chart);
  ScaleAxis(values, ValueScale(chart), 0.7 / static_cast<double>(PanelCount(chart)));
  ShowZeroLine(values);
  if (number == 0) rows.setLabel(WrappedText(chart.AxisX.Title, kAxisTitleCharacters));
  if (number == PanelCount(chart) / 2) values.setLabel(WrappedText(chart.AxisY.Title, kAxisTitleCharacters));
}

std::vector<QCPAxisRect*> BuildPanels(const Chart& chart, QCustomPlot& plot) {
  if (!IsHorizontal(chart) || PointCount(chart) == 0) {
    QCPAxisRect* panel = NewPanel(plot, kTextPixels);
    BuildUprightPanel(chart, *panel);
    return {panel};
  }
  std::vector<QCPAxisRect*> panels;
  for (std::size_t number = 0; number < PanelCount(chart); ++number) {
    panels.push_back(NewPanel(plot, RowTextPixels(chart)));
    BuildHorizontalPanel(chart, *panels.back(), number);
  }
  return panels;
}

// --- Titles and legend

// The rows of the outer grid: a layout has no spans, and the titles are to be centred on the whole picture.
int AddTitles(const Chart& chart, QCustomPlot& plot) {
  int row = 0;
  for (const std::string& title : chart.Titles) {
    const QString text = WrappedText(title, kTitleCharacters);
    if (text.isEmpty()) continue;
    auto* element = new QCPTextElement(&plot, text, ChartFont(kTitlePixels, true));
    element->setMargins(QMargins(6, row == 0 ? 8 : 0, 6, 0));
    plot.plotLayout()->addElement(row++, 0, element);
  }
  return row;
}

// To the right of the panels, as high as its entries.
QCPLegend* AddLegend(QCPLayoutGrid& grid, int column) {
  auto* side = new QCPLayoutGrid;
  auto* legend = new QCPLegend;
  grid.addElement(0, column, side);
  side->addElement(0, 0, legend);
  side->addElement(1, 0, new QCPLayoutElement);
  side->setRowStretchFactor(0, 0.001);
  side->setMargins(QMargins(0, 8, 10, 6));
  grid.setColumnStretchFactor(column, 0.001);
  legend->setLayer("legend");
  legend->setFont(ChartFont(kTextPixels));
  legend->setTextColor(QColor(kTextColour));
  legend->setBorderPen(QPen(QColor(kFrameColour)));
  legend->setIconSize(26, 14);
  legend->setIconTextPadding(10);
  legend->setRowSpacing(1);
  return legend;
}

}  // namespace

std::pair<std::size_t, std::size_t> PointsOfPanel(const Chart& chart, std::size_t panel) {
  const std::size_t count = PointCount(chart);
  const std::size_t end = count - std::min(count, panel * RowsOfPanel(chart));
  return {end - std::min(end, RowsOfPanel(chart)), end};
}

QString WrappedText(const std::string& text, int most) {
  QString line, wrapped;
  for (const QString& word : ShownText(text).simplified().split(' ')) {
    if (!line.isEmpty() && line.size() + 1 + word.size() > most) {
      wrapped += line + '\n';
      line.clear();
    }
    line += (line.isEmpty() ? "" : " ") + word;
  }
  return wrapped + line;
}

ChartFrame BuildFrame(const Chart& chart, QCustomPlot& plot) {
  plot.clearPlottables();
  plot.plotLayout()->clear();
  plot.setLocale(QLocale::c());
  plot.setAutoAddPlottableToLegend(false);
  plot.plotLayout()->setRowSpacing(4);

  const int row = AddTitles(chart, plot);
  auto* body = new QCPLayoutGrid;
  plot.plotLayout()->addElement(row, 0, body);
  body->setColumnSpacing(0);
  body->setMargins(QMargins(6, 0, 0, 4));
  for (int title = 0; title < row; ++title) plot.plotLayout()->setRowStretchFactor(title, 0.001);

  ChartFrame frame;
  frame.panels = BuildPanels(chart, plot);
  int column = 0;
  for (QCPAxisRect* panel : frame.panels) body->addElement(0, column++, panel);
  if (chart.SerLegBoxVisible && !chart.AllSeries().empty()) frame.legend = AddLegend(*body, column);
  // The plot's own names for its parts go with the first panel.
  plot.xAxis = frame.panels[0]->axis(QCPAxis::atBottom);
  plot.yAxis = frame.panels[0]->axis(QCPAxis::atLeft);
  plot.xAxis2 = frame.panels[0]->axis(QCPAxis::atTop);
  plot.yAxis2 = frame.panels[0]->axis(QCPAxis::atRight);
  plot.legend = frame.legend;
  return frame;
}

}  // namespace tarnvik
