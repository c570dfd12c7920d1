#include "modelrun/results_test.h"

namespace tarnvik {
namespace {

class ReportScan : public ResultsTest {
 protected:
  std::string FailedWith(const char* error) const {
    return "Error Scanning in Report File|" + ReportPath + "|" + error;
  }
};

constexpr const char* kScanError = "Application-defined or object-defined error";

TEST_F(ReportScan, small_report_fills_the_tables) {
  EXPECT_EQ(Scan(), Texts());
  ExpectResults(
      "0(0,3) Age 3; 0(1,0) 2001; 0(2,3) 353.7701; 0(4,0) 2004; 0(4,1) 433.2898; "
      "0(5,0) Last Year Std. Dev.; 0(6,0) Proj Year Std. Dev.; 1(3,2) 0.5941281; "
      "1(3,0) 2003; 2(0,6) Std. Log-Scale Resid.; 2(1,0) Survey 1; 2(1,1) 2001; "
      "2(1,2) 155; 2(2,3) 160.9986; 2(2,4) -10.99864; 2(3,5) 0.1668731; 2(3,6) 1.408805; "
      "3(1,0) Observed; 3(1,2) 0.25; 3(4,0) Predicted; 3(6,4) 0.415167; 3(7,0) Residuals; "
      "3(8,3) 0.001298463; 3(12,0) Std. Resid.; 3(12,1) 2003; 3(12,4) 0.09808276; "
      "4(1,0) Survey 1; 4(1,1) Observed; 4(1,2) 2001; 4(1,3) 0.5; 4(5,4) 0.3275752; "
      "4(9,5) -0.02263378; 4(10,1) Std. Resid.; 4(12,5) -0.3847102; 5(1,1) 1069.01; "
      "5(2,3) 621.141; 5(3,5) 762.9955; 6(1,0) 1999; 6(5,0) 2003; 6(2,1) 553.2208; "
      "6(5,3) 0.8086107; 7(2,1) 510; 7(3,2) 455.9514; 7(1,3) -7.626776; 7(2,4) 0.09178602; "
      "8(2,0) 2002; 8(2,1) 402.9135; 9(3,1) 0.9418796; 9(1,3) -0.3527882; "
      "10(1,1) 2.397882; 11(2,1) 1.811585; 12(3,1) 0.3559085; 13(1,1) 0.8426922; "
      "14(0,1) Period 1: 2001-2003; 14(2,0) Age 2; 14(2,1) 0.6307899; 15(0,1) Survey 1; "
      "15(1,1) 0.9734597; 15(3,1) 1; 16(2,0) 2002; 16(2,1) 100; 16(3,2) 8625.446; "
      "17(0,1) Survey 1 Input; 17(0,2) Survey 1 Estimated; 17(1,1) 50; 17(2,2) 666.4509; "
      "18(0,2) Predicted; 18(1,1) N/A; 18(3,5) N/A; 19(3,2) 0.6307899; 19(3,0) 2003; "
      "20(3,1) 1.5; 21(3,1) 3.214821; 22(1,1) 0.1890555; 22(3,1) 0.159694; "
      "23(1,1) 39.33313; 24(2,3) 530.6552; 25(3,2) 132.9152; 26(3,3) 512.8584");
  ExpectParameters("4(0,1) M-mult; 4(1,1) 1.5; 5(1,0) Age 1; 5(1,1) 0.3; 5(3,1) 0.2");
  ExpectCaptions(frmOutputData->lblRatio,
                 "0 0.8830537; 1 0.9021069; 2 0.8446939; "
                 "3 0.8594872; 4 1.309322; 5 1.03984; "
                 "6 N/A; 7 0.3; 8 0.5; 9 =1500; 10 =750; "
                 "11 643.8653");
  ExpectCaptions(frmOutputData->lblUnfished, "0 643.8653; 1 5.192135; 2 3343.035");
  ExpectCaptions(frmOutputData->lblSumm,
                 "1 4.151266; 2 0.05398582; 3 0; "
                 "4 0.02441318; 5 0.09505457; 6 N/A; "
                 "10 4.878011; 22 0.714549; 23 0.01272581; "
                 "24 0.118914; 25 N/A");
  const OutputDataForm& form = *frmOutputData;
  EXPECT_EQ(form.MSFlexGrid1.TextMatrix(1, 1), "0.2925124");
  EXPECT_EQ(form.MSFlexGrid2.TextMatrix(1, 1), "0.2104566");
  EXPECT_EQ(form.MSFlexGrid3.TextMatrix(1, 1), "0.1184502");
  EXPECT_EQ(form.MSFlexGrid4.TextMatrix(3, 0), "2003");
  EXPECT_EQ(form.MSFlexGrid4.TextMatrix(3, 1), "0.005035777");
  EXPECT_EQ(form.MSFlexGrid5.TextMatrix(0, 1), "Survey 1 RMS Error");
  EXPECT_EQ(form.MSFlexGrid5.TextMatrix(2, 1), "0.01803288");
  EXPECT_EQ(form.SSTab1.TabCaption(3), " Survey Biomass Index ");
  EXPECT_EQ(form.Label8(12).Caption(), "Survey Biomass Index");
  EXPECT_FALSE(frmOutput->SSTab1.TabEnabled(2));
  EXPECT_EQ(FishAgeYears(3), 2003);
  EXPECT_EQ(SurveyIndexYears(1, 0, 2), 2002);
  EXPECT_EQ(OutputFormsOpen, kTrue);
  EXPECT_EQ(FrontForm(), &frmOutputData);
}

TEST_F(ReportScan, tables_have_the_sizes_of_the_case) {
  Scan();
  const struct {
    int table, rows, cols;
  } sizes[] = {{0, 7, 4},  {1, 4, 4},  {2, 4, 7},  {3, 13, 5}, {4, 13, 6}, {5, 4, 7},  {6, 6, 4},  {7, 4, 5},
               {8, 3, 3},  {9, 4, 4},  {10, 4, 3}, {13, 4, 3}, {14, 4, 2}, {15, 4, 2}, {16, 4, 3}, {17, 4, 3},
               {18, 4, 6}, {19, 4, 4}, {20, 4, 2}, {22, 4, 2}, {23, 4, 4}, {26, 4, 4}};
  for (const auto& size : sizes) {
    EXPECT_EQ(frmOutputData->MSFlexGrid(size.table).Rows(), size.rows) << size.table;
    EXPECT_EQ(frmOutputData->MSFlexGrid(size.table).Cols(), size.cols) << size.table;
  }
}

TEST_F(ReportScan, every_missing_section_is_named) {
  // The report cut before a line, and what the first box then says.
  const std::pair<const char*, const char*> rows[] = {
      {"Estimated numbers of fish at age", "Estimated Numbers of Fish at Age"},
      {"Estimated fishing mortality by", "Estimated Fishing Mortality"},
      {"Age classes in", "Observed Biomass Index for Survey 1"},
      {"Observed Biomass index", "Observed Biomass Index for Survey 1"},
      {"Predicted Biomass index", "Predicted Biomass Index for Survey 1"},
      {"\nBiomass index residuals", "Biomass Index Residuals for Survey 1"},
      {"Log-scale Biomass index", "Standardized Log-Scale Biomass Index Residuals for Survey 1"},
      {"Standardized log-scale Biomass", "Standardized Log-Scale Biomass Index Residuals for Survey 1"},
      {"Fishery age composition input", "Fishery Age Composition Input Sample Size"},
      {"Fishery age composition estimated", "Fishery Age Composition Estimated Effective Sample Size"},
      {"Observed fishery proportion", "Observed Fishery Proportion at Age"},
      {"Predicted fishery proportion", "Predicted Fishery Proportion at Age"},
      {"\nFishery proportion residuals", "Fishery Proportion Residuals at Age"},
      {"Standardized fishery proportion", "Standardized Fishery Proportion Residuals at Age"},
      {"Survey age composition input", "Age Composition Input Sample Size for Survey 1"},
      {"Survey age composition estimated", "Age Composition Estimated Effective Sample Size for Survey 1"},
      {"Observed proportion at age", "Observed Survey Proportion at Age for Survey 1"},
      {"Predicted proportion at age", "Predicted Survey Proportion at Age for Survey 1"},
      {"\nProportion residuals at age", "Proportion Residuals at Age for Survey 1"},
      {"Standardized proportion residuals", "Standardized Proportion Residuals at Age for Survey 1"},
      {"Population biomass (mt) by", "Population Biomass"},
      {"Depletion ratio in 2003 for pop", "Population Biomass in the Last Year"},
      {"Ratio in 2003 relative to 2002 pop",
       "Population Biomass in the Last Year Relative to the Reference Year"},
      {"Spawning biomass (mt) by", "Spawning Biomass"},
      {"Depletion ratio in 2003 for spaw", "Spawning Biomass in the Last Year"},
      {"Ratio in 2003 relative to 2002 spaw",
       "Spawning Biomass in the Last Year Relative to the Reference Year"},
      {"Exploitable biomass (mt) by", "Exploitable Biomass"},
      {"Population numbers at age", "Population Numbers at Age at the Start of the Terminal Year Plus One"},
      {"Mean recruitment", "Mean Recruitment"},
      {"Recruitment (thousands of age-1", "Recruitment by Year"},
      {"Standardized log-scale residuals for rec", "Standardized Log-Scale Residuals for Recruitment"},
      {"Observed catch biomass", "Observed Catch Biomass"},
      {"Predicted catch biomass", "Predicted Catch Biomass"},
      {"\nResiduals for catch", "Residuals for Catch Biomass"},
      {"Standardized log-scale residuals for catch", "Standardized Log-Scale Residuals for Catch Biomass"},
      {"Annual surplus production", "Annual Surplus Production"},
      {"Annual fishing mortality (fully", "Estimated Average Annual Fishing Mortality by Year"},
      {"Standardized log-scale residuals for fish", "Standardized Log-Scale Residuals for Fishing Mortality"},
      {"Ratio of F in 2003 to F in 2001", "Ratio of F in the Last Year to F in the First Year"},
      {"Ratio of F in 2003 to F in 2002", "Ratio of F in the Last Year to F in the Reference Year"},
      {"Fishery selectivity by age", "Fishery Selectivity by Age"},
      {"Selectivity by age for survey", "Survey Selectivity by Age"},
      {"Objective function", "Objective Function Value"},
      {"Likelihood components", "Likelihood Components"},
      {"Root mean square", "Root Mean Square Errors"},
      {"Fishery Years:", "Root Mean Square Errors"},
      {"Survey 1 Years:", "Root Mean Square Errors"},
      {"Fishery selectivity 2001", "Fishery Selectivity at Age by Year"},
      {"unfished mean spawning", "Unfished Mean Spawning Weight at Age"},
      {"unfished expected", "Unfished Expected Spawning Weight at Age"},
      {"unfished spawning biomass per", "Unfished Spawning Biomass Per Recruit"},
      {"unfished spawning biomass (mt)", "Unfished Spawning Biomass"},
      {"fraction of unfished spawning biomass = 2001", "Fraction of Unfished Spawning Biomass by Year"},
      {"catch biomass at age (mt) = 2001", "Catch Biomass at Age by Year"},
      {"population biomass at age (mt) = 2001", "Population Biomass at Age by Year"},
      {"spawning biomass at age (mt) = 2001", "Spawning Biomass at Age by Year"},
      {"exploitable biomass at age (mt) = 2001", "Exploitable Biomass at Age by Year"},
  };
  const std::string whole = report;
  for (const auto& [line, what] : rows) {
    SCOPED_TRACE(line);
    ASSERT_NE(whole.find(line), std::string::npos);
    report = whole.substr(0, whole.find(line));
    const std::string message = std::string("Unable to Retrieve ") + what + " from Report File";
    EXPECT_EQ(Scan(), (Texts{message, FailedWith(kScanError)}));
    ExpectNoResults();
  }
}

TEST_F(ReportScan, report_cut_anywhere_ends_in_the_trap) {
  const std::string whole = report;
  const std::size_t end = whole.find("exploitable biomass at age (mt) = 2003");
  for (std::size_t line = 0; line < end; line = whole.find('\n', line) + 1) {
    for (const std::size_t cut : {line, line + 3}) {
      SCOPED_TRACE(cut);
      report = whole.substr(0, cut);
      const Texts texts = Scan();
      if (cut > 0 && cut < 60) {  // the version line itself is cut
        EXPECT_EQ(texts, Texts{"Output Files Not Current.|Please Run Model Before Proceeding."});
      } else {
        ASSERT_FALSE(texts.empty());
        EXPECT_EQ(texts.back().find("Error Scanning in Report File|"), 0u) << texts.back();
      }
      ExpectNoResults();
    }
  }
}

TEST_F(ReportScan, any_line_end_and_any_case_of_a_key_is_read) {
  const std::string whole = report;
  for (const char* line_end : {"\r", "\r\n"}) {
    report.clear();
    for (const char c : whole) c == '\n' ? report.append(line_end) : report.append(1, c);
    Edit(report, "Version 1.4", "vERSION 1.4");
    Edit(report, "period 1 from 2001",
         "PERIOD 1 from 1950");  // an only period is headed by the years of the case
    Edit(report, "exploitable biomass at age (mt) = 2001", "EXPLOITABLE Biomass At Age (mt) = 2001");
    EXPECT_EQ(Scan(), Texts());
    ExpectResults("0(1,3) 352.6363; 14(0,1) Period 1: 2001-2003; 26(3,3) 512.8584");
    UnloadResults();
  }
}

TEST_F(ReportScan, files_that_are_no_report_leave_no_results) {
  const std::pair<std::string, std::string> rows[] = {
      {"", FailedWith("Input past end of file")},
      {"Version 1.3\n", "Output Files Not Current.|Please Run Model Before Proceeding."},
      {std::string("\0\xff\x80\r\r\r", 6), "Output Files Not Current.|Please Run Model Before Proceeding."},
      {"version 1.4\nfish at age\n", FailedWith("Input past end of file")},
      {"version 1.4\nfish at age\n" + std::string(1'000'000, 'x'), FailedWith("Input past end of file")},
  };
  for (const auto& [bytes, message] : rows) {
    report = bytes;
    EXPECT_EQ(Scan(), Texts{message});
    ExpectNoResults();
  }
}

TEST_F(ReportScan, missing_files_are_told_before_anything_is_read) {
  Scan();
  UnloadResults();
  const std::pair<std::string*, const char*> rows[] = {{&ParPath, "Output Parameter File Missing"},
                                                       {&StdPath, "Standard Deviation File Missing"},
                                                       {&ReportPath, "Report File Missing"}};
  for (const auto& [path, message] : rows) {  // each goes before those that went missing earlier
    *path = path == &StdPath ? "" : InFolder("missing");
    ScanReportFile();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].icon, Icon::Exclamation);
    EXPECT_EQ(host.TakeTexts(), Texts{message});
    ExpectNoResults();
  }
}

