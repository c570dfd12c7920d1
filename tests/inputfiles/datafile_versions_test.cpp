// Files of earlier versions: lines that they do not hold are not read, substitutes take their place.

#include "inputfiles/datafile_text.h"

namespace tarnvik {
namespace {

constexpr const char* kPrevious =
    "Input File is from a Previous Version|Please Check Data for Completeness and Accuracy";

// Counts of ages by survey came with version 1.4: the empty ones are put right when frmPin is shown.
const Texts kOpened = {kPrevious,
                       "Number of Ages to Estimate Survey Selectivity is Invalid|Resetting Value to 3"};

constexpr const char* kFrom14 =
    "Apply 1st;nselages_SURVEY;use_parametric_sel_SURVEY;Spawning Weight;mult_M;"
    "used only if M is estimated;shrinking recruitment;Shrinkage;(nboot);(seed);epsilon;"
    "flag: estimate_mean_log_rec;flag: estimate_rec_dev;flag: estimate_log_avg_fmort;"
    "flag: estimate_fmort_dev;flag: estimate_annual_sel_FISH;flag: fit_survey_index (;phase_M ;"
    "phase_mean_log_rec;phase_rec_dev;phase_avg_fmort;phase_fmort_dev;phase_cpue_q;phase_cpue_exp;"
    "phase_gamma_FISH;phase_beta_FISH;phase_a50_FISH;phase_sel_period_FISH;phase_sel_annual_FISH;"
    "phase_effective_sample_size_FISH;phase_survey_q;phase_survey_exp;phase_gamma_SURVEY;"
    "phase_beta_SURVEY;phase_a50_SURVEY;phase_sel_period_SURVEY;phase_effective_sample_size_SURVEY";
constexpr const char* kFrom13 = "nselage_FISH;use_parametric_sel_FISH";
constexpr const char* kFrom12 =
    "Number years of fishery CPUE;Ages in CPUE;Years to fit fishery CPUE;Years of fishery CPUE;"
    "Observed fishery CPUE;Prior to CPUE;Years to fit fishery age;Ages in SURVEY;Ages in Autumn;"
    "Fit Spring trawl SURVEY index;Fit Autumn SURVEY index;Fit Spring trawl SURVEY age;"
    "Fit Autumn SURVEY age;emphasis: fishery CPUE;flag: fit_fishery_cpue;fit_cpue_index_number;"
    "flag: estimate_cpue_q;flag: estimate_cpue_exp;fit_survey_index_number";

std::string OfVersion(const std::string& bytes, const std::string& version) {
  DataText text(bytes);
  Texts head = {"# Model Description:  Small stock", "# styr endyr recyr depyr"};
  if (!version.empty())
    head.insert(head.begin(), "# Statistical Catch-at-Age Model: tarnvik version " + version);
  text.PutHead(head);
  const double number = Val(version);
  if (number < 1.4) {
    text.Drop(kFrom14);
    text.Put("use_parametric_sel_FISH=4;flag: estimate_M=9;flag: estimate_cpue_q=3");
    text.Put("flag: estimate_survey_exp=7");
  }
  if (number < 1.3) text.Drop(kFrom13);
  if (number < 1.2) text.Drop(kFrom12);
  return text.Bytes();
}

class DataFileVersions : public DataFileTest {
 protected:
  // What was read in an earlier version's form, as it is written in the current one.
  void ExpectWritten(const std::string& sections) {
    const std::string saved = Saved();
    EXPECT_EQ(saved, Changed(saved, sections));
  }
};

constexpr const char* kSubstitutes14 =
    "use_parametric_sel_FISH=1;Apply 1st=0 0 0 ;nselages_SURVEY=3 3 ;use_parametric_sel_SURVEY=1;"
    "Spawning Weight=2.11  2.12  2.13  |2.21  2.22  2.23  |2.31  2.32  2.33  |2.41  2.42  2.43  ;"
    "mult_M=1.0 1.0 1.0 ;shrinking recruitment=0;Shrinkage=1;(nboot)=0;(seed)=123456;epsilon=1.0e-12;"
    "flag: estimate_M=1;flag: estimate_mean_log_rec=1;flag: estimate_rec_dev=1;"
    "flag: estimate_log_avg_fmort=1;flag: estimate_fmort_dev=1;flag: estimate_annual_sel_FISH=0;"
    "flag: fit_survey_index (=0 0 ;use_flattopped_survey_sel=1;phase_M =9;"
    "phase_survey_q=6;phase_survey_exp=7;"
    // What every version has came through in its place.
    "Maturity=0.11  0.12  0.13  |0.21  0.22  0.23  |0.31  0.32  0.33  |0.41  0.42  0.43  ;"
    "Limit spawning=2500";

TEST_F(DataFileVersions, version_1_3_lacks_spawning_weights_and_phases) {
  OpenFresh(OfVersion(every_option, "1.3"));
  EXPECT_EQ(host.TakeTexts(), kOpened);
  ExpectWritten(kSubstitutes14);
  ExpectWritten("nselage_FISH=2 3 ;phase_cpue_q=3;phase_cpue_exp=1;Fit FISHERY CPUE=1 0 1 ");
  EXPECT_EQ(frmInput->txtModel.Text(), "Small stock");
}

TEST_F(DataFileVersions, version_1_3_numbers_the_selectivity_models) {
  const struct {
    const char* first;  // what an earlier file left
    const char* line;
    const char* written;
  } rows[] = {{"0", "4", "1"}, {"1", "-1", "0"}, {"0", "1", "0"}, {"1", "1", "1"}};
  for (const auto& row : rows) {
    const std::string model = "use_parametric_sel_FISH=";
    OpenFresh(Changed(every_option, model + row.first));
    Open(Changed(OfVersion(every_option, "1.3"), model + row.line));
    ExpectWritten(model + row.written);
  }
}

TEST_F(DataFileVersions, version_1_2_lacks_counts_of_ages) {
  OpenFresh(OfVersion(every_option, "1.2"));
  EXPECT_EQ(host.TakeTexts(), kOpened);
  ExpectWritten(kSubstitutes14);
  ExpectWritten("nselage_FISH=3 3 ;fit_survey_index_number=0 1 ");
}

TEST_F(DataFileVersions, a_file_without_a_version_has_no_cpue) {
  OpenFresh(OfVersion(every_option, ""));
  EXPECT_EQ(host.TakeTexts(), kOpened);
  ExpectWritten(kSubstitutes14);
  ExpectWritten(
      "Number years of fishery CPUE=4;Ages in CPUE=1 1 1 ;Prior to CPUE=0.5;"
      "Years of fishery CPUE=2001  2002  2003  2004  ;Years to fit fishery age=1 1 1 ;"
      "Ages in Autumn=1 1 1 ;Fit Spring trawl SURVEY index=1 1 1 ;Fit Autumn SURVEY age=1 1 1 ;"
      "emphasis: fishery CPUE=1;flag: fit_fishery_cpue=0;fit_cpue_index_number=0;"
      "flag: estimate_cpue_q=1;flag: estimate_cpue_exp=0;fit_survey_index_number=0 0 ");
  EXPECT_EQ(frmInput->txtModel.Text(), "Small stock");
  EXPECT_TRUE(frmInput->txtEstimate(10).Visible());
}

TEST_F(DataFileVersions, the_version_is_the_number_that_the_text_begins_with) {
  for (const char* version : {"1.4.1", "1.4", "  2", "1.40 (test)"}) {
    OpenFresh(OfVersion(every_option, version));
    EXPECT_EQ(host.TakeTexts(), Texts{}) << version;
    ExpectWritten("phase_rec_dev=2");
  }
}

// The fit of CPUE was a phase once: a negative value is none.
TEST_F(DataFileVersions, negative_flags_are_no_fit_before_version_1_4) {
  for (const auto& [version, fitted] : {std::pair{"1.2", "0"}, {"1.3", "0"}, {"1.4", "1"}}) {
    OpenFresh(Changed(OfVersion(every_option, version), "flag: fit_fishery_cpue=-1"));
    ExpectWritten(std::string("flag: fit_fishery_cpue=") + fitted);
  }
}

}  // namespace
}  // namespace tarnvik
