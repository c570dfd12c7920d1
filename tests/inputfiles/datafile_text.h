// A data file as sections, so that a test can name what it changes, and a fixture that reads and writes such
// texts.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/frmmain.h"
#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/case_test.h"
#include "inputfiles/casefiles.h"
#include "inputfiles/datafile.h"
#include "support/test_program.h"

namespace tarnvik {

// Comment lines and the lines of values behind them. A section is named by any part of its comments.
class DataText {
 public:
  explicit DataText(const std::string& bytes) {
    for (const std::string& line : LinesOf(bytes)) Add(line);
  }
  // "section=values;section=values"; several lines of values are parted by "|".
  void Put(std::string_view changes) {
    while (!changes.empty()) {
      const std::string_view change = Cut(changes, ';');
      const std::size_t mark = change.rfind('=');
      std::string_view values = change.substr(mark + 1);
      Texts& lines = Find(change.substr(0, mark)).values;
      lines.clear();
      do lines.emplace_back(Cut(values, '|'));
      while (!values.empty());
    }
  }
  // "section;section": they lose their values.
  void Drop(std::string_view names) {
    while (!names.empty()) Find(Cut(names, ';')).values.clear();
  }
  void PutHead(const Texts& comments) { sections_.front().comments = comments; }
  std::string Bytes() const {
    std::string bytes;
    for (const Section& section : sections_) bytes += Joined(section.comments) + Joined(section.values);
    return bytes;
  }

 private:
  struct Section {
    Texts comments;
    Texts values;
  };
  // The text up to a mark, which is taken off with it.
  static std::string_view Cut(std::string_view& text, char mark) {
    const std::size_t end = std::min(text.find(mark), text.size());
    const std::string_view head = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return head;
  }
  void Add(const std::string& line) {
    if (!line.starts_with('#')) {
      sections_.back().values.push_back(line);
      return;
    }
    if (sections_.empty() || !sections_.back().values.empty()) sections_.emplace_back();
    sections_.back().comments.push_back(line);
  }
  Section& Find(std::string_view name) {
    for (Section& section : sections_) {
      for (const std::string& comment : section.comments) {
        if (comment.find(name) != std::string::npos) return section;
      }
    }
    throw std::runtime_error("no section " + std::string(name));
  }
  std::vector<Section> sections_;
};

inline std::string Changed(const std::string& bytes, std::string_view changes) {
  DataText text(bytes);
  text.Put(changes);
  return text.Bytes();
}

class DataFileTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    every_option = ReadBytes(std::string(TARNVIK_TEST_DATA) + "/every_option.dat");
  }
  // As a user opens a data file, into the form as it is.
  void Open(const std::string& bytes) {
    WriteBytes("every_option.dat", bytes);
    host.files.push_back("every_option.dat");
    frmInput_cmdBrowse2_Click(0);
  }
  // The same into the empty form that the opening of a case begins with.
  void OpenFresh(const std::string& bytes) {
    UnloadForm(frmInput);
    UnloadForm(frmPin);
    Open(bytes);
  }
  std::string Saved() {
    WriteDataFile();
    EXPECT_EQ(FilesSaved, kTrue);
    return ReadBytes(DatFilePath);
  }
  std::string every_option;  // a small case with all options on, as the writer leaves it
};

}  // namespace tarnvik
