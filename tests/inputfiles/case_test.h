// A fixture with the example case in the test's folder, and the lines of its files.
#pragma once

#include <string>
#include <vector>

#include "core/globals.h"
#include "inputfiles/casefiles.h"
#include "support/test_program.h"

namespace tarnvik {

using Texts = std::vector<std::string>;

inline Texts LinesOf(const std::string& bytes) {
  Texts lines;
  for (std::size_t at = 0, end; (end = bytes.find("\r\n", at)) != std::string::npos; at = end + 2) {
    lines.push_back(bytes.substr(at, end - at));
  }
  return lines;
}

inline std::string Joined(const Texts& lines, const char* line_end = "\r\n") {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + line_end;
  return bytes;
}

class CaseTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    control = CopyExample(folder);
  }
  void OpenCase(const std::string& path) {
    host.files.push_back(path);
    frmInput_cmdBrowseCTL_Click(0);
  }
  // The text of the last box; the others are forgotten.
  std::string LastText() {
    const Texts texts = host.TakeTexts();
    return texts.empty() ? "no box" : texts.back();
  }
  std::string control;
};

}  // namespace tarnvik
