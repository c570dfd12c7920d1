#include <gtest/gtest.h>
#include <qcustomplot.h>

#include <QTest>
#include <QToolTip>

#include "desktop/forms/events.h"
#include "desktop/forms/form_view.h"
#include "platform/chart.h"
#include "support/test_program.h"

namespace tarnvik {

namespace {

// A chart on the second page.
struct ChartForm : Form {
  ChartForm() : Form("frmChart", "Chart") {
    tabs.SetPages({"Empty", "Plot"});
    chart.SetContainer(&tabs, 1);
    Draw(10);
  }
  void Draw(double highest) {
    chart.ClearData();
    chart.OpenData(6, 1, 3);
    chart.OpenData(1, 1, 3);
    for (int i = 0; i < 3; ++i) {
      chart.SetXValue(0, i, 2000 + i);
      chart.SetValue(0, i, i == 1 ? highest : 0);
    }
    chart.CloseData(6);
    chart.CloseData(1);
    chart.Gallery = 1;
    chart.AxisX.Min = 2000;
    chart.AxisX.Max = 2002;
    chart.AxisY.Min = 0;
    chart.AxisY.Max = 20;
  }
  TabStrip tabs{this, "tabs"};
  Chart chart{this, "chart"};
};

class ChartViewTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    view.resize(700, 500);
    view.show();
    plot = qobject_cast<QCustomPlot*>(view.WidgetOf(form.chart));
    ASSERT_NE(plot, nullptr);
  }
  void Turn(int page) {
    UserEvent([&] { form.tabs.SetTab(page); });
    QCoreApplication::processEvents();
  }
  QPoint PlaceOf(double x, double y) const {
    return {static_cast<int>(plot->xAxis->coordToPixel(x)), static_cast<int>(plot->yAxis->coordToPixel(y))};
  }
  void MoveTo(QPoint place, Qt::MouseButtons held) {
    QMouseEvent event(QEvent::MouseMove, place, plot->mapToGlobal(place), Qt::NoButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(plot, &event);
  }
  ChartForm form;
  FormView view{form};
  QCustomPlot* plot = nullptr;
};

TEST_F(ChartViewTest, a_chart_is_drawn_when_it_comes_into_view_and_when_it_changes_there) {
  EXPECT_EQ(plot->plottableCount(), 0);
  Turn(1);
  EXPECT_EQ(plot->plottableCount(), 1);
  UserEvent([&] { form.chart.ClearData(); });
  EXPECT_EQ(plot->plottableCount(), 0);
  Turn(0);
  UserEvent([&] { form.Draw(5); });
  EXPECT_EQ(plot->plottableCount(), 0);
  Turn(1);
  EXPECT_EQ(plot->plottableCount(), 1);
}

TEST_F(ChartViewTest, keys_and_a_frame_zoom_and_a_double_click_brings_the_whole_back) {
  Turn(1);
  const QCPRange whole = plot->xAxis->range();
  plot->setFocus();
  QTest::keyClick(plot, Qt::Key_Plus);
  EXPECT_LT(plot->xAxis->range().size(), whole.size());
  QTest::keyClick(plot, Qt::Key_Home);
  QCoreApplication::processEvents();
  EXPECT_EQ(plot->xAxis->range(), whole);
  const QRect inner = plot->axisRect()->rect();
  QTest::mousePress(plot, Qt::LeftButton, {}, inner.center());
  MoveTo(inner.center() + QPoint(60, 40), Qt::LeftButton);
  MoveTo(inner.center() + QPoint(80, 60), Qt::LeftButton);
  QTest::mouseRelease(plot, Qt::LeftButton, {}, inner.center() + QPoint(80, 60));
  EXPECT_LT(plot->xAxis->range().size(), whole.size() / 2);
  QTest::mouseDClick(plot, Qt::LeftButton, {}, inner.center());
  EXPECT_EQ(plot->xAxis->range(), whole);
}

TEST_F(ChartViewTest, the_pointer_reads_the_point_that_it_is_on) {
  Turn(1);
  MoveTo(PlaceOf(2001, 10) + QPoint(3, 3), Qt::NoButton);
  EXPECT_TRUE(QToolTip::text().endsWith("2001:  10")) << QToolTip::text().toStdString();
}

}  // namespace

}  // namespace tarnvik
