// Charts as drawings: what the plot holds, and a few coarse facts of the pictures.
#include "charts/chart_picture.h"

#include <qcustomplot.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>

#include "charts/chart_palette.h"
#include "charts/png_file.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

constexpr double H = Chart::Hidden;

struct PlotForm : Form {
  PlotForm() : Form("frmPlot", "") {}
  Chart chart{this, "chart"};
};

class ChartPicture : public ProgramTest {
 protected:
  // Series over places from `first`; without `first` they have y values alone.
  void Fill(std::optional<double> first, const std::vector<std::vector<double>>& series) {
    const int points = static_cast<int>(series[0].size());
    if (first) chart.OpenData(6, static_cast<int>(series.size()), points);
    chart.OpenData(1, static_cast<int>(series.size()), points);
    for (int s = 0; s < static_cast<int>(series.size()); ++s) {
      for (int i = 0; i < points; ++i) {
        if (first) chart.SetXValue(s, i, *first + i);
        chart.SetValue(s, i, series[static_cast<std::size_t>(s)][static_cast<std::size_t>(i)]);
      }
    }
  }
  void Show() {
    ShowChart(chart, plot);
    plot.toPixmap(900, 600);  // lays out and sets the ticks
  }
  QStringList Labels(const QCPAxis* axis) { return QStringList(axis->tickVectorLabels()); }
  QStringList Legend() {
    QStringList names;
    for (int i = 0; plot.legend && i < plot.legend->itemCount(); ++i) {
      names += qobject_cast<QCPPlottableLegendItem*>(plot.legend->item(i))->plottable()->name();
    }
    return names;
  }
  QImage Picture(const std::string& name = "a.png") {
    WriteChartPicture(chart, InFolder(name));
    return QImage::fromData(QByteArray::fromStdString(ReadBytes(InFolder(name))));
  }
  static int Count(const QImage& image, QColor colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
  }
  PlotForm form;
  Chart& chart = form.chart;
  QCustomPlot plot;
};

std::vector<double> ValuesOf(const QCPGraph* graph) {
  std::vector<double> values;
  for (const QCPGraphData& point : *graph->data())
    values.push_back(std::isnan(point.value) ? H : point.value);
  return values;
}

TEST_F(ChartPicture, hidden_points_and_values_that_are_no_numbers_leave_gaps) {
  Fill(1990, {{1, H, 3, std::nan(""), INFINITY, -1e300, 7}});
  Show();
  ASSERT_EQ(plot.graphCount(), 1);
  EXPECT_EQ(ValuesOf(plot.graph(0)), (std::vector<double>{1, H, 3, H, H, H, 7}));
  EXPECT_EQ(plot.xAxis->range(), QCPRange(1990, 1996));
  EXPECT_EQ(Labels(plot.xAxis), (QStringList{"1990", "1991", "1992", "1993", "1994", "1995", "1996"}));
  EXPECT_LT(plot.yAxis->range().upper, 8);
}

TEST_F(ChartPicture, series_galleries_override_the_charts_and_points_lie_on_lines) {
  chart.Gallery = 2;
  Fill(1, {{1, 2, 3}, {H, 2, H}, {3, 2, 1}});
  chart.Series(0).Gallery = 4;
  chart.Series(1).Gallery = 1;
  chart.Series(0).Legend = "Observed";
  chart.Series(1).Legend = "Predicted";
  chart.Series(2).Legend = "Bars";
  chart.SerLegBoxVisible = true;
  Show();
  Show();  // in place of what was shown
  ASSERT_EQ(plot.plottableCount(), 4);
  EXPECT_NE(qobject_cast<QCPBars*>(plot.plottable(0)), nullptr);
  EXPECT_EQ(plot.graph(0)->lineStyle(), QCPGraph::lsLine);
  EXPECT_EQ(ValuesOf(plot.graph(1)), std::vector<double>{2}) << "the lone point of the line is marked";
  EXPECT_EQ(plot.graph(2)->lineStyle(), QCPGraph::lsNone);
  EXPECT_EQ(ValuesOf(plot.graph(2)), (std::vector<double>{1, 2, 3}));
  EXPECT_EQ(Legend(), (QStringList{"Observed", "Predicted", "Bars"}));
  EXPECT_EQ(plot.xAxis->range(), QCPRange(0.5, 3.5)) << "outer bars stand whole";
  chart.SerLegBoxVisible = false;
  Show();
  EXPECT_EQ(Legend(), QStringList());
}