TEST_F(ReportScan, cpue_series_fills_its_table_and_names_its_page) {
  const std::string whole = report;
  for (const std::string word : {"Biomass", "Numbers"}) {
    const std::string name = "CPUE " + word + " Index";
    report = whole;
    Edit(report, "Age classes in survey",
         "Age classes in CPUE " + word + " Index: 1 1 1\nObserved CPUE " + word +
             " by year\nyears, then values\n" +
             " 2001 2003\n 11 13\nPredicted CPUE by year\n 21 22 23\nCPUE residuals\n 31 33\nCPUE log "
             "residuals\n" +
             " 41 43\nCPUE standardized log residuals\n 51\nAge classes in survey");
    Edit(report, "\nSurvey Biomass index 1: ", "\nCPUE " + word + " index: 6.5\nSurvey Biomass index 1: ");
    Edit(report, "\nSurvey index 1: ", "\nCPUE " + word + " index: 0.65\nSurvey index 1: ");
    EXPECT_EQ(Scan(), Texts());
    ExpectResults(
        "18(1,1) 11; 18(2,1) N/A; 18(3,1) 13; 18(2,2) 22; 18(1,3) 31; 18(3,4) 43; "
        "18(1,5) 51; 18(2,5) N/A; 18(3,5) ; 2(1,2) 155");
    ExpectCaptions(frmOutputData->lblSumm, "6 6.5; 5 0.09505457; 25 0.65; 24 0.118914");
    EXPECT_EQ(frmOutputData->MSFlexGrid2.TextMatrix(1, 1), "0.2104566");
    EXPECT_EQ(frmOutputData->MSFlexGrid3.TextMatrix(1, 1), "0.1184502");
    EXPECT_EQ(frmOutputData->SSTab1.TabCaption(2), name);
    EXPECT_EQ(frmOutputData->FrameCPUE.Caption(), name);
    EXPECT_EQ(frmOutputData->LabelCPUE1.Caption(), name);
    EXPECT_EQ(frmOutputData->LabelCPUE2.Caption(), name);
    EXPECT_EQ(frmOutput->SSTab1.TabCaption(2), name);
    EXPECT_TRUE(frmOutput->SSTab1.TabEnabled(2));
    EXPECT_EQ(frmOutput->Option27(0).Caption(), name + " -- Observed and Predicted");
    EXPECT_TRUE(frmOutput->Option27(0).Value());
    UnloadResults();
    Edit(report, " 2001 2003\n 11 13", " 2000 2003\n 11 13");
    EXPECT_EQ(Scan(), Texts{FailedWith("Subscript out of range")});
  }
}

