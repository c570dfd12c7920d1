// Files that cannot be read, and files that cannot be written.

#include <span>

#include "inputfiles/datafile_text.h"

namespace tarnvik {
namespace {

class DataFileFaults : public DataFileTest {
 protected:
  // Reads bytes after a validation that passed; every failed read ends with the file closed and no data open.
  void ReadBroken(const std::string& bytes) {
    WriteBytes("broken.dat", bytes);
    DatFilePath = "broken.dat";
    InputValid = kTrue;
    ReadDataFile();
    EXPECT_FALSE(File1.IsOpen());
  }
  void ExpectGoodFileOpens() {
    OpenFresh(every_option);
    EXPECT_EQ(Saved(), every_option);
    EXPECT_EQ(LoadingForm, kFalse);
    EXPECT_EQ(host.TakeTexts(), Texts{});
  }
};

TEST_F(DataFileFaults, a_value_that_cannot_be_ends_the_read_with_a_message) {
  struct Row {
    const char *change, *message;
  };
  const Row refused_before_shaping[] = {
      {"styr endyr=2001 2001 2001 2001", "Invalid Value for End Year"},
      {"styr endyr=2001 2004 2000 2003", "Invalid Value for Recruitment Year"},
      {"styr endyr=2001 2004 2005 2003", "Invalid Value for Recruitment Year"},
      {"styr endyr=2001 2004 2001 2005", "Invalid Value for Reference Year"},
      {"styr endyr=2001 2004 2001", "Invalid Value for Reference Year"},
      {"age classes=0", "Invalid Value for Number of Ages"},
      {"of surveys=-1", "Number of Surveys Must be 1 or More"},
      {"selectivity periods=0", "Invalid Value for Number of Fishery Selectivity Periods"},
      {"selectivity periods=5", "Invalid Value for Number of Fishery Selectivity Periods"},
  };
  const Row refused[] = {
      {"Starting years=2002 2003", "Start of First Selectivity Period Must be the First Year of Data"},
      {"nselage_FISH=2 4", "Number of Ages to Estimate Fishery Selectivity Exceeds Age Range"},
      {"nselage_FISH=2", "Number of Ages to Estimate Fishery Selectivity Exceeds Age Range"},
      {"years of fishery CPUE=5", "Invalid Value for Number of Years of Fishery CPUE Data"},
      {"years of fishery age=0", "Invalid Value for Number of Years of Fishery Age Data"},
      {"Years of fishery age=2000 2001 2002", "Invalid Value for Fishery Age Data Years"},
      {"Years of fishery age=2001 2003 2004", "Fishery Age Data Years Must Be Sequential and Continuous"},
      {"years of SURVEY=3 5", "Invalid Value for Number of Years of Survey Data for Survey 2"},
  };
  const Row failed_before_shaping[] = {
      {"styr endyr=99999 99999 1 1", "Overflow"},
      {"styr endyr=-20000 20000 1 1", "Overflow"},
      {"age classes=40000", "Overflow"},
  };
  const Row failed[] = {
      {"Years of Autumn SURVEY=2003", "Subscript out of range"},
      {"Years of Autumn SURVEY=2000", "Subscript out of range"},
      {"flag: estimate_M=4", "Invalid property value"},
      {"flag: estimate_cpue_q=1e9", "Overflow"},
  };
  const auto expect = [&](std::span<const Row> rows, const std::string& head, std::int16_t loading) {
    for (const Row& row : rows) {
      UnloadForm(frmInput);
      ReadBroken(Changed(every_option, row.change));
      EXPECT_EQ(host.TakeTexts(), Texts{head + "|" + row.message}) << row.change;
      EXPECT_EQ(LoadingForm, loading) << row.change;
      EXPECT_EQ(DatFileOpen, kFalse) << row.change;
      EXPECT_EQ(InputValid, kFalse) << row.change;
    }
  };
  // Before the forms have their shape a failure leaves LoadingForm set, until the next read or load.
  expect(refused_before_shaping, "Error Reading Input File", kTrue);
  expect(refused, "Error Reading Input File", kFalse);
  expect(failed_before_shaping, "Error Reading Input Data File", kTrue);
  expect(failed, "Error Reading Input Data File", kFalse);
  ExpectGoodFileOpens();
}

TEST_F(DataFileFaults, missing_titles_leave_the_result_of_the_last_validation) {
  const std::string titles = "# Number of years of SURVEY data (Spring trawl,Autumn)";
  for (const char* broken :
       {"# Number of years of SURVEY data", "# Number of years of SURVEY data (Spring trawl)",
        "# Number of years of SURVEY data (Spring trawl,Autumn", "# Surveys"}) {
    std::string bytes = every_option;
    bytes.replace(bytes.find(titles), titles.size(), broken);
    ReadBroken(bytes);
    EXPECT_EQ(host.TakeTexts(),
              Texts{"Error Reading Input File|Unable to Retrieve Number of Years of Survey Data"});
    EXPECT_EQ(InputValid, kTrue);
    EXPECT_EQ(DatFileOpen, kFalse);
    EXPECT_EQ(LoadingForm, kFalse);
  }
}

TEST_F(DataFileFaults, years_and_counts_beyond_the_ranges_widen_them) {
  GPYearMax = 2002;
  OpenFresh(
      Changed(every_option,
              "styr endyr=1895 1898 1895 1898;Starting years=1895 1896 ;Years of fishery age=1895 1896 1897;"
              "Years of Spring=1895;Years of Autumn=1896"));
  EXPECT_EQ(GPYearMin, 1895);
  EXPECT_EQ(frmInput->cmbNFYear.Text(), "1895");
  EXPECT_EQ(frmInput->cmbNXYear.Text(), "1898");
  EXPECT_EQ(frmInput->cmbNXYear.List(0), "1895");
  OpenFresh(every_option);
  EXPECT_EQ(GPYearMax, 2004);
  EXPECT_EQ(frmInput->cmbNXYear.Text(), "2004");
  GPAgeMax = GPSurveyMax = 1;
  OpenFresh(every_option);
  EXPECT_EQ(GPAgeMax, 3);
  EXPECT_EQ(GPSurveyMax, 2);
  EXPECT_EQ(Saved(), every_option);
}

TEST_F(DataFileFaults, a_case_too_large_is_refused_before_it_takes_memory) {
  ReadBroken(Changed(every_option, "styr endyr=1 30000 1 1;age classes=30000"));
  EXPECT_EQ(host.TakeTexts(), Texts{"Error Reading Input Data File|Out of memory"});
  EXPECT_EQ(DatFileOpen, kFalse);
  GPYearMin = 1900;
  ExpectGoodFileOpens();
}

TEST_F(DataFileFaults, a_file_cut_at_any_line_is_told_or_read_and_does_no_harm) {
  CopyExample(folder);
  const std::string example = ReadBytes("cod.dat");
  int told = 0;
  for (std::size_t end = 0; end < example.size(); end = example.find("\r\n", end) + 2) {
    ReadBroken(example.substr(0, end));
    const Texts texts = host.TakeTexts();
    EXPECT_EQ(DatFileOpen, Flag(texts.empty())) << "cut at byte " << end;
    told += texts.empty() ? 0 : 1;
  }
  EXPECT_GT(told, 100);
  ReadBroken(example.substr(0, example.size() - 2));
  EXPECT_EQ(DatFileOpen, kTrue);
  ExpectGoodFileOpens();
}

TEST_F(DataFileFaults, line_ends_of_other_systems_read_the_same) {
  for (const char* end : {"\n", "\r"}) {
    OpenFresh(Joined(LinesOf(every_option), end));
    EXPECT_EQ(Saved(), every_option);
    EXPECT_EQ(host.TakeTexts(), Texts{});
  }
}

TEST_F(DataFileFaults, what_is_no_data_file_is_refused_without_harm) {
  std::string binary;
  for (int i = 0; i < 100000; ++i) binary += static_cast<char>(i * 7919 >> 3);
  const std::string previous =
      "Input File is from a Previous Version|Please Check Data for Completeness and Accuracy";
  ReadBroken("");
  EXPECT_EQ(host.TakeTexts(), Texts{"Error Reading Input Data File|Input past end of file"});
  ReadBroken(binary);
  EXPECT_EQ(host.TakeTexts().front(), previous);
  EXPECT_EQ(DatFileOpen, kFalse);
  ReadBroken(std::string(10'000'000, '7'));
  EXPECT_EQ(host.TakeTexts().front(), previous);
  EXPECT_EQ(DatFileOpen, kFalse);
  for (const char* nothing : {"", "missing.dat", "."}) {
    DatFilePath = nothing;
    DatFileOpen = kTrue;
    ReadDataFile();
    EXPECT_EQ(host.TakeTexts(), Texts{});
    EXPECT_EQ(DatFileOpen, kFalse);
    EXPECT_EQ(LoadingForm, kTrue);
  }
  ExpectGoodFileOpens();
}

TEST_F(DataFileFaults, a_line_of_ten_megabytes_is_read_to_its_end) {
  const std::string wide(10'000'000, ' ');
  OpenFresh(Changed(every_option, "Catch biomass=" + wide + "100.5" + wide + "90.25 80 70.123456"));
  EXPECT_EQ(Saved(), every_option);
}

TEST_F(DataFileFaults, a_file_that_cannot_be_written_is_told) {
  OpenFresh(every_option);
  const struct {
    const char* path;
    const char* reason;
  } rows[] = {
      {"/dev/full", "Disk full"}, {"nowhere/a.dat", "Path not found"}, {".", "Path/File access error"}};
  for (const auto& row : rows) {
    ShowPath(frmInput->lblFile(1), row.path);
    frmMain->mnuModelScan.SetEnabled(true);
    WriteDataFile();
    EXPECT_EQ(host.TakeTexts(), Texts{std::string("Error Saving Input Data File |") + row.reason});
    EXPECT_EQ(FilesSaved, kFalse);
    EXPECT_TRUE(frmMain->mnuModelScan.Enabled());
  }
}

}  // namespace
}  // namespace tarnvik
