// Writes a collection of figures as a plot collection holds them, and has R draw the same data with its own
// graphics; prints figures per second of both and their ratio. Both sides run in turn, and each side's
// fastest round counts, so that whatever else the machine does falls on both.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "charts/chart_picture.h"
#include "platform/form.h"

namespace tarnvik {
namespace {

constexpr int kFigures = 200;
constexpr int kRounds = 5;
constexpr int kFirstYear = 1963;
constexpr int kYears = 50;
constexpr int kAges = 12;

struct Figures : Form {
  Figures() : Form("frmFigures", "") {}
};

// The kinds of figures that fill most of a collection, in turn.
enum class Kind { Fit, Residuals, Proportions, Bands };
constexpr const char* kKindNames[] = {"fit", "residuals", "proportions", "bands"};

Kind KindOf(int figure) { return static_cast<Kind>(figure % 4); }

double ValueOf(int figure, int series, int point) {
  const double wave = std::sin(0.21 * point + figure) + 0.3 * std::sin(7.7 * point + 3 * figure + series);
  switch (KindOf(figure)) {
    case Kind::Fit:
      return 200000 + 90000 * (series == 1 ? std::sin(0.21 * point + figure) : wave);
    case Kind::Residuals:
      return 2 * wave;
    case Kind::Proportions:
      return 0.3 * std::exp(-0.15 * (point - 3) * (point - 3)) * (series == 1 ? 1 : 1 + 0.2 * wave);
    case Kind::Bands:
      return (250000 + 90000 * std::sin(0.21 * point + figure)) * (series == 0 ? 1.3 : series == 1 ? 0.7 : 1);
  }
  return 0;
}

void Draw(Chart& chart, int figure) {
  const Kind kind = KindOf(figure);
  const bool ages = kind == Kind::Proportions;
  const int series = kind == Kind::Residuals ? 1 : kind == Kind::Bands ? 3 : 2;
  const int points = ages ? kAges : kYears;
  chart.OpenData(6, series, points);
  chart.OpenData(1, series, points);
  for (int s = 0; s < series; ++s) {
    for (int i = 0; i < points; ++i) {
      chart.SetXValue(s, i, ages ? i + 1 : kFirstYear + i);
      chart.SetValue(s, i, ValueOf(figure, s, i));
    }
    chart.Series(s).Legend = "Series " + std::to_string(s + 1);
  }
  chart.Gallery = kind == Kind::Residuals ? 2 : 1;
  if (kind == Kind::Fit || ages) chart.Series(0).Gallery = 4;
  chart.MarkerSetting = ages ? 1 : 3;
  chart.SerLegBoxVisible = series > 1;
  chart.AxisX.Title = ages ? "Age" : "Year";
  chart.AxisX.Min = ages ? 1 : kFirstYear;
  chart.AxisX.Max = ages ? kAges : kFirstYear + kYears - 1;
  chart.Titles[0] = "Figure " + std::to_string(figure + 1) + " of a Collection";
  chart.ChartFinishFlag = true;
}

// A line for each point: figure, kind, series, x, y.
void WriteData(const std::vector<Chart*>& charts, const std::string& path) {
  std::ofstream file(path);
  file.precision(10);
  for (std::size_t figure = 0; figure < charts.size(); ++figure) {
    const auto& all = charts[figure]->AllSeries();
    for (std::size_t s = 0; s < all.size(); ++s) {
      for (std::size_t i = 0; i < all[s].Y.size(); ++i) {
        file << figure + 1 << ' ' << kKindNames[figure % 4] << ' ' << s + 1 << ' ' << all[s].X[i] << ' '
             << all[s].Y[i] << '\n';
      }
    }
  }
}

struct Seconds {
  double elapsed = 0;
  double processor = 0;
};

void KeepLeast(Seconds& least, const Seconds& now) {
  const auto keep = [](double& kept, double value) { kept = kept == 0 ? value : std::min(kept, value); };
  keep(least.elapsed, now.elapsed);
  keep(least.processor, now.processor);
}

// What R says that its figures took, its start and the reading of the data not counted; nothing without R.
Seconds SecondsOfR(const std::string& folder) {
  const std::string line = "Rscript --vanilla '" TARNVIK_BENCH_SCRIPTS "/collection.R' '" + folder + "'";
  std::FILE* output = popen(line.c_str(), "r");
  if (!output) return {};
  Seconds seconds;
  if (std::fscanf(output, "%lf %lf", &seconds.elapsed, &seconds.processor) != 2) seconds = {};
  while (std::fgetc(output) != EOF) continue;  // let it end by itself
  pclose(output);
  return seconds;
}

Seconds SecondsOfTarnvik(const std::vector<Chart*>& charts, const std::string& folder) {
  const auto write = [&](benchmark::State& state) {
    for (auto _ : state) {
      for (std::size_t i = 0; i < charts.size(); ++i) {
        WriteChartPicture(*charts[i], folder + "/plot" + std::to_string(i + 1) + ".mtf");
      }
    }
  };
  benchmark::RegisterBenchmark("collection", write)->Unit(benchmark::kSecond)->UseRealTime()->Iterations(1);
  class Keep : public benchmark::ConsoleReporter {
   public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
      seconds = {runs.at(0).GetAdjustedRealTime(), runs.at(0).GetAdjustedCPUTime()};
    }
    Seconds seconds;
  } keep;
  benchmark::RunSpecifiedBenchmarks(&keep);
  benchmark::ClearRegisteredBenchmarks();
  return keep.seconds;
}

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  std::string folder = (std::filesystem::temp_directory_path() / "tarnvik-figures-XXXXXX").string();
  if (!mkdtemp(folder.data())) return 1;
  Figures form;
  std::vector<std::unique_ptr<Chart>> charts;
  std::vector<Chart*> figures;
  for (int i = 0; i < kFigures; ++i) {
    charts.push_back(std::make_unique<Chart>(&form, "Chart", i));
    Draw(*charts.back(), i);
    figures.push_back(charts.back().get());
  }
  WriteData(figures, folder + "/figures.txt");
  Seconds tarnvik, r;
  for (int round = 0; round < kRounds; ++round) {
    KeepLeast(tarnvik, SecondsOfTarnvik(figures, folder));
    KeepLeast(r, SecondsOfR(folder));
  }
  std::filesystem::remove_all(folder);
  if (r.elapsed == 0) {
    std::fprintf(stderr, "R does not run\n");
    return 1;
  }
  std::printf("figures per second: %.0f, R %.0f, ratio %.1f; by processor time %.1f (at least 8)\n",
              kFigures / tarnvik.elapsed, kFigures / r.elapsed, r.elapsed / tarnvik.elapsed,
              r.processor / tarnvik.processor);
  return 0;
}

}  // namespace
}  // namespace tarnvik

int main(int argc, char** argv) { return tarnvik::Main(argc, argv); }
