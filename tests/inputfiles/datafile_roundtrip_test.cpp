// What is written comes back, byte for byte, but for what is known to get lost.

#include "inputfiles/datafile_text.h"

namespace tarnvik {
namespace {

// Every setting of the small case the other way round: what is off has its placeholder.
std::string EveryOptionOff(const std::string& bytes) {
  return Changed(bytes,
                 "Ages in CPUE=1 0 0 ;Fit FISHERY CPUE=0 0 0 ;Apply 1st=0 0 0 ;use_parametric_sel_SURVEY=0;"
                 "used only if M=0;shrinking recruitment=0;Shrinkage coefficient=1;(nboot)=0;(seed)=123456;"
                 "flag: estimate_M=0;flag: estimate_mean_log_rec=1;flag: estimate_rec_dev=0;"
                 "flag: estimate_log_avg_fmort=1;flag: estimate_fmort_dev=0;flag: estimate_annual_sel_FISH=0;"
                 "flag: fit_fishery_cpue=0;fit_cpue_index_number=0;flag: estimate_cpue_q=0;"
                 "flag: estimate_cpue_exp=0;flag: fit_survey_index (=0 1 ;fit_survey_index_number=1 0 ;"
                 "flag: estimate_survey_q=0;flag: estimate_survey_exp=0;use_flattopped_survey_sel=0;"
                 "effective_sample_size_fish=0;estimate_effective_sample_size_SURVEY=0 0 ;"
                 "initial_equilibrium_F=0;Initial equilibrium catch=0.0;status_determination=0;Target F=0.0;"
                 "Limit F=0.0;Target spawning=0.0;Limit spawning=0.0;phase_M =-1;phase_mean_log_rec=1;"
                 "phase_rec_dev=-1;phase_avg_fmort=2;phase_fmort_dev=-1;phase_cpue_q=-1;phase_cpue_exp=-1;"
                 "phase_sel_period_FISH=4;phase_sel_annual_FISH=-1;phase_effective_sample_size_FISH=-1;"
                 "phase_survey_q=-1;phase_survey_exp=-1;phase_gamma_SURVEY=-1;phase_beta_SURVEY=-1;"
                 "phase_a50_SURVEY=-1;phase_sel_period_SURVEY=5;phase_effective_sample_size_SURVEY=-1");
}

// A selectivity curve with gamma for the fishery, another prior of M.
constexpr const char* kParametricFishery =
    "use_parametric_sel_FISH=1;flag: estimate_annual_sel_FISH=0;phase_gamma_FISH=4;phase_beta_FISH=5;"
    "phase_a50_FISH=6;phase_sel_annual_FISH=-1;flag: estimate_M=3";

using RoundTrip = DataFileTest;

TEST_F(RoundTrip, the_example_is_written_as_it_was_read) {
  CopyExample(folder);
  const std::string example = ReadBytes("cod.dat");
  host.files.push_back("cod.ctl");
  frmInput_cmdBrowseCTL_Click(0);
  EXPECT_EQ(Saved(), example);
  EXPECT_EQ(host.TakeTexts(), Texts{});
}

TEST_F(RoundTrip, every_option_comes_back_on_off_and_on_again) {
  const std::string off = EveryOptionOff(every_option);
  for (const std::string& bytes :
       {every_option, off, Changed(every_option, kParametricFishery), off, every_option}) {
    OpenFresh(bytes);
    EXPECT_EQ(Saved(), bytes);
    EXPECT_EQ(host.TakeTexts(), Texts{});
  }
}

TEST_F(RoundTrip, into_a_form_in_use_only_the_smoothers_stay) {
  const std::string off = EveryOptionOff(every_option);
  Open(every_option);
  Open(off);
  EXPECT_EQ(Saved(), Changed(off, "Apply 1st=1 1 0 "));
  Open(every_option);
  EXPECT_EQ(Saved(), every_option);
}

TEST_F(RoundTrip, selecting_the_other_survey_changes_no_data) {
  OpenFresh(every_option);
  EXPECT_EQ(frmInput->lblSurvTitle.Caption(), "Spring trawl");
  EXPECT_EQ(frmInput->ORVFlexGrid(15).TextMatrix(3, 5), "0.133");
  frmInput->cmbiSurv.UserSelect(1);
  EXPECT_EQ(frmInput->ORVFlexGrid(16).TextMatrix(1, 0), "2002");
  EXPECT_EQ(frmInput->ORVFlexGrid(15).TextMatrix(3, 5), "0.233");
  EXPECT_EQ(Saved(), every_option);
}

TEST_F(RoundTrip, labels_show_the_titles_and_periods_just_read) {
  OpenFresh(every_option);
  const InputForm& f = *frmInput;
  EXPECT_EQ(f.ORVFlexGrid(11).TextMatrix(2, 0), "Select. Period 2: 2003 - 2004");
  EXPECT_EQ(f.ORVFlexGrid(9).TextMatrix(1, 0), "Survey 1: Spring trawl");
  EXPECT_EQ(f.listSurvSample.List(1), "Survey 2: Autumn");
  EXPECT_EQ(f.ORVFlexGrid(8).TextMatrix(1, 2), "2002");
  EXPECT_EQ(f.txtFishSelAge.Text(), "2");
  // Rows that a survey holds show their own year, the others the first year and the survey's number.
  EXPECT_EQ(SurvAgeFit(2, 0, 1), "2002");
  EXPECT_EQ(SurvAgeFit(2, 0, 4), "2004");
  EXPECT_EQ(SurvYearFit(1, 0, 4), "2001");
}

TEST_F(RoundTrip, losses_are_those_that_are_known) {
  const struct {
    const char *what, *written, *read_back;
  } rows[] = {
      {"the third smoother checks the second box", "Apply 1st=0 0 1 ", "Apply 1st=0 1 0 "},
      {"flags other than 1 are no", "Ages in Autumn=2 0.9 1 ;Fit FISHERY age=2 1 -1 ",
       "Ages in Autumn=0 0 1 ;Fit FISHERY age=0 1 0 "},
      {"of a survey's years the first alone is read", "Years of Autumn=2002  1 ",
       "Years of Autumn=2002  2003  2004  "},
      {"catch takes one to six decimals", "Catch biomass=1e2 7 0.12345678 x",
       "Catch biomass=100.0  7.0  0.123457  0.0  "},
      {"tabs and quotes are blanks", "nsamples_Autumn=\"1\"  2\t3", "nsamples_Autumn=1  2  3  "},
      {"texts without a number stay", "nsamples_Autumn=abc nan 0x10", "nsamples_Autumn=abc  nan  0x10  "},
      {"comments behind values go", "Target F=0.25 # at F40%", "Target F=0.25"},
  };
  for (const auto& row : rows) {
    OpenFresh(Changed(every_option, row.written));
    EXPECT_EQ(Saved(), Changed(every_option, row.read_back)) << row.what;
  }
}

TEST_F(RoundTrip, of_two_ages_the_second_is_never_in_the_cpue) {
  OpenFresh(Changed(every_option, "age classes=2;nselage_FISH=2 2 ;nselages_SURVEY=2 1 ;Ages in CPUE=1 1 "));
  const std::string saved = Saved();
  EXPECT_EQ(saved, Changed(saved, "Ages in CPUE=1 0 "));
  EXPECT_EQ(host.TakeTexts(), Texts{});
}

TEST_F(RoundTrip, a_description_in_the_file_does_not_replace_another) {
  const struct {
    const char* model;
    const char* line;
    const char* shown;
  } rows[] = {
      {"Cod, base run", "# Model Description:  Small stock", "Cod, base run"},
      {"None Selected", "# Model Description:  Small stock", "Small stock"},
      {"", "# Model Description:", "None Selected"},
      {"", "", "None Selected"},
      {"Cod, base run", "", "Cod, base run"},
  };
  for (const auto& row : rows) {
    DataText text(every_option);
    Texts head = {"# Statistical Catch-at-Age Model: Tarnvik Version 1.4"};
    if (*row.line) head.push_back(row.line);
    head.push_back("# styr endyr recyr depyr");
    text.PutHead(head);
    WriteBytes("a.dat", text.Bytes());
    frmInput->txtModel.SetText(row.model);
    DatFilePath = "a.dat";
    ReadDataFile();
    EXPECT_EQ(frmInput->txtModel.Text(), row.shown);
    EXPECT_EQ(DatFileOpen, kTrue);
  }
}

}  // namespace
}  // namespace tarnvik
