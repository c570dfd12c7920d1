// Cases as text, changed in single places, and runs of them in a folder of their own.
#pragma once

#include "case_data.h"
#include "program.h"

#include <filesystem>
#include <string>
#include <vector>

// A new, empty folder that goes with the object.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path path;
};

std::string ReadText(const std::filesystem::path& file);
void WriteText(const std::filesystem::path& file, const std::string& text);
std::vector<std::string> Lines(const std::string& text);
std::vector<std::string> Words(const std::string& line);

// Replaces `from`, which must stand in `text` exactly once.
void Replace(std::string& text, const std::string& from, const std::string& to);

struct Change {
  std::string from;
  std::string to;
};

struct CaseText {
  std::string dat;
  std::string pin;

  CaseText With(const std::vector<Change>& inDat, const std::vector<Change>& inPin = {}) const;
};

CaseText SmallCase();  // three years, three ages, one survey
CaseText CodCase();

// The end of its data file: the phases of all parameters.
inline const char* const kSmallPhases =
    "# phases\n-1\n1\n2\n1\n2\n-1\n-1\n-1\n3\n3\n-1\n-1\n-1\n-1\n-1\n-1\n3\n3\n-1\n-1\n";

// Ways to change the small case, each for another path of the model.
struct Variant {
  const char* name;
  std::vector<Change> inDat;
  std::vector<Change> inPin;
};
const std::vector<Variant>& Variants();

struct LoadedCase {
  model::CaseData data;
  model::StartValues start;
};
LoadedCase Load(const CaseText& text);

struct RunResult {
  int exitCode = -1;
  std::string progress;
  std::string log;
  std::string rep, std, par;  // empty: not there
  bool AnyOutput() const { return !rep.empty() || !std.empty() || !par.empty(); }
};

// Runs the program on case.pin and case.dat in this process. Old output files lie in the folder beforehand.
RunResult RunCase(const CaseText& text, const model::FitLimits& limits = {});
