#include "case_runs.h"

#include <atomic>
#include <chrono>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "data_file_read.h"
#include "parameter_file_read.h"

namespace fs = std::filesystem;

namespace {

fs::path NewFolder() {
  static std::atomic<int> count = 0;
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  const fs::path folder =
      fs::temp_directory_path() / ("model_tests_" + std::to_string(now) + "_" + std::to_string(++count));
  fs::create_directories(folder);
  return folder;
}

std::string TextIfThere(const fs::path& file) { return fs::is_regular_file(file) ? ReadText(file) : ""; }

}  // namespace

TemporaryFolder::TemporaryFolder() : path(NewFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path, ignored);
}

std::string ReadText(const fs::path& file) {
  std::ifstream in(file);
  if (!in) throw std::runtime_error("no file " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

void WriteText(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

std::vector<std::string> Lines(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> Words(const std::string& line) {
  std::istringstream in(line);
  return {std::istream_iterator<std::string>(in), {}};
}

void Replace(std::string& text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  if (at == std::string::npos || text.find(from, at + 1) != std::string::npos)
    throw std::runtime_error("not exactly once in the case: " + from);
  text.replace(at, from.size(), to);
}

CaseText CaseText::With(const std::vector<Change>& inDat, const std::vector<Change>& inPin) const {
  CaseText changed = *this;
  for (const Change& c : inDat) Replace(changed.dat, c.from, c.to);
  for (const Change& c : inPin) Replace(changed.pin, c.from, c.to);
  return changed;
}

CaseText SmallCase() {
  const fs::path folder = SMALL_CASE_DIR;
  return {ReadText(folder / "small.dat"), ReadText(folder / "small.pin")};
}

CaseText CodCase() {
  const fs::path folder = COD_CASE_DIR;
  return {ReadText(folder / "cod.dat"), ReadText(folder / "cod.pin")};
}

const std::vector<Variant>& Variants() {
  const Change oneSelectivity = {"# Choose fishery selectivity model (set use_parametric_sel_FISH)\n1",
                                 "# Choose fishery selectivity model (set use_parametric_sel_FISH)\n0"};
  const Change allSmoothed = {"# smoothers\n0 0 0", "# smoothers\n1 1 1"};
  static const std::vector<Variant> variants = {
      {"as it is", {}, {}},
      {"domed curves, catchability and exponent estimated",
       {{"# use_flattopped_fishery_sel\n1", "# use_flattopped_fishery_sel\n0"},
        {"# use_flattopped_survey_sel\n1", "# use_flattopped_survey_sel\n0"},
        {"# estimate_survey_q\n0", "# estimate_survey_q\n1"},
        {"# estimate_survey_exp\n0", "# estimate_survey_exp\n1"},
        {kSmallPhases, "# phases\n-1\n1\n2\n1\n2\n-1\n-1\n4\n3\n3\n-1\n-1\n-1\n5\n5\n4\n3\n3\n-1\n-1\n"}},
       {}},
      {"a selectivity per age and survey in numbers, ages left out",
       {oneSelectivity,
        allSmoothed,
        {"# Choose survey selectivity model\n1", "# Choose survey selectivity model\n0"},
        {"# fit_survey_index_number_per_tow\n0", "# fit_survey_index_number_per_tow\n1"},
        {"# Ages in SURVEY, then for each survey\n1 1 1", "# Ages in SURVEY, then for each survey\n0 1 1"},
        {kSmallPhases,
         "# phases\n-1\n1\n2\n1\n2\n-1\n-1\n-1\n-1\n-1\n3\n-1\n-1\n-1\n-1\n-1\n-1\n-1\n3\n-1\n"}},
       {}},
      {"a selectivity per age and year, two ages",
       {oneSelectivity,
        allSmoothed,
        {"# estimate_annual_sel_FISH\n0", "# estimate_annual_sel_FISH\n1"},
        {kSmallPhases,
         "# phases\n-1\n1\n2\n1\n2\n-1\n-1\n-1\n-1\n-1\n-1\n3\n-1\n-1\n-1\n-1\n3\n3\n-1\n-1\n"}},
       {{"# log_sel_annual_FISH\n1 1 1 \n1 1 1 \n1 1 1", "# log_sel_annual_FISH\n1 2 \n1 1 \n1 0"}}},
      {"CPUE in biomass, initial F, a closed year, no criteria",
       {{"# fit_fishery_cpue\n0", "# fit_fishery_cpue\n1"},
        {"# Years to fit fishery CPUE data\n0 0 0", "# Years to fit fishery CPUE data\n1 0 1"},
        {"1.0  1.0  1.0  ", "1.1  0.0  0.8  "},
        {"# estimate_initial_equilibrium_F\n0", "# estimate_initial_equilibrium_F\n1"},
        {"# Initial equilibrium catch biomass\n0.0", "# Initial equilibrium catch biomass\n380"},
        {"420  510  460", "420  0  460"},
        {"# estimate_status_determination_criteria\n1", "# estimate_status_determination_criteria\n0"}},
       {}},
      {"CPUE in numbers, all of it estimated, lognormal prior of M, shrinkage",
       {{"# fit_fishery_cpue\n0", "# fit_fishery_cpue\n1"},
        {"# fit_cpue_index_number_per_tow\n0", "# fit_cpue_index_number_per_tow\n1"},
        {"# Years to fit fishery CPUE data\n0 0 0", "# Years to fit fishery CPUE data\n1 1 1"},
        {"# estimate_cpue_q\n0", "# estimate_cpue_q\n1"},
        {"# estimate_cpue_exp\n0", "# estimate_cpue_exp\n1"},
        {"# CV of M\n0", "# CV of M\n0.3"},
        {"# estimate_M\n0", "# estimate_M\n1"},
        {"its mean\n0", "its mean\n2"},
        {"# Shrinkage coefficient\n1", "# Shrinkage coefficient\n3"},
        {kSmallPhases, "# phases\n4\n1\n2\n1\n2\n5\n5\n-1\n3\n3\n-1\n-1\n-1\n-1\n-1\n-1\n3\n3\n-1\n-1\n"}},
       {}},
      {"gamma prior of M, survey not fitted and without a composition in a year",
       {{"# CV of M\n0", "# CV of M\n25"},
        {"# estimate_M\n0", "# estimate_M\n3"},
        {"# fit_survey_index\n1", "# fit_survey_index\n0"},
        {"0.44  0.34  0.22", "0 -1 0"},
        {kSmallPhases, "# phases\n4\n1\n2\n1\n2\n-1\n-1\n-1\n3\n3\n-1\n-1\n-1\n-1\n-1\n-1\n3\n3\n-1\n-1\n"}},
       {}},
      {"normal prior of M, recruitment from the second year on",
       {{"2001 2003 2001 2002", "2001 2003 2002 2002"},
        {"# CV of M\n0", "# CV of M\n0.2"},
        {"# estimate_M\n0", "# estimate_M\n2"},
        {kSmallPhases, "# phases\n4\n1\n2\n1\n2\n-1\n-1\n-1\n3\n3\n-1\n-1\n-1\n-1\n-1\n-1\n3\n3\n-1\n-1\n"}},
       {{"0 0 0 0 0", "0 0"}}},
  };
  return variants;
}

LoadedCase Load(const CaseText& text) {
  const TemporaryFolder folder;
  const fs::path dat = folder.path / "case.dat";
  const fs::path pin = folder.path / "case.pin";
  WriteText(dat, text.dat);
  WriteText(pin, text.pin);
  std::ostringstream ignored;
  LoadedCase loaded;
  loaded.data = model::ReadCaseData(dat.string(), {ignored, ignored});
  loaded.start = model::ReadStartValues(pin.string(), loaded.data);
  return loaded;
}

RunResult RunCase(const CaseText& text, const model::FitLimits& limits) {
  const TemporaryFolder folder;
  const std::string dat = (folder.path / "case.dat").string();
  const std::string pin = (folder.path / "case.pin").string();
  WriteText(dat, text.dat);
  WriteText(pin, text.pin);
  for (const char* name : {"TARNVIK.REP", "TARNVIK.STD", "TARNVIK.PAR"})
    WriteText(folder.path / name, "of an old run");

  std::ostringstream progress;
  std::ostringstream log;
  RunResult result;
  result.exitCode = model::RunProgram({"-ainp", pin, "-ind", dat}, {folder.path, limits}, {progress, log});
  result.progress = progress.str();
  result.log = log.str();
  for (std::size_t at; (at = result.log.find(folder.path.string() + "/")) != std::string::npos;)
    result.log.erase(at, folder.path.string().size() + 1);
  result.rep = TextIfThere(folder.path / "TARNVIK.REP");
  result.std = TextIfThere(folder.path / "TARNVIK.STD");
  result.par = TextIfThere(folder.path / "TARNVIK.PAR");
  return result;
}
