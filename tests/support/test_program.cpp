#include "support/test_program.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/chart.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/process.h"

namespace fs = std::filesystem;

namespace tarnvik {

namespace {

bool Offers(Buttons buttons, Answer answer) {
  switch (buttons) {
    case Buttons::Ok:
      return answer == Answer::Ok;
    case Buttons::OkCancel:
      return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::YesNo:
      return answer == Answer::Yes || answer == Answer::No;
    case Buttons::YesNoCancel:
      return answer != Answer::Ok;
  }
  return false;
}

}  // namespace

Answer TestHost::ShowMessage(const std::string& text, Icon icon, Buttons buttons, Answer) {
  Answer answer = Offers(buttons, Answer::Cancel) ? Answer::Cancel
                  : Offers(buttons, Answer::No)   ? Answer::No
                                                  : Answer::Ok;
  if (!answers.empty() && Offers(buttons, answers.front())) {
    answer = answers.front();
    answers.pop_front();
  }
  messages.push_back({text, icon, buttons, answer});
  return answer;
}

std::optional<std::string> TestHost::ShowFileDialog(const FileDialog& dialog) {
  dialogs.push_back(dialog);
  if (files.empty()) return std::nullopt;
  const auto path = files.front();
  files.pop_front();
  if (path && dialog.moves_current_folder) {
    const auto separator = LastSeparator(*path);
    if (separator != std::string::npos) ChangeFolder(path->substr(0, separator + 1));
  }
  return path;
}

void TestHost::ShowModal(FormSlot&) {
  if (modal_acts.empty()) return;
  const auto act = modal_acts.front();
  modal_acts.pop_front();
  act();
}

std::int32_t TestHost::CreateConsoleProcess(const std::string& command) {
  commands.push_back(command);
  return process ? process(command) : RunConsoleProcess(command);
}

void TestHost::ExportChart(const Chart& chart, const std::string& path) {
  pictures.push_back(chart.FullName() + " " + chart.Titles[0]);
  OutputFile file;
  file.Open(path);
  file.Print(pictures.back());
  file.Close();
}

int TestHost::OpenDocument(const std::string& path) {
  opened.push_back(path);
  return 33;
}

std::vector<std::string> TestHost::TakeTexts() {
  std::vector<std::string> texts;
  for (const ShownMessage& message : messages) {
    std::string text;
    for (std::size_t i = 0; i < message.text.size(); ++i) {
      if (message.text.compare(i, 2, "\r\n") == 0) {
        text += '|';
        ++i;
      } else {
        text += message.text[i];
      }
    }
    texts.push_back(text);
  }
  messages.clear();
  return texts;
}

void ProgramTest::SetUp() {
  previous_folder_ = CurrentFolder();
  std::string pattern = (fs::temp_directory_path() / "tarnvik-test-XXXXXX").string();
  ASSERT_NE(mkdtemp(pattern.data()), nullptr);
  folder = fs::canonical(pattern).string();
  ChangeFolder(folder);
  // The settings of whoever runs the tests are none of theirs.
  setenv("XDG_CONFIG_HOME", JoinPath(folder, "config").c_str(), 1);
  host.program_folder = folder;
  StartProgram(host);
}

void ProgramTest::TearDown() {
  EndProgram();
  fs::current_path(previous_folder_);
  std::error_code error;
  fs::remove_all(folder, error);
}

std::string ProgramTest::InFolder(const std::string& name) const { return JoinPath(folder, name); }

void WriteBytes(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  ASSERT_TRUE(file.flush().good()) << path;
}

std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.good()) << path;
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

std::string CopyExample(const std::string& folder) {
  // All of one time, whatever the order of copying: a control file older than its data tells of stale
  // results.
  const auto now = fs::file_time_type::clock::now();
  for (const char* name : {"cod.ctl", "cod.dat", "cod.pin"}) {
    const fs::path copy = fs::path(folder) / name;
    fs::copy_file(fs::path(TARNVIK_EXAMPLES) / "north-sea-cod" / name, copy,
                  fs::copy_options::overwrite_existing);
    fs::last_write_time(copy, now);
  }
  return JoinPath(folder, "cod.ctl");
}

}  // namespace tarnvik
