#include "core/settings.h"

#include <cstdio>
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

bool CanBeWritten(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "r+b");
  if (file) std::fclose(file);
  return file != nullptr;
}

// The file that the next write goes to, as far as it is there: a file in the program's folder that cannot be
// written gives way to the user's own.
std::string SettingsPathToRead() {
  const std::string own = InProgramFolder(kFileName);
  const std::string users = UserSettingsPath();
  return FileExists(own) && (CanBeWritten(own) || !FileExists(users)) ? own : users;
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
