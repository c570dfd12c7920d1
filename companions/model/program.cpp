#include "program.h"

#include "data_file_read.h"
#include "deviations.h"
#include "numbers.h"
#include "output_file.h"
#include "parameter_file_read.h"
#include "report_par.h"
#include "report_rep.h"
#include "report_std.h"

#include <chrono>
#include <new>
#include <optional>

namespace model {

namespace {

const char* const kReportName = "TARNVIK.REP";
const char* const kDeviationsName = "TARNVIK.STD";
const char* const kParametersName = "TARNVIK.PAR";

using Clock = std::chrono::steady_clock;

std::string Seconds(Clock::time_point begin, int decimals) {
  return Fixed(std::chrono::duration<double>(Clock::now() - begin).count(), decimals) + " s";
}

struct CommandLine {
  std::string parameterFile;
  std::string dataFile;
};

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
  CommandLine files;
  for (std::size_t i = 0; i + 1 < arguments.size(); i += 2) {
    if (arguments[i] == "-ainp") files.parameterFile = arguments[i + 1];
    if (arguments[i] == "-ind") files.dataFile = arguments[i + 1];
  }
  if (arguments.size() != 4 || files.parameterFile.empty() || files.dataFile.empty())
    throw Failure(kUsage, "usage: tarnvik.exe -ainp <parameter file> -ind <data file>");
  return files;
}

void TellCase(const std::string& file, const CaseData& data, const Messages& messages) {
  messages.Progress("data " + file + ": " + std::to_string(data.styr) + "-" + std::to_string(data.endyr) +
                    ", " + std::to_string(data.nAges) + " ages, " + std::to_string(data.nSurveys) +
                    " surveys, " + std::to_string(data.nPeriods) + " selectivity periods");
  if (data.estimateInitialF == 0 && data.recyr > data.styr)
    messages.Note(
        "the initial age structure is that of an unfished stock, since recyr is after styr and initial F is "
        "not estimated");
  if (data.nBoot > 0)
    messages.Note(
        "nboot = " + std::to_string(data.nBoot) +
        ": bootstrap replicates are not run; the single fit and its standard deviations are reported");
}

void TellVerdict(const Fit& fit, const Messages& messages) {
  if (fit.layout.EstimatedCount() == 0)
    messages.Note("nothing is estimated; no standard deviations");
  else if (fit.converged)
    messages.Progress("converged: objective " + Fixed(fit.objective, 6) + ", max gradient " +
                      Exponential(fit.maxGradient));
  else
    messages.Warning("not converged, max gradient " + Exponential(fit.maxGradient) +
                     "; results are not reliable");
}

std::optional<std::vector<ReportedQuantity>> FindDeviations(const Fit& fit, const Messages& messages) {
  if (fit.layout.EstimatedCount() == 0) return std::nullopt;
  const Clock::time_point begin = Clock::now();
  auto quantities = ComputeDeviations(fit);
  if (quantities)
    messages.Progress("standard deviations: " + std::to_string(quantities->size()) + " quantities, " +
                      Seconds(begin, 2));
  else
    messages.Warning("Hessian matrix is not positive definite; no standard deviations");
  return quantities;
}

ExitCode Run(const CommandLine& files, const RunSettings& settings, const Messages& messages) {
  const Clock::time_point begin = Clock::now();
  messages.Progress("Tarnvik 1.4 estimation program");
  const CaseData data = ReadCaseData(files.dataFile, messages);
  const StartValues start = ReadStartValues(files.parameterFile, data);
  TellCase(files.dataFile, data, messages);

  Fit fit(data, start, messages);
  RunFit(fit, settings.limits, messages);
  TellVerdict(fit, messages);
  const auto deviations = FindDeviations(fit, messages);

  // A report older than its parameter file counts as stale, so it comes last.
  const Population<double> population = fit.CurrentPopulation();
  WriteWholeFile(settings.folder, kParametersName, ParameterFileText(fit, start, population));
  if (deviations) WriteWholeFile(settings.folder, kDeviationsName, DeviationFileText(*deviations));
  WriteWholeFile(settings.folder, kReportName,
                 ReportText(fit, population, files.dataFile, files.parameterFile));
  messages.Progress("done: " + Seconds(begin, 1));

  if (!fit.converged) return kNotConverged;
  return deviations || fit.layout.EstimatedCount() == 0 ? kFitted : kNoDeviations;
}

}  // namespace

ExitCode RunProgram(const std::vector<std::string>& arguments, const RunSettings& settings,
                    const Messages& messages) {
  try {
    for (const char* name : {kReportName, kDeviationsName, kParametersName})
      RemoveOldFile(settings.folder, name);
    return Run(ReadCommandLine(arguments), settings, messages);
  } catch (const Failure& failure) {
    messages.Error(failure.what());
    return failure.exitCode;
  } catch (const std::bad_alloc&) {
    messages.Error("not enough memory for a case of this size");
    return kNotFinite;
  }
}

}  // namespace model
