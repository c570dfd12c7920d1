#include "vpa_folder.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "programs.h"

namespace fs = std::filesystem;

namespace {

struct NamedText {
  const char* name;
  const char* text;
};

// Every form code, a column and years too many, missing tuning values of every kind.
constexpr NamedText kTinyStock[] = {
    {"tiny.dat", "Tiny stock\n1\n-\ncn.dat\ncw.dat\nsw.dat\nnm.dat\nmo.dat\npf.dat\npm.dat\n-\n-\ntun.dat\n"},
    {"cn.dat",
     "Catch numbers\n1 2\n2001 2005\n0 3\n1\n5 10 20 30\n5 0 0 0\n5 40 20 20\n1 10 10 20\n1 15 15 20 77\n"},
    {"cw.dat", "Catch weights\n1 3\n2001 2001\n0 4\n2\n0.1 0.5 1 2 9\n"},
    {"sw.dat",
     "Stock weights\n1 4\n2000 2005\n1 3\n1\n9 9 9\n0.4 0.9 1.8\n0.4 0.9 1.8\n.5 1e0 2.\n0.4 0.9 1.8\n0.4 "
     "0.9 1.75\n"},
    {"nm.dat", "Natural mortality\n1 5\n2001 2005\n0 3\n2\n0.9 0.4 0.3 0.2\n"},
    {"mo.dat", "Maturity\n1 6\n2001 2005\n0 3\n2\n0 0 0.5 1\n"},
    {"pf.dat", "F before spawning\n1 7\n2001 2005\n0 3\n3\n0.1\n"},
    {"pm.dat", "M before spawning\n1 8\n2001 2005\n0 3\n5\n0.2\n0.3\n0.3\n0.3\n0.4\n"},
    {"tun.dat",
     "Tuning data\n666\nTrawl: spring\n2000 2006\n1 1 0 0.5\n0 3\n1 9 9 9 9\n2 1 NA 6 8\n2 1 4 6 8\n4 1 8 -9 "
     "8\n"
     "0.5 1 2 6 8\n-1 1 1 1 1\n1 9 9 9 9\nPots\n2001 2005\n1 1 0.5 1\n3 3\n1 1\n1 2\n1 3\n1 4\n1 5\n"},
    {"tarnvik_survey_list.txt", "2\r\nS, one\r\n2\r\n2  3  \r\n\r\n3\r\n1  4  5  \r\n"},
};

fs::path NewFolder() {
  static int count = 0;
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  fs::path folder =
      fs::temp_directory_path() / ("vpa_tests_" + std::to_string(now) + "_" + std::to_string(++count));
  fs::create_directories(folder);
  return folder;
}

}  // namespace

VpaFolder::VpaFolder() : path(NewFolder()) {
  for (const NamedText& file : kTinyStock) Write(file.name, file.text);
}

VpaFolder::VpaFolder(const fs::path& copy_of) : path(NewFolder()) {
  for (const auto& file : fs::directory_iterator(copy_of))
    fs::copy(file.path(), path / file.path().filename());
}

VpaFolder::~VpaFolder() {
  std::error_code ignored;
  fs::remove_all(path, ignored);
}

std::string VpaFolder::Text(const std::string& file) const {
  std::ifstream in(path / file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void VpaFolder::Write(const std::string& file, const std::string& text) const {
  std::ofstream(path / file, std::ios::binary) << text;
}

void VpaFolder::Change(const std::string& file, const std::string& from, const std::string& to) const {
  if (from.empty()) return Write(file, to);
  std::string text = Text(file);
  const std::size_t at = text.find(from);
  if (at == std::string::npos || text.find(from, at + 1) != std::string::npos)
    throw std::runtime_error("not exactly once in " + file + ": " + from);
  Write(file, text.replace(at, from.size(), to));
}

std::vector<std::string> VpaFolder::Files() const {
  std::vector<std::string> names;
  for (const auto& file : fs::directory_iterator(path)) names.push_back(file.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

Outcome VpaFolder::Cleaned(int status, const std::string& progress, std::string log) const {
  const std::string folder = path.string() + "/";
  for (std::size_t at; (at = log.find(folder)) != std::string::npos;) log.erase(at, folder.size());
  return {status, progress, log};
}

Outcome VpaFolder::Scan(const std::string& index) const {
  std::ostringstream progress, log;
  const int status = vpa::RunScanVpaSurvey({(path / index).string()}, progress, log);
  return Cleaned(status, progress.str(), log.str());
}

Outcome VpaFolder::Convert(const std::string& index) const {
  std::ostringstream progress, log;
  const int status = vpa::RunVpa2Tarnvik({(path / index).string()}, progress, log);
  return Cleaned(status, progress.str(), log.str());
}

std::string ValuesUnder(const std::string& text, const std::string& comment) {
  std::istringstream lines(text.substr(std::min(text.find(comment), text.size())));
  std::string values;
  bool found = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("#", 0) == 0 && found) break;
    if (line.rfind("#", 0) == 0 || line.rfind(comment, 0) == 0) continue;
    found = true;
    line.erase(line.find_last_not_of(" \r") + 1);
    values += (values.empty() ? "" : "/") + line;
  }
  return values;
}
