// A case whose results lie in the test's folder: three years, three ages, one survey, one selectivity period.
#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "core/globals.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "modelrun/scan.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "support/test_program.h"

namespace tarnvik {

class ResultsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    report = ReadBytes(TARNVIK_TEST_DATA "/small/small.rep");
    std_file = ReadBytes(TARNVIK_TEST_DATA "/small/small.std");
    par_file = ReadBytes(TARNVIK_TEST_DATA "/small/small.par");
    ReportPath = InFolder("small.rep");
    StdPath = InFolder("small.std");
    ParPath = InFolder("small.par");
    frmInput->lblCTL.SetCaption(InFolder("small.ctl"));
    SetDimensions(2001, 3, 3, 1, 1);
    host.messages.clear();
  }

  // The case state and the fields of the input forms that the scanners read.
  void SetDimensions(int first_year, int years, int ages, int surveys, int periods) {
    NFYear = Int16(first_year);
    NYears = Int16(years);
    NXYear = Int16(first_year + years - 1);
    NAges = Int16(ages);
    RecYr = Int16(first_year - ages + 1);
    NIndex = Int16(surveys);
    NSelPer = Int16(periods);
    FishAgeNYears = NYears;
    SurvNYears.ReDim(surveys);
    for (int s = 1; s <= surveys; ++s) SurvNYears(s) = NYears;
    frmInput->cmbRefYr.Clear();
    frmInput->cmbRefYr.AddItem(std::to_string(first_year + 1));
    frmInput->cmbRefYr.SetListIndex(0);
    frmInput->ORVFlexGrid(11).Resize(periods + 1, 2);
    frmPin->ORVFlexGrid1(2).Resize(4, periods + 1);
    frmPin->ORVFlexGrid1(4).Resize(periods + 1, ages + 1);
    for (int p = 1; p <= periods; ++p) {
      frmInput->ORVFlexGrid(11).SetTextMatrix(p, 1, std::to_string(ages));
      for (int row = 1; row <= 3; ++row)
        frmPin->ORVFlexGrid1(2).SetTextMatrix(row, p, "in" + std::to_string(row));
    }
  }

  // Replaces the one occurrence of a text.
  static void Edit(std::string& bytes, const std::string& from, const std::string& to) {
    const std::size_t at = bytes.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    ASSERT_EQ(bytes.find(from, at + 1), std::string::npos) << from << " occurs twice";
    bytes.replace(at, from.size(), to);
  }

  // Writes the three files and scans them; the texts of the boxes shown.
  std::vector<std::string> Scan() {
    WriteBytes(ReportPath, report);
    WriteBytes(StdPath, std_file);
    WriteBytes(ParPath, par_file);
    ScanReportFile();
    EXPECT_EQ(MousePointer(), Pointer::Default);
    EXPECT_FALSE(File1.IsOpen());
    return host.TakeTexts();
  }

  static void UnloadResults() {
    UnloadForm(frmOutput);
    UnloadForm(frmOutputData);
    UnloadForm(frmSTD);
  }

  static void ExpectNoResults() {
    EXPECT_FALSE(frmOutput.Loaded());
    EXPECT_FALSE(frmOutputData.Loaded());
    EXPECT_FALSE(frmSTD.Loaded());
    EXPECT_EQ(OutputFormsOpen, kFalse);
    EXPECT_EQ(StdFileRead, kFalse);
    EXPECT_EQ(ParFileRead, kFalse);
  }

  using Texts = std::vector<std::string>;

  // Expected texts are written "table(row,col) text; table(row,col) text", those of labels "index text; index
  // text".
  template <class Compare>
  static void ForEachExpected(const std::string& list, Compare compare) {
    for (std::size_t at = 0; at < list.size();) {
      const std::size_t end = std::min(list.find("; ", at), list.size());
      const std::string item = list.substr(at, end - at);
      const std::size_t blank = item.find(' ');
      ASSERT_NE(blank, std::string::npos) << item;
      compare(item.substr(0, blank), item.substr(blank + 1));
      at = end + 2;
    }
  }
  static void ExpectCells(const ControlArray<Grid>& grids, const std::string& list) {
    ForEachExpected(list, [&](const std::string& place, const std::string& text) {
      int table = 0, row = 0, col = 0;
      ASSERT_EQ(std::sscanf(place.c_str(), "%d(%d,%d)", &table, &row, &col), 3) << place;
      EXPECT_EQ(grids(table).TextMatrix(row, col), text) << place;
    });
  }
  static void ExpectResults(const std::string& list) {
    ASSERT_TRUE(frmOutputData.Loaded());
    ExpectCells(frmOutputData->MSFlexGrid, list);
  }
  static void ExpectParameters(const std::string& list) {
    ASSERT_TRUE(frmSTD.Loaded());
    ExpectCells(frmSTD->MSFlexGrid, list);
  }
  static void ExpectCaptions(const ControlArray<Label>& labels, const std::string& list) {
    ForEachExpected(list, [&](const std::string& index, const std::string& text) {
      EXPECT_EQ(labels(std::stoi(index)).Caption(), text) << labels(std::stoi(index)).FullName();
    });
  }

  std::string report, std_file, par_file;
};

}  // namespace tarnvik