TEST_F(ChartPicture, first_of_filled_curves_lies_on_top_and_leads_the_legend) {
  chart.Gallery = 19;
  chart.SerLegBoxVisible = true;
  Fill(0, {{H, H, 5, H, H}, {H, 5, 5, 5, H}, {5, 5, 5, 5, 5}});
  for (int s = 0; s < 3; ++s) chart.Series(s).Legend = std::to_string(s);
  Show();
  EXPECT_EQ(Legend(), (QStringList{"0", "1", "2"}));
  EXPECT_EQ(plot.graph(0)->name(), "2");
  Fill(0, {{H, 5, 5, 5, H}, {5, 5, 5, 5, 5}});
  chart.SerLegBoxVisible = false;
  const QImage image = Picture();
  EXPECT_EQ(image.pixelColor(450, 500), ShadeColour(0, 2));
  EXPECT_EQ(image.pixelColor(150, 500), ShadeColour(1, 2));
}

TEST_F(ChartPicture, bars_of_two_series_stand_side_by_side) {
  chart.Gallery = 2;
  Fill(1, {{1, -2, H, 1, 1, 1, 1, 1}, {1, 2, 3, 1, 1, 1, 1, 1}});
  Show();
  const auto* first = qobject_cast<QCPBars*>(plot.plottable(0));
  const auto* second = qobject_cast<QCPBars*>(plot.plottable(1));
  ASSERT_TRUE(first && second);
  EXPECT_EQ(first->dataCount(), 7);
  EXPECT_NEAR(first->dataMainKey(0), 0.8, 1e-12);
  EXPECT_NEAR(second->dataMainKey(0), 1.2, 1e-12);
  EXPECT_NEAR(first->width(), 0.4, 1e-12);
  EXPECT_LT(plot.yAxis->range().lower, -2);
  EXPECT_NE(plot.yAxis->grid()->zeroLinePen().style(), Qt::NoPen);
}

TEST_F(ChartPicture, horizontal_bars_begin_at_the_top_with_the_last_point) {
  chart.Gallery = 20;
  std::vector<double> values(106, 1);
  values[105] = H;
  Fill(std::nullopt, {values});
  for (int i = 0; i < 106; ++i) chart.SetPointLabel(i, "Survey" + std::to_string(i) + " Age Comp. \xe9");
  Show();
  ASSERT_EQ(plot.axisRectCount(), 3);
  QStringList labels;
  int bars = 0;
  for (int panel = 0; panel < 3; ++panel) {
    labels += Labels(plot.axisRect(panel)->axis(QCPAxis::atLeft));
    bars += qobject_cast<QCPBars*>(plot.plottable(panel))->dataCount();
  }
  EXPECT_EQ(bars, 105);
  EXPECT_EQ(QSet<QString>(labels.begin(), labels.end()).size(), 106);
  EXPECT_EQ(plot.yAxis->range(), QCPRange(70.5, 106.5));
  EXPECT_EQ(Labels(plot.yAxis).last(), QString::fromUtf8("Survey105 Age Comp. \xc3\xa9"));
  values.resize(16);
  Fill(std::nullopt, {values});
  Show();
  EXPECT_EQ(plot.axisRectCount(), 1);
}

TEST_F(ChartPicture, axes_keep_their_limits_and_decimals) {
  const struct {
    std::optional<double> min, max;
    std::optional<int> decimals;
    QCPRange range;
    QStringList labels;  // the first two
  } rows[] = {
      {0, 2000000, {}, {0, 2000000}, {"0", "500000"}},
      {0, 12000, 0, {0, 12000}, {"0", "2000"}},
      {0, 0.42, {}, {0, 0.42}, {"0.00", "0.05"}},
      {0, 0.0231, 4, {0, 0.0231}, {"0.0000", "0.0050"}},
      {0, 3, 0, {0, 3}, {"0", "1"}},
      {-2.4, 2.3, 2, {-2.4, 2.3}, {"-2.00", "-1.00"}},
      {0, 0, 0, {0, 2.1}, {"0", "1"}},
      {5, -5, {}, {-5, 5}, {"-4", "-2"}},
      {std::nan(""), INFINITY, {}, {0, 2.1}, {"0.0", "0.5"}},
      {{}, {}, {}, {0, 2.1}, {"0.0", "0.5"}},
  };
  for (const auto& row : rows) {
    Fill(1990, {{0.0, 2.0}});
    chart.AxisY.Min = row.min;
    chart.AxisY.Max = row.max;
    chart.AxisY.Decimals = row.decimals;
    Show();
    EXPECT_NEAR(plot.yAxis->range().lower, row.range.lower, 1e-9) << row.labels[1].toStdString();
    EXPECT_NEAR(plot.yAxis->range().upper, row.range.upper, 1e-9);
    EXPECT_EQ(Labels(plot.yAxis).mid(0, 2), row.labels) << Labels(plot.yAxis).join(' ').toStdString();
  }
}