TEST_F(ReportScan, second_survey_with_fewer_years_has_its_own_rows) {
  SetDimensions(2001, 3, 3, 2, 1);
  SurvNYears(2) = 2;
  Edit(report, "Fishery age composition input",
       "Age classes in survey Numbers index, survey 2: 1 1 1\nObserved Numbers index (year) for survey: 2\n"
       " 2002 2003\n 22 23\nPredicted Numbers index (year) for survey: 2\n 31 32 33\n"
       "Numbers index residuals (year) for survey: 2\n N/A 43\n"
       "Log-scale Numbers index residuals (year) for survey: 2\n 52 53\n"
       "Standardized log-scale Numbers index residuals (year) for survey: 2\n 62 63\nFishery age composition "
       "input");
  const std::string t = " at age (year,age) for survey: 2\n";
  Edit(report, "Population biomass (mt) by",
       "Survey age composition input sample size for survey: 2\n 2002 2003\n 72 73\n"
       "Survey age composition estimated effective sample size for survey: 2\n 82 83\n"
       "Observed proportion" +
           t + " a b c\n d e f\nPredicted proportion" + t + " g h i\n j k l\n m n o\n" +
           "Proportion residuals" + t + " p q r\n s t u\nStandardized proportion residuals" + t +
           " v w x\n y z\n" + "Population biomass (mt) by");
  Edit(report, "Objective function",
       "Selectivity by age for survey: 2\n 1 2 3\n 0.7 0.8 0.9\nObjective function");
  Edit(report, "Fishery selectivity: 0", "Survey age composition 2: 1.5\nFishery selectivity: 0");
  Edit(report, "Fishing mortality deviations penalty",
       "Survey Numbers index 2: 2.5\nFishing mortality deviations penalty");
  Edit(report, "Fishing mortality deviations: 0.1", "Survey index 2: 3.5\nFishing mortality deviations: 0.1");
  Edit(report, "Fishery selectivity 2001",
       "Survey 2 Years: 2002 2003\nSurvey 2 RMSE: 4.5 5.5\nFishery selectivity 2001");
  EXPECT_EQ(Scan(), Texts());
  ExpectResults(
      "2(3,6) 1.408805; 2(4,0) Survey 2; 2(4,1) 2001; 2(4,2) N/A; 2(5,2) 22; 2(4,3) 31; "
      "2(6,3) 33; 2(5,4) N/A; 2(6,4) 43; 2(6,5) 53; 2(6,6) 63; 17(1,3) N/A; 17(2,3) 72; "
      "17(3,4) 83; 17(3,2) 757.1334; 4(13,0) Survey 2; 4(13,3) N/A; 4(14,3) a; 4(15,5) f; "
      "4(16,3) g; 4(18,5) o; 4(19,3) N/A; 4(20,4) q; 4(24,4) z; 4(24,5) ; "
      "15(1,1) 0.9734597; 15(3,2) 0.9");
  EXPECT_EQ(frmOutputData->MSFlexGrid1.TextMatrix(2, 1), "1.5");
  EXPECT_EQ(frmOutputData->MSFlexGrid2.TextMatrix(2, 1), "2.5");
  EXPECT_EQ(frmOutputData->MSFlexGrid3.TextMatrix(2, 1), "3.5");
  EXPECT_EQ(frmOutputData->MSFlexGrid5.TextMatrix(1, 2), "N/A");
  EXPECT_EQ(frmOutputData->MSFlexGrid5.TextMatrix(3, 2), "5.5");
  ExpectCaptions(frmOutputData->lblSumm, "3 0; 5 0.09505457; 24 0.118914");
  EXPECT_EQ(frmOutputData->SSTab1.TabCaption(3), " Survey Numbers Index ");
  EXPECT_EQ(frmOutputData->Frame3.Caption(), "Survey Numbers Index");
  EXPECT_EQ(frmOutputData->Label8(3).Caption(), "Survey Numbers Index");

  frmOutputData->cmbJumpSurvey.UserSelect(1);
  frmOutputData->Combo1.UserSelect(3);
  frmOutputData->Combo2.UserSelect(5);
  EXPECT_EQ(frmOutputData->MSFlexGrid(2).TopRow, 4);
  EXPECT_EQ(frmOutputData->MSFlexGrid(3).TopRow, 10);
  EXPECT_EQ(frmOutputData->MSFlexGrid(4).TopRow, 16);
  EXPECT_EQ(frmOutputData->Combo2.ListCount(), 8);
  EXPECT_EQ(frmOutputData->Combo2.Text(), "Survey 2 - Predicted");
  frmOutputData->Combo2.UserSelect(0);
  EXPECT_EQ(frmOutputData->MSFlexGrid(4).TopRow, 1);
}

