// What the VPA data do not say: the settings with which a fit of an ordinary stock converges, found on North
// Sea cod and tried on other stocks. The user changes them in the program.
#pragma once

namespace vpa {

inline constexpr const char* kFisherySampleSize = "100";
inline constexpr const char* kSurveySampleSize = "50";

// One selectivity period with a flat-topped curve for the fishery, a free value per age for the surveys:
// where all may fall at old ages, the model can hide any number of old fish.
inline constexpr const char* kLogGamma = "-2.0";
inline constexpr const char* kLogBeta = "0.0";
inline constexpr const char* kLogA50 = "1.0";
inline constexpr const char* kLogSelectivity = "1";
inline constexpr const char* kLogAvgFmort = "-1";

// A single setting: its comment lines, parted by "\n", and its value.
struct Setting {
  const char* comment;
  const char* value;
};

inline constexpr Setting kVariances[] = {
    {"Coefficient of variation for natural mortality used only if M is estimated", "0.2"},
    {"Coefficient of variation for recruitment deviations", "0.8"},
    {"Coefficient of variation for catch biomass deviations", "0.1"},
    {"Coefficient of variation for fishing mortality deviations", "0.5"},
    {"Likelihood emphasis: recruitment", "1"},
    {"Likelihood emphasis: fishery CPUE", "1"},
    {"Likelihood emphasis: fishery age composition", "1"},
};

inline constexpr const char* kSurveyAgeEmphasis = "1";
inline constexpr const char* kSurveyIndexEmphasis = "10";

inline constexpr Setting kEstimation[] = {
    {"Likelihood emphasis: catch biomass", "1"},
    {"Likelihood emphasis: fishery selectivity", "1"},
    {"Likelihood emphasis: F penalty", "0.1"},
    {"Number of years for shrinking recruitment to its mean", "0"},
    {"Shrinkage coefficient", "1"},
    {"Number of bootstrap replicates (nboot)", "0"},
    {"Random seed to initialize random number generator (seed)", "123456"},
    {"Small positive constant epsilon to make log(x+epsilon) computations robust", "1.0e-12"},
    {"Logical flags set by USER (1=true, 0=false)\n"
     "Logical flag: estimate_M (flag=0 sets M to be constant)",
     "0"},
    {"Logical flag: estimate_mean_log_rec (flag=0 sets mean_log_rec to be constant)", "1"},
    {"Logical flag: estimate_rec_dev (flag=0 sets rec_dev to be constant)", "1"},
    {"Logical flag: estimate_log_avg_fmort (flag=0 sets log_avg_fmort to be constant)", "1"},
    {"Logical flag: estimate_fmort_dev (flag=0 sets fmort_dev to be constant)", "1"},
    {"Logical flag: estimate_annual_sel_FISH (flag=0 sets fishery selectivity to be constant by period)",
     "0"},
    {"Logical flag: fit_fishery_cpue (flag=0 implies no fit to fishery cpue)", "0"},
    {"Logical flag: fit_cpue_index_number_per_tow (flag=1 implies fit to number/tow)", "0"},
    {"Logical flag: estimate_cpue_q (flag=0 implies use MLE for cpue q)", "0"},
    {"Logical flag: estimate_cpue_exp (flag=0 implies constant cpue exponent)", "0"},
};

inline constexpr Setting kSurveyEstimation[] = {
    {"Logical flag: estimate_survey_q (flag=0 implies use MLE for survey q)", "0"},
    {"Logical flag: estimate_survey_exp (flag=0 implies constant survey exponent)", "0"},
    {"Logical flag: use_flattopped_fishery_sel (1=true, otherwise false)", "1"},
    {"Logical flag: use_flattopped_survey_sel (1=true, otherwise false)", "0"},
    {"Logical flag: estimate_effective_sample_size_fish\n(1=true, otherwise false)", "0"},
};

// Target and limit values belong to a stock: nothing in the VPA data gives them.
inline constexpr Setting kCriteriaAndPhases[] = {
    {"Logical flag: estimate_status_determination_criteria\n(1=true, otherwise false)", "0"},
    {"Target F", "0.0"},
    {"Limit F", "0.0"},
    {"Target spawning biomass (mt)", "0.0"},
    {"Limit spawning biomass (mt)", "0.0"},
    {"Optimization phase settings\n"
     "where phase=-1 indicates no estimation of this parameter.\n"
     "That is, the parameter value is constant\n"
     "and is taken directly from the *.pin file)\n"
     "phase_M (typically M is constant)",
     "-1"},
    {"phase_mean_log_rec (set to early phase, like 1-3)", "1"},
    {"phase_rec_dev (set to early phase, like 1-3)", "2"},
    {"phase_avg_fmort (set to early phase, like 1-3)", "1"},
    {"phase_fmort_dev (set to early phase, like 1-3)", "2"},
    {"phase_cpue_q (set to later phase > 3)", "-1"},
    {"phase_cpue_exp (set to later phase > 4)", "-1"},
    {"phase_gamma_FISH (set to middle phase, like 4-6)", "-1"},
    {"phase_beta_FISH (set to middle phase, like 4-6)", "3"},
    {"phase_a50_FISH (set to middle phase, like 4-6)", "3"},
    {"phase_sel_period_FISH (set to middle phase, like 4-6)", "-1"},
    {"phase_sel_annual_FISH (set to middle phase, like 4-6)", "-1"},
    {"phase_effective_sample_size_FISH (set to later phase > 4)", "-1"},
    {"phase_survey_q (set to later phase > 1)", "-1"},
    {"phase_survey_exp (set to later phase > 4)", "-1"},
    {"phase_gamma_SURVEY (set to middle phase, like 4-6)", "-1"},
    {"phase_beta_SURVEY (set to middle phase, like 4-6)", "-1"},
    {"phase_a50_SURVEY (set to middle phase, like 4-6)", "-1"},
    {"phase_sel_period_SURVEY (set to middle phase, like 4-6)", "3"},
    {"phase_effective_sample_size_SURVEY (set to later phase > 4)", "-1"},
};

}  // namespace vpa
