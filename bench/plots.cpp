// Measures every drawing routine, from the tables to the plot model, on the example case after a run of the
// model. Ends with status 1 when one of them takes a millisecond or more.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>

#include "bench_host.h"
#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputfiles/casefiles.h"
#include "platform/paths.h"
#include "platform/process.h"
#include "plots/input_draws.h"
#include "plots/input_plots.h"
#include "plots/m_prior.h"
#include "plots/output_drawings.h"
#include "plots/output_plots.h"
#include "program/menu.h"
#include "program/program.h"

namespace tarnvik {
namespace {

// Runs the model as the window and the console do.
class RunningHost : public BenchHost {
 public:
  std::int32_t CreateConsoleProcess(const std::string& command) override {
    return RunConsoleProcess(command);
  }
};

// The entry of a list that a routine draws; most need none.
constexpr std::int16_t kEntry = 1;

struct Routine {
  const char* name;
  void (*draw)();
};

const Routine kRoutines[] = {
    {"input: catch biomass", input_plots::DrawCatchBiomass},
    {"input: fishery CPUE", input_plots::DrawFisheryCpue},
    {"input: recruitment deviations", input_plots::DrawRecruitmentDeviations},
    {"input: F deviations", input_plots::DrawFishingMortalityDeviations},
    {"input: fishery ages", input_plots::DrawFisheryAge},
    {"input: catch weights", input_plots::DrawCatchWeight},
    {"input: stock weights", input_plots::DrawStockWeight},
    {"input: maturity", input_plots::DrawMaturity},
    {"input: spawning weights", input_plots::DrawSpawningWeight},
    {"input: survey ages", input_plots::DrawSurveyAge},
    {"input: survey index", input_plots::DrawSurveyIndex},
    {"input: fishery selectivity", input_plots::DrawFisherySelectivity},
    {"input: survey selectivity", input_plots::DrawSurveySelectivity},
    {"input: prior of M", DrawMPrior},
    {"numbers at age", DrawNumbersAtAge},
    {"numbers in the last years", DrawEndNumbers},
    {"CPUE index", DrawCpueIndex},
    {"survey index", output_plots::DrawSurveyIndex},
    {"fishery ages", DrawFisheryAgeFit},
    {"survey ages", DrawSurveyAgeFit},
    {"fishery sample size", DrawFisherySampleSize},
    {"survey sample size", DrawSurveySampleSize},
    {"recruits", DrawRecruits},
    {"surplus production", DrawSurplusProduction},
    {"catch", DrawTotalCatch},
    {"biomass totals", DrawBiomassTotals},
    {"biomass at age", DrawBiomassAtAge},
    {"biomass ratios", DrawBiomassRatio},
    {"unfished biomass", DrawUnfished},
    {"F at age", DrawAgeF},
    {"average F", DrawAverageF},
    {"F ratios", DrawFRatio},
    {"F and biomass", DrawFvsSsb},
    {"fishery selectivity", output_plots::DrawFisherySelectivity},
    {"survey selectivity", output_plots::DrawSurveySelectivity},
    {"likelihood", DrawLikelihood},
    {"recruitment deviations", DrawStdRecruitDevs},
    {"F deviations", DrawStdFDevs},
};

double slowest_ms = 0;
const char* slowest = "none";

void Measure(benchmark::State& state, const Routine& routine) {
  double best_ms = 1e9;
  for (auto _ : state) {
    PlotIndex = kEntry;
    const auto begin = std::chrono::steady_clock::now();
    routine.draw();
    const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - begin;
    best_ms = std::min(best_ms, passed.count());
  }
  if (best_ms > slowest_ms) {
    slowest_ms = best_ms;
    slowest = routine.name;
  }
}

bool OpenAndRunExample(RunningHost& host, const std::string& folder) {
  namespace fs = std::filesystem;
  fs::create_directories(folder);
  fs::copy(fs::path(TARNVIK_EXAMPLES) / "north-sea-cod", folder,
           fs::copy_options::overwrite_existing | fs::copy_options::recursive);
  ChangeFolder(folder);  // as choosing the file in a dialog would
  host.folder = TARNVIK_BIN;
  host.files.push_back(JoinPath(folder, "cod.ctl"));
  StartProgram(host);
  RunEvent([] { OpenControlFile(); });
  RunEvent([] { frmMain_mnuModelRun_Click(0); });
  if (StdFileRead != kTrue) std::printf("the example has no results: %s\n", host.last_message.c_str());
  return StdFileRead == kTrue;
}

}  // namespace
}  // namespace tarnvik

int main(int argc, char** argv) {
  using namespace tarnvik;
  RunningHost host;
  const std::string folder = (std::filesystem::temp_directory_path() / "tarnvik-plot-bench").string();
  const bool ready = OpenAndRunExample(host, folder);
  if (ready) {
    RefreshInputPlots();
    RefreshOutputPlots();
    benchmark::Initialize(&argc, argv);
    for (const Routine& routine : kRoutines) {
      benchmark::RegisterBenchmark(routine.name,
                                   [&routine](benchmark::State& state) { Measure(state, routine); })
          ->Unit(benchmark::kMicrosecond)
          ->MinTime(0.05);
    }
    benchmark::RunSpecifiedBenchmarks();
    std::printf("slowest: %s, %.3f ms\n", slowest, slowest_ms);
  }
  EndProgram();
  ChangeFolder(TARNVIK_BIN);
  std::filesystem::remove_all(folder);
  return ready && slowest_ms < 1 ? 0 : 1;
}
