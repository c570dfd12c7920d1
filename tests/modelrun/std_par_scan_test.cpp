#include "modelrun/results_test.h"

namespace tarnvik {
namespace {

class StdParScan : public ResultsTest {
 protected:
  static std::string MissingParameter(const char* what) {
    return std::string("Unable to Retrieve ") + what + " from Output Parameter File";
  }
};

constexpr const char* kNoHessianLine = "  Hessian matrix does not appear to be positive definite \r\n";
constexpr const char* kNoHessianMessage =
    "WARNING -- Standard Deviation File Contains No Data -- |Hessian matrix may not be positive definite";

TEST_F(StdParScan, standard_deviations_fill_both_forms) {
  frmPin->ORVFlexGrid1(4).SetTextMatrix(1, 2, "0.77");
  EXPECT_EQ(Scan(), Texts());
  EXPECT_EQ(StdFileRead, kTrue);
  EXPECT_EQ(ParFileRead, kFalse);
  ExpectParameters(
      "0(0,2) Std. Dev.; 0(1,0) 1999; 0(1,1) -1.413741; 0(5,2) 0.2449961; 1(1,0) 2001; "
      "1(2,1) 0.06379154; 1(3,2) 0.2112857; 2(0,1) Sel. Period 1 Value; "
      "2(1,0) Log gamma; 2(1,1) in1; 2(1,2) N/A; 2(2,1) 0.3822052; 2(2,2) 0.4434052; "
      "2(3,1) 0.6655878; 2(4,0) Log Sel. Par. - Age 1; 2(4,1) N/A; 2(5,1) 0.77; "
      "2(5,2) N/A; 3(0,2) Survey 1 Std. Dev.; 3(1,1) 0.194232; 3(1,2) 0.05149525; "
      "3(2,0) Survey exp; 3(2,1) N/A; 3(3,2) N/A; 3(4,1) -3.597238; 3(5,2) 8.009058");
  ExpectCaptions(frmSTD->lblEst, "0 0.2; 1 6.071407; 2 -0.1627367; 3 N/A; 5 643.8653");
  ExpectCaptions(frmSTD->lblStd, "0 N/A; 1 0.2146013; 2 0.3919703; 4 N/A; 5 159.7072");
  ExpectResults(
      "0(5,1) 268.8977; 0(5,3) 109.8273; 0(6,2) 196.8065; 5(1,2) 154.353; 5(2,4) 153.0439; "
      "5(3,6) 283.1964; 6(5,2) 268.8977; 8(2,2) 125.6079; 9(3,2) 0.4952156; "
      "10(1,2) 0.7480153; 11(2,2) 0.6496223; 12(3,2) 0.1428914; 13(3,2) 0.2857828");
  ExpectCaptions(frmOutputData->lblRatioStdDev,
                 "0 0.1912828; 1 0.1363136; "
                 "2 0.2251893; 3 0.1569015; "
                 "4 0.4359197; 5 0.264078");
  EXPECT_TRUE(frmOutput->cmdPlot6.Enabled());
}

TEST_F(StdParScan, case_of_a_name_matters_where_the_model_has_two_like_it) {
  const struct {
    const char* name;
    int label;  // of lblEst, which shows "7" when the name is known
    bool known;
  } rows[] = {
      {"M", 0, true},     {"m", 0, false},        {"mean_log_rec", 1, true}, {"Mean_log_rec", 1, false},
      {"qCPUE", 3, true}, {"log_qCPUE", 3, true}, {"QCPUE_x", 3, true},      {"exp_cpue", 4, true},
      {"meanr", 5, true}, {"meanR", 5, true},     {"meanr2", 5, false}};
  for (const auto& row : rows) {
    std_file = std::string("heading\r\n\r\n 1  ") + row.name + "   7  8\r\n";
    EXPECT_EQ(Scan(), Texts());
    EXPECT_EQ(frmSTD->lblEst(row.label).Caption() == "7", row.known) << row.name;
    EXPECT_EQ(frmSTD->lblStd(row.label).Caption() == "8", row.known) << row.name;
    EXPECT_EQ(frmSTD->lblEst(2).Caption(), "");  // the one that is not "N/A" without a line of its own
    UnloadResults();
  }
}

TEST_F(StdParScan, selectivities_at_age_are_taken_period_by_period) {
  SetDimensions(2001, 3, 3, 1, 2);
  Edit(report, "Selectivity by age for survey",
       "two 2 from to 2002\n 1 2 3\n 4 5 6\nSelectivity by age for survey");
  frmInput->ORVFlexGrid(11).SetTextMatrix(1, 1, "2");
  frmInput->ORVFlexGrid(11).SetTextMatrix(2, 1, "1 age");
  std_file =
      "heading\n1 log_selpar_FISH 11 0.1\n2 log_selpar_FISH 12 0.2\n3 log_selpar_FISH 21 0.3\n"
      "4 log_a50_FISH 31 0.4\n5 log_a50_FISH 32\n6 meanr 7 8";
  EXPECT_EQ(Scan(), Texts());
  ExpectParameters(
      "2(4,1) 11; 2(5,1) 12; 2(5,2) 0.2; 2(6,1) N/A; 2(4,3) 21; 2(4,4) 0.3; 2(5,3) N/A; "
      "2(3,2) 0.4; 2(3,3) 32; 2(3,4) ; 2(0,4) Sel. Period 2 Std. Dev.");
  EXPECT_EQ(frmSTD->lblEst(5).Caption(), "7");
}

TEST_F(StdParScan, file_without_data_falls_back_on_the_parameters) {
  std_file = kNoHessianLine;
  EXPECT_EQ(Scan(), Texts{kNoHessianMessage});
  EXPECT_EQ(StdFileRead, kFalse);
  EXPECT_EQ(ParFileRead, kTrue);
  ExpectParameters(
      "0(1,1) -1.413741; 0(5,1) 0.4483851; 0(5,2) N/A; 1(3,1) 0.1028588; 1(1,2) N/A; "
      "2(1,1) -2; 2(2,1) 0.3822052; 2(3,1) 0.6655878; 2(3,2) N/A; 2(6,1) 0; 2(6,2) N/A; "
      "3(1,1) 0.194232; 3(2,1) 1; 3(3,1) -2; 3(4,1) -3.597238; 3(5,1) -0.4055663; "
      "3(5,2) N/A");
  ExpectCaptions(frmSTD->lblEst, "0 0.2; 1 6.071407; 2 -0.1627367; 3 1; 4 1");
  ExpectCaptions(frmSTD->lblStd, "0 N/A; 2 N/A; 5 N/A");
  ExpectResults(
      "0(5,1) ; 0(6,0) Proj Year Std. Dev.; 0(6,1) N/A; 0(6,3) N/A; 5(1,2) N/A; "
      "5(3,4) N/A; 5(3,6) N/A; 5(3,5) 762.9955; 6(5,2) N/A; 6(5,3) 0.8086107; 8(2,2) N/A; "
      "9(3,2) N/A");
  ExpectCaptions(frmOutputData->lblRatioStdDev, "0 N/A; 3 N/A; 4 N/A; 5 N/A");
  for (const int band : {0, 3, 4, 5, 6, 7, 8}) {
    EXPECT_FALSE(frmOutput->txtSTDplus(band).Enabled());
    EXPECT_EQ(frmOutput->txtSTDminus(band).BackColor(), kButtonFace);
  }
  EXPECT_FALSE(frmOutput->cmdPlot6.Enabled());
  EXPECT_FALSE(frmOutput->cmdPlot26.Enabled());
  EXPECT_TRUE(frmOutput->cmdPlot1.Enabled());
  EXPECT_FALSE(frmSTD->cmdPlot19.Enabled());
  EXPECT_FALSE(frmSTD->cmdPlot20.Enabled());
}

TEST_F(StdParScan, after_a_missing_key_all_later_parameters_are_missing) {
  std_file = kNoHessianLine;
  const std::string whole = par_file;
  const Texts all = {kNoHessianMessage,
                     MissingParameter("M"),
                     MissingParameter("Mean Log Recruitment"),
                     MissingParameter("Recruitment Deviations"),
                     MissingParameter("Log of Average F"),
                     MissingParameter("Fishing Mortality Deviations"),
                     MissingParameter("CPUE q"),
                     MissingParameter("CPUE Exponent"),
                     MissingParameter("the Fishery Selectivity Log Gamma"),
                     MissingParameter("Fishery Selectivity Log Beta"),
                     MissingParameter("Fishery Selectivity Log a50"),
                     MissingParameter("Log of Fishery Selectivity Parameters"),
                     MissingParameter("Survey q"),
                     MissingParameter("Survey Exponent"),
                     MissingParameter("Survey Log Gamma"),
                     MissingParameter("Survey Log Beta"),
                     MissingParameter("Survey Log a50")};
  const char* keys[] = {"# M:",
                        "# mean_log_rec:",
                        "# rec_dev:",
                        "# log_avg_fmort:",
                        "# fmort_dev:",
                        "# qCPUE:",
                        "# exp_CPUE:",
                        "# log_gamma_FISH:",
                        "# log_beta_FISH:",
                        "# log_a50_FISH:",
                        "# log_selpar_FISH:",
                        "# qSURVEY:",
                        "# exp_SURVEY:",
                        "# log_gamma_SURVEY:",
                        "# log_beta_SURVEY:",
                        "# log_a50_SURVEY:"};
  for (std::size_t i = 0; i < std::size(keys); ++i) {
    SCOPED_TRACE(keys[i]);
    par_file = whole;
    Edit(par_file, keys[i], "# other:");
    Texts expected = all;
    expected.erase(expected.begin() + 1, expected.begin() + 1 + static_cast<std::ptrdiff_t>(i));
    EXPECT_EQ(Scan(), expected);
    EXPECT_EQ(ParFileRead, kTrue);
    // From which missing key on a cell has no value.
    const auto expected_cell = [i](const char* cell, std::size_t key, const char* value) {
      return std::string(cell) + (i <= key ? " N/A" : value);
    };
    ExpectParameters(expected_cell("0(2,1)", 2, " 0.2443504") + "; " +
                     expected_cell("2(2,1)", 8, " 0.3822052") + "; " + expected_cell("2(6,1)", 10, " 0") +
                     "; 3(5,1) N/A");
    ExpectCaptions(frmSTD->lblEst,
                   expected_cell("0", 0, " 0.2") + "; " + expected_cell("2", 3, " -0.1627367"));
    UnloadResults();
  }
}

TEST_F(StdParScan, faulty_files_end_in_their_traps) {
  const std::string std_error = "Error Scanning in Standard Deviations File|" + StdPath + "|";
  const std::string par_error = "Error Scanning in Output Parameters|" + ParPath + "|";
  const std::string past_end = "Input past end of file";
  const std::string good_par = par_file;
  const struct {
    std::string std_bytes, par_bytes;
    Texts messages;
    bool parameters_read;
  } rows[] = {
      {"", good_par, {std_error + past_end}, true},
      {"heading\n1 rec_dev 1 2\n", good_par, {std_error + past_end}, true},
      {kNoHessianLine, "# M:", {kNoHessianMessage, par_error + past_end}, false},
      {kNoHessianLine,
       good_par.substr(0, good_par.find("# log_sel_annual")) + "# log_selpar_fish",
       {kNoHessianMessage},
       true},
  };
  for (const auto& row : rows) {
    std_file = row.std_bytes;
    par_file = row.par_bytes;
    EXPECT_EQ(Scan(), row.messages);
    EXPECT_EQ(StdFileRead, kFalse);
    EXPECT_EQ(ParFileRead, Flag(row.parameters_read));
    EXPECT_EQ(frmSTD.Loaded(), row.parameters_read);
    EXPECT_EQ(OutputFormsOpen, kTrue);
    ExpectResults("0(1,1) 707.2888; 0(6,1) N/A");
    UnloadResults();
  }
  // The parameter file is looked for beside the control file that the form shows.
  std_file = kNoHessianLine;
  frmInput->lblCTL.SetCaption(InFolder("elsewhere.ctl"));
  EXPECT_EQ(Scan(), (Texts{kNoHessianMessage, "Output Parameter File Missing"}));
  EXPECT_FALSE(frmSTD.Loaded());
  EXPECT_EQ(FrontForm(), &frmOutputData);
  EXPECT_EQ(ParFileRead, kFalse);
}

}  // namespace
}  // namespace tarnvik