TEST_F(ReportScan, fishery_ages_of_fewer_years_go_to_the_rows_of_their_years) {
  FishAgeNYears = 2;
  Edit(report, " 2001 2002 2003\n 100 100 100", " 2001 2003\n 101 103");
  for (const char* row_of_2002 : {" 0.2 0.38 0.42\n", " -0.002279716 0.001298463 0.0009812521\n",
                                  " -0.05675174 0.02676893 0.01988762\n"}) {
    Edit(report, row_of_2002, "");
  }
  Edit(report, "Fishery Years: 2001 2002 2003", "Fishery Years: 2001 2003");
  EXPECT_EQ(Scan(), Texts());
  ExpectResults(
      "16(2,0) 2003; 16(2,1) 103; 16(2,2) 81582.22; 3(1,2) 0.25; 3(2,2) N/A; 3(3,2) 0.28; 3(5,2) 0.2022797; "
      "3(8,4) N/A; 3(9,4) 0.004833036; 3(11,2) N/A; 3(12,2) 0.04717797");
  EXPECT_EQ(frmOutputData->MSFlexGrid(16).Rows(), 3);
  EXPECT_EQ(frmOutputData->MSFlexGrid4.Rows(), 3);
  EXPECT_EQ(frmOutputData->MSFlexGrid4.TextMatrix(2, 0), "2003");
  EXPECT_EQ(frmOutputData->MSFlexGrid4.TextMatrix(2, 1), "0.001617196");
}

