#include "programs.h"

#include <filesystem>
#include <new>

#include "case_writer.h"
#include "output_files.h"
#include "survey_list.h"
#include "surveys.h"
#include "text_file.h"

namespace vpa {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kExtension = 4;  // ".dat"

std::string PathOf(const std::vector<std::string>& arguments, const char* program) {
  std::string path;
  for (const std::string& argument : arguments) path += (path.empty() ? "" : " ") + argument;
  if (path.size() <= kExtension)
    throw std::runtime_error(std::string("usage: ") + program +
                             " FILE (the index file of a stock, ending in .dat)");
  return path;
}

std::string Beside(const std::string& file, const char* name) {
  return (fs::path(file).parent_path() / name).string();
}

// Runs `work`; a fault becomes one line and exit status 1.
template <typename Work>
int Guarded(std::ostream& log, const Work& work) {
  std::string fault;
  try {
    work();
    return 0;
  } catch (const std::bad_alloc&) {
    fault = "not enough memory";
  } catch (const std::exception& error) {
    fault = error.what();
  }
  log << fault << std::endl;
  return 1;
}

// Where the log cannot be written, the folder missing for example, the fault itself is still what the user
// must know.
void TellIn(const std::string& error_log, const Fault& fault) {
  try {
    WriteAllOrNone({{error_log, std::string(fault.what()) + "\r\n"}});
  } catch (const Fault&) {
  }
}

// Without tuning data there is no fleet, and the list says so.
std::vector<Fleet> ReadFleetsIfAny(const IndexFile& index) {
  if (index.files[kTuning].path.empty()) return {};
  return ReadTuningFile(NeededFile(index, kTuning));
}

}  // namespace

int RunScanVpaSurvey(const std::vector<std::string>& arguments, std::ostream& progress, std::ostream& log) {
  return Guarded(log, [&] {
    const std::string file = PathOf(arguments, "scanvpasurvey.exe");
    const std::string list = Beside(file, "vpa_survey_list.txt");
    const std::string error_log = Beside(file, "vpa_survey_error.log");
    std::error_code ignored;
    fs::remove(error_log, ignored);
    try {
      const std::vector<Fleet> fleets = ReadFleetsIfAny(ReadIndexFile(file));
      const std::vector<Index> indices = ListIndices(fleets);
      WriteAllOrNone({{list, SurveyListText(indices)}});
      progress << file << ": " << indices.size() << " indices of " << fleets.size() << " fleets" << std::endl;
    } catch (const Fault& fault) {
      // A list of an earlier run would pass for one of these data.
      if (fs::is_regular_file(list, ignored)) fs::remove(list, ignored);
      TellIn(error_log, fault);
      throw;
    }
  });
}

int RunVpa2Tarnvik(const std::vector<std::string>& arguments, std::ostream& progress, std::ostream& log) {
  return Guarded(log, [&] {
    const std::string file = PathOf(arguments, "vpa2tarnvik.exe");
    const std::string root = file.substr(0, file.size() - kExtension) + "_tarnvik";
    const CasePaths paths = {root + ".ctl", root + ".dat", root + ".pin"};
    const IndexFile index = ReadIndexFile(file);
    const Stock stock = ReadStock(index);
    const std::string tuning = NeededFile(index, kTuning);
    const std::vector<Fleet> fleets = ReadTuningFile(tuning);
    if (fleets.empty()) throw Fault(tuning, "no fleet in the tuning data");
    std::vector<std::string> notes;
    const std::vector<Survey> surveys =
        MakeSurveys(Beside(file, "tarnvik_survey_list.txt"), fleets, stock, notes);
    // The control file opens the case, so it comes last.
    WriteAllOrNone({{paths.dat, DataFileText(stock, surveys, paths)},
                    {paths.pin, ParameterFileText(stock, surveys, paths)},
                    {paths.ctl, ControlFileText(stock, paths)}});
    if (stock.age0_dropped) progress << "age 0 is dropped: the case begins with age 1\n";
    for (const std::string& note : notes) progress << note << '\n';
    progress << paths.ctl << ": " << Told(stock.years) << ", " << stock.Ages() << " ages, " << surveys.size()
             << " surveys" << std::endl;
  });
}

}  // namespace vpa
