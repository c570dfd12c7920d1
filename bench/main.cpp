// Measures what must be fast on the largest case, each figure beside a plain program that does the least
// conceivable work, and prints the ratios. The ratios hold whatever the machine is doing: both sides run in
// turn, and each side's smallest time counts.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <vector>

#include "bench_host.h"
#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputedit/validation.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/datafile.h"
#include "inputfiles/paramfile.h"
#include "large_case.h"
#include "modelrun/scan.h"
#include "platform/paths.h"
#include "program/program.h"

extern char** environ;

namespace tarnvik {
namespace {

std::string folder;
BenchHost host;

std::string InFolder(const char* name) { return JoinPath(folder, name); }

std::string Bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// The least work of a reader: split into words, parse each as a number.
double SplitAndParse(const std::string& text) {
  double sum = 0;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at < end) {
    while (at < end && (*at == ' ' || *at == '\n' || *at == '\r' || *at == '\t')) ++at;
    const char* word_end = at;
    while (word_end < end && *word_end != ' ' && *word_end != '\n' && *word_end != '\r' && *word_end != '\t')
      ++word_end;
    double value = 0;
    std::from_chars(at, word_end, value);
    sum += value;
    at = word_end;
  }
  return sum;
}

double ReadFiles(std::initializer_list<const char*> names) {
  double sum = 0;
  for (const char* name : names) sum += SplitAndParse(Bytes(InFolder(name)));
  return sum;
}

// The least work of a writer: the texts of all cells that are saved, one behind the other, into a file.
void CopyCells() {
  std::string text;
  const auto append = [&text](const std::string& cell) {
    text += cell;
    text += ' ';
  };
  frmInput->ORVFlexGrid.ForEach([&](Grid& grid) {
    for (int r = 1; r < grid.Rows(); ++r) {
      for (int c = 0; c < grid.Cols(); ++c) append(grid.TextMatrix(r, c));
    }
  });
  frmPin->ORVFlexGrid1.ForEach([&](Grid& grid) {
    for (int r = 1; r < grid.Rows(); ++r) {
      for (int c = 1; c < grid.Cols(); ++c) append(grid.TextMatrix(r, c));
    }
  });
  for (int s = 1; s <= NIndex; ++s) {
    for (int p = 1; p <= NYears; ++p) {
      for (int c = 0; c <= NAges + 2; ++c) append(SurvAgeFit(s, c, p));
      for (int c = 0; c <= 2; ++c) append(SurvYearFit(s, c, p));
    }
  }
  std::ofstream file(InFolder("cells.txt"), std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
}

void Require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "bench: %s (%s)\n", what, host.last_message.c_str());
  std::exit(1);
}

void OpenLarge() {
  host.files = {InFolder("large.ctl")};
  OpenControlFile();
  Require(DatFileOpen == kTrue && PinFileOpen == kTrue, "the large case does not open");
}

// Runs a program to its end, its output thrown away.
int RunAndWait(const char* program, const char* argument) {
  const char* arguments[] = {program, argument, nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int failed = posix_spawnp(&child, program, &actions, nullptr, const_cast<char**>(arguments), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) return -1;
  int status = 0;
  waitpid(child, &status, 0);
  return status;
}

// Alternates the last age, so that every round is a change.
void ChangeAges() { frmInput->cmbNAges.SetListIndex(frmInput->cmbNAges.ListIndex() == 59 ? 58 : 59); }
void ChangeLastYear() {
  const int last = frmInput->cmbNXYear.ListIndex();
  static const int first_round = last;
  frmInput->cmbNXYear.SetListIndex(last == first_round ? last - 1 : first_round);
}
void ChangePeriods() { frmInput->cmbSelPer.SetListIndex(frmInput->cmbSelPer.ListIndex() == 3 ? 4 : 3); }

// Peak memory of a process of its own that opens the case and ends.
double PeakMegabytes() {
  const std::string script = InFolder("open.script");
  std::ofstream(script) << "file \"" << InFolder("large.ctl") << "\"\nmenu mnuFileOpen\nstate DatFileOpen\n";
  const std::string console = std::string(TARNVIK_BIN) + "/tarnvik-console";
  Require(RunAndWait(console.c_str(), script.c_str()) == 0, "the console does not run");
  rusage children{};
  getrusage(RUSAGE_CHILDREN, &children);
  return static_cast<double>(children.ru_maxrss) / 1024;
}

class KeepTimes : public benchmark::ConsoleReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Aggregate) continue;
      const double time = run.GetAdjustedRealTime();
      auto [at, added] = times.try_emplace(run.run_name.function_name, time);
      if (!added && time < at->second) at->second = time;
    }
  }
  std::map<std::string, double> times;  // smallest, milliseconds
};