TEST_F(ReportScan, periods_but_the_last_are_headed_from_the_first_year) {
  SetDimensions(2001, 3, 3, 1, 3);
  Edit(report, "Selectivity by age for survey",
       "Selectivity period 2 from 2002 to 2002\n 1 2 3\n 0.4 0.5 0.6\n"
       "Selectivity period 3 from 2003 to 2003\n 1 2 3\n 0.7 0.8 0.9\nSelectivity by age for survey");
  EXPECT_EQ(Scan(), Texts());
  ExpectResults(
      "14(0,1) Period 1: 2001-2001; 14(0,2) Period 2: 2001-2002; "
      "14(0,3) Period 3: 2003-2003; 14(1,1) 0.2427429; 14(3,2) 0.6; 14(1,3) 0.7");
}

TEST_F(ReportScan, reference_points_may_be_absent_each) {
  const std::string target_f =
      "Ratio of annual fishing mortality to target F= 0.3\n 2.397882 3.019308 3.139599\n";
  const std::string limit_f =
      "Ratio of annual fishing mortality to limit F= 0.5\n 1.438729 1.811585 1.883759\n";
  const struct {
    std::string from, to;
    const char* shown;  // lblRatio(6) to (10), then the first year in MSFlexGrid(10) to (13)
  } rows[] = {
      {target_f, "Initial equilibrium fishing mortality\n 0.21 x\n" + target_f,
       "0.21|0.3|0.5|=1500|=750|2.397882|1.438729|0.4213461|0.8426922|"},
      {target_f, "", "N/A||0.5|=1500|=750|N/A|1.438729|0.4213461|0.8426922|"},
      {limit_f, "", "N/A|0.3||=1500|=750|2.397882|N/A|0.4213461|0.8426922|"},
      {"SB=1500", "SB= 1500", "N/A|0.3|0.5|=|=750|2.397882|1.438729|0.4213461|0.8426922|"},
      {"F= 0.5", "F 0.5", "N/A|0.3||=1500|=750|2.397882|1.438729|0.4213461|0.8426922|"},
      // A line between them ends the row of reference points.
      {limit_f, limit_f + "something else\n", "N/A|0.3|0.5|||2.397882|1.438729|N/A|N/A|"},
  };
  const std::string whole = report;
  for (const auto& row : rows) {
    report = whole;
    Edit(report, row.from, row.to);
    EXPECT_EQ(Scan(), Texts());
    std::string shown;
    for (const int label : {6, 7, 8, 9, 10}) shown += frmOutputData->lblRatio(label).Caption() + "|";
    for (const int table : {10, 11, 12, 13}) shown += frmOutputData->MSFlexGrid(table).TextMatrix(1, 1) + "|";
    EXPECT_EQ(shown, row.shown) << row.to;
    UnloadResults();
  }
}

