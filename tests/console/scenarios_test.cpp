// Whole flows: each script of tests/scenarios is run in a folder of its own, with a copy of the example case
// in it, and its transcript compared with the file beside it. @FOLDER@ in a script and in a transcript is
// that folder.
#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "console/session.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolder = "@FOLDER@";

std::vector<std::string> LinesOf(const std::string& path) {
  const std::string bytes = ReadBytes(path);
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
    lines.push_back(bytes.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::vector<std::string> ScenarioNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(TARNVIK_SCENARIOS)) {
    if (entry.path().extension() == ".script") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class Scenario : public ProgramTest, public testing::WithParamInterface<std::string> {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    EndProgram();
    CopyExample(folder);
  }

  // The commands, each behind "> ", and the answers as they came.
  std::vector<std::string> Transcript(const std::string& script) {
    std::vector<std::string> transcript;
    const std::vector<std::string> commands = LinesOf(script);
    std::size_t next = 0;
    const auto read = [&](std::string& line) {
      if (next == commands.size()) return false;
      transcript.push_back("> " + commands[next]);
      line = Replaced(commands[next++], kFolder, folder);
      return true;
    };
    const auto write = [&](const std::string& line) {
      transcript.push_back(Replaced(line, folder, kFolder));
      return true;
    };
    Session({read, write}, folder, DateTime{2026, 11, 16, 1, 5}).Run();
    SetHost(&host);
    return transcript;
  }
};

TEST_P(Scenario, answers_as_written_down) {
  const std::string base = std::string(TARNVIK_SCENARIOS) + "/" + GetParam();
  const std::vector<std::string> transcript = Transcript(base + ".script");
  if (std::getenv("TARNVIK_WRITE_SCENARIOS")) {
    std::string text;
    for (const std::string& line : transcript) text += line + "\n";
    WriteBytes(base + ".expected", text);
  }
  const std::vector<std::string> expected = LinesOf(base + ".expected");
  for (std::size_t i = 0; i < std::min(transcript.size(), expected.size()); ++i) {
    ASSERT_EQ(transcript[i], expected[i]) << base << ".expected, line " << i + 1;
  }
  EXPECT_EQ(transcript.size(), expected.size());
}

INSTANTIATE_TEST_SUITE_P(Scripts, Scenario, testing::ValuesIn(ScenarioNames()),
                         [](const auto& script) { return script.param; });

}  // namespace
}  // namespace tarnvik
