#include "core/settings.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "platform/paths.h"

namespace tarnvik {

namespace {

constexpr const char* kFileName = "TARNVIK.CFG";
constexpr const char* kRangesHead = "[General Parameter Ranges]";
constexpr const char* kViewerHead = "[File Viewer]";
constexpr const char* kExitHead = "[Save on Exit]";

// The settings file in the user's configuration folder, "" when the system names none.
std::string UserSettingsPath() {
#ifdef _WIN32
  const char* home = std::getenv("APPDATA");
  return home ? JoinPath(JoinPath(home, "Tarnvik"), kFileName) : std::string();
#else
  if (const char* config = std::getenv("XDG_CONFIG_HOME"); config && *config) {
    return JoinPath(JoinPath(config, "tarnvik"), kFileName);
  }
  const char* home = std::getenv("HOME");
  return home && *home ? JoinPath(JoinPath(JoinPath(home, ".config"), "tarnvik"), kFileName) : std::string();
#endif
}

// The program's folder has the first word: where it can be written, nothing else is ever read.
std::string SettingsPathToRead() {
  const std::string own = InProgramFolder(kFileName);
  return FileExists(own) ? own : UserSettingsPath();
}

// The word behind the first one of a range line, and the one behind that.
void ReadRange(std::int16_t& first, std::int16_t* second) {
  const std::string line(File1.ReadLine());
  TokenFirst(line);
  first = ValInt(TokenNext(line));
  if (!second) return;
  const std::int16_t last = ValInt(TokenNext(line));
  *second = last == 0 ? CurrentYear() : last;
}

void ReadSections() {
  while (!File1.AtEnd()) {
    const std::string_view head = File1.ReadLine();
    if (head == kRangesHead) {
      ReadRange(GPYearMin, &GPYearMax);
      ReadRange(GPAgeMax, nullptr);
      ReadRange(GPSurveyMax, nullptr);
    } else if (head == kViewerHead) {
      const std::string viewer(File1.ReadLine());
      if (FileExists(viewer)) FileViewerPath = viewer;
    } else if (head == kExitHead) {
      const bool prompt = File1.ReadLine() == "T";
      ExitPrompt = Flag(prompt);
      frmMain->mnuOptionsExitPromptEnable.SetChecked(prompt);
      frmMain->mnuOptionsExitPromptDisable.SetChecked(!prompt);
    }
  }
}

// Ranges from which no list can be filled would stop the program at its start for good.
void RepairRanges() {
  if (GPYearMin < 1) GPYearMin = 1900;
  if (GPYearMax < GPYearMin) GPYearMax = CurrentYear() < GPYearMin ? GPYearMin : CurrentYear();
  if (GPAgeMax < 1) GPAgeMax = 60;
  if (GPSurveyMax < 1) GPSurveyMax = 50;
}

void WriteTo(const std::string& path) {
  OutputFile file;
  file.Open(path);
  file.PrintLine(kRangesHead);
  file.PrintLine("Years: " + NumberText(GPYearMin) + " " +
                 (GPAutoYear == kTrue ? "0" : NumberText(GPYearMax)));
  file.PrintLine("Ages: " + NumberText(GPAgeMax));
  file.PrintLine("Surveys: " + NumberText(GPSurveyMax));
  file.PrintLine(kViewerHead);
  file.PrintLine(FileExists(FileViewerPath) ? FileViewerPath : std::string(kNoneSelected));
  file.PrintLine(kExitHead);
  file.PrintLine(frmMain->mnuOptionsExitPromptEnable.Checked() ? "T" : "F");
  file.Close();
}

}  // namespace

void ReadSettingsFile() {
  FileViewerPath.clear();
  const std::string path = SettingsPathToRead();
  if (!FileExists(path)) return;
  try {
    File1.Open(path);
    ReadSections();
  } catch (const RunTimeError&) {
    // A damaged settings file must not keep the program from starting: what was read stands, defaults for the
    // rest.
  }
  File1.Close();
  RepairRanges();
}

void WriteSettingsFile() {
  try {
    WriteTo(InProgramFolder(kFileName));
  } catch (const RunTimeError&) {
    const std::string path = UserSettingsPath();
    if (path.empty()) throw;
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    WriteTo(path);
  }
}

}  // namespace tarnvik