TEST_F(ReportScan, natural_mortality_lines_may_be_absent_each) {
  const struct {
    const char *from, *to;
    const char* shown;  // M, its multiplier and M of age 1, unfished recruitment
  } rows[] = {
      {"M SCALAR = 0.2\n", "m scalar =  0.2 x  \n", "0.2 x|1.5|0.3|643.8653"},
      {"M SCALAR = 0.2\n", "", "N/A|1.5|0.3|643.8653"},
      {"M MULT = 1.5 1 1\n", "", "0.2|N/A|0.3|643.8653"},
      {"M AT AGE = 0.3 0.2 0.2\n", "", "0.2|1.5|N/A|643.8653"},
      {"UNFISHED MEAN REC = 643.8653", "none", "0.2|1.5|0.3|"},
  };
  const std::string whole = report;
  for (const auto& row : rows) {
    report = whole;
    Edit(report, row.from, row.to);
    EXPECT_EQ(Scan(), Texts());
    EXPECT_EQ(frmSTD->lblEst(0).Caption() + "|" + frmSTD->MSFlexGrid(4).TextMatrix(1, 1) + "|" +
                  frmSTD->MSFlexGrid(5).TextMatrix(1, 1) + "|" + frmOutputData->lblUnfished(0).Caption(),
              row.shown);
    UnloadResults();
  }
}