TEST_F(ChartPicture, years_and_ages_are_whole) {
  const struct {
    double first;
    int points;
    const char* title;
    QStringList labels;  // the first three
  } rows[] = {
      {1999, 1, "Year", {"1999"}},
      {1999, 2, "Year", {"1999", "2000"}},
      {1990, 25, "Year", {"1990", "1992", "1994"}},
      {1955, 60, "", {"1955", "1960", "1965"}},
      {1, 12, "Age", {"1", "2", "3"}},
  };
  for (const auto& row : rows) {
    chart.AxisX.Title = row.title;
    Fill(row.first, {std::vector<double>(static_cast<std::size_t>(row.points), 1.0)});
    Show();
    QStringList shown = Labels(plot.xAxis);
    shown.removeAll("");
    EXPECT_EQ(shown.mid(0, 3), row.labels) << row.points;
    for (const QString& label : shown) EXPECT_FALSE(label.contains('.')) << label.toStdString();
  }
  chart.AxisX.Title = "";
  Fill(0.5, {{1, 1, 1}});
  Show();
  EXPECT_TRUE(Labels(plot.xAxis).contains("1.4"));
}

TEST_F(ChartPicture, png_reads_back_at_its_size_with_titles_and_colours) {
  const QColor series = SeriesColour(0);
  QImage image = Picture("empty.mtf");
  EXPECT_EQ(image.size(), QSize(900, 600));
  EXPECT_EQ(Count(image, Qt::black), 0) << "a chart without data and titles is a frame";
  EXPECT_GT(Count(image, QColor(kFrameColour)), 2000);
  chart.Titles[0] = "Catch";
  chart.Gallery = 2;
  Fill(1990, {{1, 1, 1}});
  image = Picture();
  EXPECT_GT(Count(image.copy(400, 0, 100, 30), Qt::black), 20) << "the title is centred on the picture";
  EXPECT_GT(Count(image, series), 50000);
  EXPECT_EQ(Picture("again.PNG"), image);
  Fill(1990, {{H, H, H}});
  EXPECT_EQ(Count(Picture(), series), 0);
}

TEST(PngBytes, lose_nothing) {
  const std::pair<int, int> sizes[] = {{1, 1}, {2, 3}, {87, 2}, {88, 2}, {900, 5}, {4000, 3}};
  std::uint32_t state = 1;
  const auto random = [&state] { return (state = state * 1664525 + 1013904223) >> 8; };
  for (const auto& [width, height] : sizes) {
    for (const std::uint32_t changes : {0u, 1u, 100u, 1000u}) {  // how many pixels in a thousand differ
      QImage picture(width, height, QImage::Format_RGB32);
      QRgb colour = 0xff0072b2;
      for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
          if (random() % 1000 < changes) colour = 0xff000000 | random();
          picture.setPixel(x, y, colour);
        }
      }
      const QImage read = QImage::fromData(QByteArray::fromStdString(PngBytes(picture)), "PNG");
      EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32), picture) << width << " " << changes;
    }
  }
}

TEST_F(ChartPicture, ending_decides_on_vectors) {
  chart.Titles[0] = "T\xe9";
  Fill(1990, {{1, 2, 3}});
  WriteChartPicture(chart, InFolder("a.SVG"));
  EXPECT_NE(ReadBytes(InFolder("a.SVG")).find("viewBox=\"0 0 900 600\""), std::string::npos);
  WriteChartPicture(chart, InFolder("b.pdf"));
  EXPECT_NE(ReadBytes(InFolder("b.pdf")).find("/MediaBox [0 0 675"), std::string::npos);
}

TEST_F(ChartPicture, file_is_replaced_whole_or_left_alone) {
  Fill(1990, {{1, 2, 3}});
  const auto error_of = [&](const std::string& path) {
    try {
      WriteChartPicture(chart, path);
      return 0;
    } catch (const RunTimeError& error) {
      return error.Number;
    }
  };
  WriteBytes(InFolder("a.png"), "old");
  EXPECT_EQ(error_of(InFolder("a.png")), 0);
  EXPECT_EQ(ReadBytes(InFolder("a.png")).substr(1, 3), "PNG");
  std::filesystem::create_directory(InFolder("folder.png"));
  EXPECT_EQ(error_of(InFolder("folder.png")), kErrPathAccess);
  EXPECT_EQ(error_of(InFolder("missing/a.png")), kErrPathNotFound);
  EXPECT_EQ(error_of(""), kErrPathAccess);
  EXPECT_EQ(error_of("/dev/full"), kErrDiskFull);
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
  std::filesystem::create_symlink("a.png", InFolder("link.png"));
  EXPECT_EQ(error_of(InFolder("link.png")), 0);
  EXPECT_TRUE(std::filesystem::is_symlink(InFolder("link.png")));
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    EXPECT_NE(entry.path().extension(), ".new") << entry.path();
  }
}

}  // namespace
}  // namespace tarnvik
