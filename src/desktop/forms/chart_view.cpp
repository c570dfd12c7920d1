// The view of a chart: its drawing fills the place; the pointer reads values, the wheel and the rubber band
// zoom, Shift and a drag move what is seen, a double click brings the whole back.
#include <qcustomplot.h>

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QToolTip>
#include <optional>

#include "charts/chart_picture.h"
#include "charts/text.h"
#include "desktop/forms/field_views.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

constexpr double kReach = 16;  // pixels from a point at which the pointer reads it
constexpr double kZoomStep = 0.85;

struct Reading {
  QString series;
  double x;
  double y;
};

// The point of the plot that is nearest to a place on the screen, if one is within reach.
std::optional<Reading> ReadingAt(QCustomPlot& plot, QPointF place) {
  std::optional<Reading> nearest;
  double least = kReach;
  for (int p = 0; p < plot.plottableCount(); ++p) {
    QCPAbstractPlottable* plottable = plot.plottable(p);
    const QCPPlottableInterface1D* points = plottable->interface1D();
    if (!points || !plottable->visible()) continue;
    for (int i = 0; i < points->dataCount(); ++i) {
      const double key = points->dataMainKey(i);
      const double value = points->dataMainValue(i);
      if (!std::isfinite(key) || !std::isfinite(value)) continue;
      const QPointF away = plottable->coordsToPixels(key, value) - place;
      const double distance = std::hypot(away.x(), away.y());
      if (distance > least) continue;
      least = distance;
      nearest = Reading{plottable->name(), key, value};
    }
  }
  return nearest;
}

QString TextOf(const Reading& reading) {
  const QLocale plain = QLocale::c();
  const QString point = plain.toString(reading.x, 'g', 6) + ":  " + plain.toString(reading.y, 'g', 6);
  return reading.series.isEmpty() ? point : reading.series + "\n" + point;
}

class ChartPlot : public QCustomPlot {
 public:
  explicit ChartPlot(QWidget* parent) : QCustomPlot(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setInteractions(QCP::iRangeZoom | QCP::iRangeDrag);
    setSelectionRectMode(QCP::srmZoom);
    // A hundred years up and down as one path take the painter most of a second; as segments nothing.
    setPlottingHint(QCP::phFastPolylines);
    setWhatsThis(
        "Turn the wheel or draw a frame to zoom; hold Shift and drag to move; double-click for the whole.");
  }
  std::function<void()> draw;  // draws the whole chart anew
  std::function<void()> save;
  bool outdated = true;

  void DrawIfSeen() {
    if (!outdated || !isVisible()) return;
    outdated = false;
    draw();
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QCustomPlot::showEvent(event);
    DrawIfSeen();
  }
  void mousePressEvent(QMouseEvent* event) override {
    const bool moves = event->modifiers() & Qt::ShiftModifier;
    setSelectionRectMode(moves || event->button() != Qt::LeftButton ? QCP::srmNone : QCP::srmZoom);
    QToolTip::hideText();
    QCustomPlot::mousePressEvent(event);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    QCustomPlot::mouseMoveEvent(event);
    if (event->buttons() != Qt::NoButton) return;
    const auto reading = ReadingAt(*this, event->position());
    QToolTip::showText(event->globalPosition().toPoint(), reading ? TextOf(*reading) : QString(), this);
  }
  void mouseDoubleClickEvent(QMouseEvent*) override { draw(); }
  void contextMenuEvent(QContextMenuEvent* event) override {
    QMenu menu;
    menu.addAction("&Copy Picture", this, [this] { QApplication::clipboard()->setPixmap(toPixmap()); });
    menu.addAction("&Save Picture As ...", this, [this] { save(); });
    menu.addSeparator();
    menu.addAction("Show the &Whole Chart", this, [this] { draw(); });
    menu.exec(event->globalPos());
  }
  void keyPressEvent(QKeyEvent* event) override {
    constexpr double kMoveStep = 0.1;
    switch (event->key()) {
      case Qt::Key_Plus:
        return Zoom(kZoomStep);
      case Qt::Key_Minus:
        return Zoom(1 / kZoomStep);
      case Qt::Key_Left:
        return Move(Qt::Horizontal, -kMoveStep);
      case Qt::Key_Right:
        return Move(Qt::Horizontal, kMoveStep);
      case Qt::Key_Down:
        return Move(Qt::Vertical, -kMoveStep);
      case Qt::Key_Up:
        return Move(Qt::Vertical, kMoveStep);
      case Qt::Key_Home:
        return draw();
      default:
        QCustomPlot::keyPressEvent(event);
    }
  }

 private:
  // A drawing has axes of its own, and may have several panels.
  void OnAxes(Qt::Orientation orientation, const std::function<void(QCPAxis&)>& act) {
    const QList<QCPAxisRect*> panels = axisRects();
    for (QCPAxisRect* panel : panels) {
      if (QCPAxis* axis = panel->rangeZoomAxis(orientation)) act(*axis);
    }
  }
  void Zoom(double factor) {
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
      OnAxes(orientation, [factor](QCPAxis& axis) { axis.scaleRange(factor); });
    }
    replot();
  }
  void Move(Qt::Orientation orientation, double share) {
    OnAxes(orientation, [share](QCPAxis& axis) {
      axis.moveRange(axis.range().size() * (axis.rangeReversed() ? -share : share));
    });
    replot();
  }
};

class ChartView : public FieldView<Chart, ChartPlot> {
 public:
  ChartView(Chart& chart, QWidget* parent) : FieldView(chart, new ChartPlot(parent)) {
    widget_->draw = [this] {
      if (Shown()) ShowChart(*Its(), *widget_);
    };
    widget_->save = [this] { Act([](Chart& its) { Save(its); }); };
    Refresh();
  }
  void Refresh() override {
    ShowCommon(*Shown(), *widget_);
    widget_->outdated = true;
    widget_->DrawIfSeen();
  }

 private:
  static void Save(const Chart& chart) {
    FileDialog dialog;
    dialog.save = true;
    dialog.title = "Save Picture As";
    dialog.filter = "PNG Picture (*.png)|*.png|SVG Drawing (*.svg)|*.svg|PDF Document (*.pdf)|*.pdf";
    dialog.default_extension = "png";
    dialog.moves_current_folder = false;
    if (const auto path = TheHost().ShowFileDialog(dialog)) WriteChartPicture(chart, *path);
  }
};

}  // namespace

std::unique_ptr<ControlView> MakeChartView(Chart& chart, QWidget* parent) {
  return std::make_unique<ChartView>(chart, parent);
}

}  // namespace tarnvik