TEST_F(ReportScan, section_in_the_wrong_place_is_not_found) {
  const struct {
    const char* from;
    const char* to;
    const char* missing;
  } rows[] = {
      // The standardized block is taken for the plain one.
      {"\nFishery proportion residuals", "\nFishery residuals",
       "Standardized Fishery Proportion Residuals at Age"},
      // The line that the search for reference points loses.
      {"End of ratios\n", "", "Fishery Selectivity by Age"},
      // Both words of a key, the second behind the first.
      {"Observed Biomass index (year) for survey: 1", "Index (year) for survey: 1, observed",
       "Observed Biomass Index for Survey 1"},
      {"Ratio of F in 2003 to F in 2001", "Change of F, 2003 to F in 2001",
       "Ratio of F in the Last Year to F in the First Year"},
      {"relative to 2002 spawning biomass", "relative to 2002",
       "Spawning Biomass in the Last Year Relative to the Reference Year"},
  };
  const std::string whole = report;
  for (const auto& row : rows) {
    report = whole;
    Edit(report, row.from, row.to);
    const Texts texts = Scan();
    ASSERT_FALSE(texts.empty()) << row.from;
    EXPECT_EQ(texts[0], std::string("Unable to Retrieve ") + row.missing + " from Report File");
  }
  // A reference year equal to the first year needs the words a second time.
  report = whole;
  frmInput->cmbRefYr.SetList(0, "2001");
  EXPECT_EQ(Scan()[0],
            "Unable to Retrieve Ratio of F in the Last Year to F in the Reference Year from Report File");
}