void Add(const char* name, const std::function<void()>& act) {
  benchmark::RegisterBenchmark(name,
                               [act](benchmark::State& state) {
                                 for (auto _ : state) act();
                               })
      ->Unit(benchmark::kMillisecond)
      ->Repetitions(7)
      ->UseRealTime();
}

}  // namespace

int Main(int argc, char** argv) {
  // The repetitions of all are mixed, so that whatever else the machine does falls on both sides.
  std::vector<char*> arguments(argv, argv + argc);
  std::string mixed = "--benchmark_enable_random_interleaving=true";
  arguments.push_back(mixed.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  std::string pattern = (std::filesystem::temp_directory_path() / "tarnvik-bench-XXXXXX").string();
  Require(mkdtemp(pattern.data()) != nullptr, "no folder to work in");
  folder = host.folder = pattern;
  ChangeFolder(folder);  // as a file dialog would: control files name their neighbours without a folder
  WriteLargeCase(folder);
  const double peak = PeakMegabytes();  // first: the largest child counts
  WriteLargeResults(folder);
  StartProgram(host);
  OpenLarge();

  const std::string console = std::string(TARNVIK_BIN) + "/tarnvik-console";
  Add("open", OpenLarge);
  Add("open, least", [] { benchmark::DoNotOptimize(ReadFiles({"large.ctl", "large.dat", "large.pin"})); });
  Add("save", [] {
    WriteDataFile();
    WriteParameterFile();
    WriteControlFile();
  });
  Add("save, least", CopyCells);
  Add("scan", [] {
    ReportPath = InFolder("large.rep");
    StdPath = InFolder("large.std");
    ParPath = InFolder("large.par");
    ScanReportFile();
    Require(StdFileRead == kTrue, "the large report cannot be scanned");
  });
  Add("scan, least", [] { benchmark::DoNotOptimize(ReadFiles({"large.rep", "large.std"})); });
  Add("validate all", [] {
    ValidateInputData();
    Require(InputValid == kTrue, "the large case is not valid");
    ValidateParameters();
    Require(InputValid == kTrue, "the parameters of the large case are not valid");
  });
  KeepTimes reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);

  // These change the case, and so must not be mixed with those above.
  benchmark::ClearRegisteredBenchmarks();
  Add("change ages", ChangeAges);
  Add("change last year", ChangeLastYear);
  Add("change periods", ChangePeriods);
  Add("console start", [&] { RunAndWait(console.c_str(), "/dev/null"); });
  Add("console start, least", [] { RunAndWait("true", nullptr); });
  benchmark::RunSpecifiedBenchmarks(&reporter);

  const auto time = [&](const std::string& name) {
    const auto found = reporter.times.find(name);
    return found == reporter.times.end() ? 0.0 : found->second;  // left out by a filter
  };
  const auto size = [](const char* name) {
    return static_cast<double>(std::filesystem::file_size(InFolder(name)));
  };
  const double bytes = size("large.ctl") + size("large.dat") + size("large.pin");
  std::printf("\n%-22s %9s %9s %7s  %s\n", "", "ms", "least ms", "ratio", "wanted");
  for (const char* name : {"open", "save", "scan"}) {
    const double least = time(std::string(name) + ", least");
    std::printf("%-22s %9.2f %9.2f %7.2f  at most 2\n", name, time(name), least, time(name) / least);
  }
  for (const char* name : {"validate all", "change ages", "change last year", "change periods"}) {
    std::printf("%-22s %9.2f %9s %7s  under 50 ms\n", name, time(name), "", "");
  }
  std::printf("%-22s %9.2f %9.2f %7s  under 20 ms\n", "console start", time("console start"),
              time("console start, least"), "");
  std::printf("%-22s %6.1f MB %6.1f MB %7.2f  under 10 times the files\n", "peak memory, open", peak,
              bytes / 1048576, peak * 1048576 / bytes);
  EndProgram();
  std::filesystem::remove_all(folder);
  return 0;
}

}  // namespace tarnvik

int main(int argc, char** argv) { return tarnvik::Main(argc, argv); }