TEST_F(ReportScan, years_outside_the_case_are_displaced_or_raise) {
  const std::string whole = report;
  Edit(report, "survey: 1\n 2001 2002 2003\n 155", "survey: 1\n 2000 2001 2002\n 155");
  EXPECT_EQ(Scan(), Texts());
  ExpectResults("2(0,2) 155; 2(1,2) 150; 2(3,2) N/A");
  UnloadResults();
  for (const auto& [year, error] : {std::pair{"1999", "Subscript out of range"},
                                    {"9999", "Subscript out of range"},
                                    {"99999", "Overflow"},
                                    {"", "Subscript out of range"}}) {
    report = whole;
    Edit(report, "survey: 1\n 2001 2002 2003\n 155", std::string("survey: 1\n 2001 2002 ") + year + "\n 155");
    EXPECT_EQ(Scan(), Texts{FailedWith(error)}) << year;
    ExpectNoResults();
  }
}

TEST_F(ReportScan, report_of_other_dimensions_is_read_or_ends_in_the_trap) {
  int read = 0;
  for (const int years : {0, 1, 2, 3, 4, 9}) {
    for (const int ages : {0, 1, 3, 5}) {
      for (const int surveys : {0, 1, 2}) {
        for (const int periods : {0, 1, 2}) {
          SCOPED_TRACE(testing::Message() << years << " years " << ages << " ages " << surveys << " surveys "
                                          << periods << " periods");
          SetDimensions(2001, years, ages, surveys, periods);
          const Texts texts = Scan();
          if (OutputFormsOpen == kTrue) {
            ++read;
            ASSERT_TRUE(frmOutputData.Loaded());
            const std::string& caption = frmOutputData->SSTab1.TabCaption(3);
            EXPECT_EQ(caption, surveys == 0 ? " Survey  Index " : " Survey Biomass Index ");
          } else {
            ASSERT_FALSE(texts.empty());
            EXPECT_EQ(texts.back().find("Error Scanning in Report File|"), 0u);
            ExpectNoResults();
          }
          UnloadResults();
        }
      }
    }
  }
  EXPECT_GT(read, 0);
  for (const auto& [years, ages, error] :
       {std::tuple{30000, 30000, "Out of memory"}, {-5, 3, "Invalid property value"}}) {
    NYears = Int16(years);
    NAges = Int16(ages);
    EXPECT_EQ(Scan(), Texts{FailedWith(error)});
    ExpectNoResults();
  }
}

}  // namespace
}  // namespace tarnvik
