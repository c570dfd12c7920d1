// Writer of the data file: coefficients, emphasis factors, flags, phases. A setting that is switched off
// still has its line, with a placeholder: the model reads the values one after the other.

#include "core/globals.h"
#include "inputfiles/datafile_write.h"

namespace tarnvik {

namespace {

using Form = InputForm;

// A comment, of one or more lines, and the one value behind it.
struct Setting {
  const char* comment;
  std::string_view (*value)(const Form& f);
};

std::string_view Flag01(bool flag) { return flag ? "1" : "0"; }
std::string_view Flag01(const CheckBox& box) { return Flag01(box.IsChecked()); }
std::string_view Text(const TextBox& box) { return box.Text(); }
std::string_view When(bool condition, const TextBox& box, std::string_view otherwise) {
  return condition ? Text(box) : otherwise;
}
// -1 tells the model not to estimate.
std::string_view Phase(bool estimated, const TextBox& phase) { return When(estimated, phase, "-1"); }
std::string_view Phase(const CheckBox& box, const TextBox& phase) { return Phase(box.IsChecked(), phase); }

bool Parametric(const Form& f) { return f.opFSelModel(kParametric).Value(); }
bool SurveyParametric(const Form& f) { return f.opSurvSelModel(kParametric).Value(); }

constexpr Setting kEmphasisBeforeSurveys[] = {
    {"# Coefficient of variation for natural mortality used only if M is estimated",
     [](const Form& f) {
       return When(!f.txtEstimate(kItemMCv).Text().empty(), f.txtEstimate(kItemMCv), "0");
     }},
    {"# Coefficient of variation for recruitment deviations",
     [](const Form& f) { return Text(f.txtVarCoeff(kCvRecruitment)); }},
    {"# Coefficient of variation for catch biomass deviations",
     [](const Form& f) { return Text(f.txtVarCoeff(kCvCatch)); }},
    {"# Coefficient of variation for fishing mortality deviations",
     [](const Form& f) { return Text(f.txtVarCoeff(kCvF)); }},
    {"# Likelihood emphasis: recruitment",
     [](const Form& f) { return Text(f.txtLikelihood(kEmphasisRecruitment)); }},
    {"# Likelihood emphasis: fishery CPUE",
     [](const Form& f) { return Text(f.txtLikelihood(kEmphasisCpue)); }},
    {"# Likelihood emphasis: fishery age composition",
     [](const Form& f) { return Text(f.txtLikelihood(kEmphasisFisheryAge)); }},
};

constexpr Setting kEmphasisBehindSurveys[] = {
    {"# Likelihood emphasis: catch biomass",
     [](const Form& f) { return Text(f.txtLikelihood(kEmphasisCatch)); }},
    {"# Likelihood emphasis: fishery selectivity",
     [](const Form& f) { return Text(f.txtLikelihood(kEmphasisSelectivity)); }},
    {"# Likelihood emphasis: F penalty", [](const Form& f) { return Text(f.txtLikelihood(kEmphasisF)); }},
    {"# Number of years for shrinking recruitment to its mean",
     [](const Form& f) { return When(f.chkShrink.IsChecked(), f.txtShrink, "0"); }},
    {"# Shrinkage coefficient",
     [](const Form& f) { return When(f.chkShrink.IsChecked(), f.txtShrinkFactor, "1"); }},
    {"# Number of bootstrap replicates (nboot)",
     [](const Form& f) { return When(!f.opBoot(kSingleRun).Value(), f.txtNBoot, "0"); }},
    {"# Random seed to initialize random number generator (seed)",
     [](const Form& f) { return When(!f.opBoot(kSingleRun).Value(), f.txtBootSeed, "123456"); }},
    {"# Small positive constant epsilon to make log(x+epsilon) computations robust",
     [](const Form& f) { return Text(f.txtEpsilon); }},
};

constexpr Setting kFlagsBeforeSurveys[] = {
    {"# Logical flag: estimate_mean_log_rec (flag=0 sets mean_log_rec to be constant)",
     [](const Form& f) { return Flag01(f.chkEstimateLogRec); }},
    {"# Logical flag: estimate_rec_dev (flag=0 sets rec_dev to be constant)",
     [](const Form& f) { return Flag01(f.chkEstimateRecDev); }},
    {"# Logical flag: estimate_log_avg_fmort (flag=0 sets log_avg_fmort to be constant)",
     [](const Form& f) { return Flag01(f.chkEstimateFMort); }},
    {"# Logical flag: estimate_fmort_dev (flag=0 sets fmort_dev to be constant)",
     [](const Form& f) { return Flag01(f.chkEstimateFMortDev); }},
    {"# Logical flag: estimate_annual_sel_FISH (flag=0 sets fishery selectivity to be constant by period)",
     [](const Form& f) {
       return Flag01(f.opFSelModel(kNonparametric).Value() && !f.opFishSelNonPar(kByPeriod).Value());
     }},
    {"# Logical flag: fit_fishery_cpue (flag=0 implies no fit to fishery cpue)",
     [](const Form& f) { return Flag01(f.chkFitFishCPUE); }},
    {"# Logical flag: fit_cpue_index_number_per_tow (flag=1 implies fit to number/tow)",
     [](const Form& f) { return Flag01(!f.opCPUEtype(kCpueWeight).Value()); }},
    {"# Logical flag: estimate_cpue_q (flag=0 implies use MLE for cpue q)",
     [](const Form& f) { return Flag01(f.chkEstimate(kItemCpueQ)); }},
    {"# Logical flag: estimate_cpue_exp (flag=0 implies constant cpue exponent)",
     [](const Form& f) { return Flag01(f.chkEstimate(kItemCpueExponent)); }},
};

constexpr Setting kFlagsBehindSurveys[] = {
    {"# Logical flag: estimate_survey_q (flag=0 implies use MLE for survey q)",
     [](const Form& f) { return Flag01(f.chkEstimate(kItemSurveyQ)); }},
    {"# Logical flag: estimate_survey_exp (flag=0 implies constant survey exponent)",
     [](const Form& f) { return Flag01(f.chkEstimate(kItemSurveyExponent)); }},
    {"# Logical flag: use_flattopped_fishery_sel (1=true, otherwise false)",
     [](const Form& f) { return Flag01(f.opFishSelParametric(kFlatTopped).Value()); }},
    {"# Logical flag: use_flattopped_survey_sel (1=true, otherwise false)",
     [](const Form& f) { return Flag01(f.opSurvSelParametric(kFlatTopped).Value()); }},
    {"# Logical flag: estimate_effective_sample_size_fish\n# (1=true, otherwise false)",
     [](const Form& f) { return Flag01(f.chkEstimate(kItemFisherySample)); }},
};

constexpr Setting kCriteria[] = {
    {"# Logical flag: estimate_initial_equilibrium_F\n# (1=true, otherwise false)",
     [](const Form& f) { return Flag01(f.chkEstimate(kItemInitialF)); }},
    {"# Initial equilibrium catch biomass",
     [](const Form& f) {
       return When(f.chkEstimate(kItemInitialF).IsChecked(), f.txtEstimate(kItemInitialF), "0.0");
     }},
    {"# Logical flag: estimate_status_determination_criteria\n# (1=true, otherwise false)",
     [](const Form& f) { return Flag01(f.chkEstimate(kItemCriteria)); }},
    {"# Target F",
     [](const Form& f) {
       return When(f.chkEstimate(kItemCriteria).IsChecked(), f.txtEstimate(kItemTargetF), "0.0");
     }},
    {"# Limit F",
     [](const Form& f) {
       return When(f.chkEstimate(kItemCriteria).IsChecked(), f.txtEstimate(kItemLimitF), "0.0");
     }},
    {"# Target spawning biomass (mt)",
     [](const Form& f) {
       return When(f.chkEstimate(kItemCriteria).IsChecked(), f.txtEstimate(kItemTargetSsb), "0.0");
     }},
    {"# Limit spawning biomass (mt)",
     [](const Form& f) {
       return When(f.chkEstimate(kItemCriteria).IsChecked(), f.txtEstimate(kItemLimitSsb), "0.0");
     }},
};

constexpr Setting kPhases[] = {
    {"# phase_M (typically M is constant)",
     [](const Form& f) { return Phase(f.chkEstimate(kItemM), f.txtEstimate(kItemM)); }},
    {"# phase_mean_log_rec (set to early phase, like 1-3)",
     [](const Form& f) { return Phase(f.chkEstimateLogRec, f.txtPhaseLogRec); }},
    {"# phase_rec_dev (set to early phase, like 1-3)",
     [](const Form& f) { return Phase(f.chkEstimateRecDev, f.txtPhaseRecDev); }},
    {"# phase_avg_fmort (set to early phase, like 1-3)",
     [](const Form& f) { return Phase(f.chkEstimateFMort, f.txtPhaseFMort); }},
    {"# phase_fmort_dev (set to early phase, like 1-3)",
     [](const Form& f) { return Phase(f.chkEstimateFMortDev, f.txtPhaseFMortDev); }},
    {"# phase_cpue_q (set to later phase > 3)",
     [](const Form& f) { return Phase(f.chkEstimate(kItemCpueQ), f.txtEstimate(kItemCpueQ)); }},
    {"# phase_cpue_exp (set to later phase > 4)",
     [](const Form& f) { return Phase(f.chkEstimate(kItemCpueExponent), f.txtEstimate(kItemCpueExponent)); }},
    {"# phase_gamma_FISH (set to middle phase, like 4-6)",
     [](const Form& f) {
       const CheckBox& box = f.chkEstimateFishGamma;
       return Phase(Parametric(f) && box.Enabled() && box.IsChecked(), f.txtPhaseFishGamma);
     }},
    {"# phase_beta_FISH (set to middle phase, like 4-6)",
     [](const Form& f) {
       return Phase(Parametric(f) && f.chkEstimateFishBeta.IsChecked(), f.txtPhaseFishBeta);
     }},
    {"# phase_a50_FISH (set to middle phase, like 4-6)",
     [](const Form& f) {
       return Phase(Parametric(f) && f.chkEstimateFishA50.IsChecked(), f.txtPhaseFishA50);
     }},
    {"# phase_sel_period_FISH (set to middle phase, like 4-6)",
     [](const Form& f) {
       const bool by_period = f.opFSelModel(kNonparametric).Value() && f.opFishSelNonPar(kByPeriod).Value();
       return Phase(by_period && f.chkFishSelNonParEst.IsChecked(), f.txtPhaseFSelNonPar);
     }},
    {"# phase_sel_annual_FISH (set to middle phase, like 4-6)",
     [](const Form& f) {
       const bool annual = f.opFSelModel(kNonparametric).Value() && f.opFishSelNonPar(kAnnual).Value();
       return Phase(annual && f.chkFishSelNonParEst.IsChecked(), f.txtPhaseFSelNonPar);
     }},
    {"# phase_effective_sample_size_FISH (set to later phase > 4)",
     [](const Form& f) {
       return Phase(f.chkEstimate(kItemFisherySample), f.txtEstimate(kItemFisherySample));
     }},
    {"# phase_survey_q (set to later phase > 1)",
     [](const Form& f) { return Phase(f.chkEstimate(kItemSurveyQ), f.txtEstimate(kItemSurveyQ)); }},
    {"# phase_survey_exp (set to later phase > 4)",
     [](const Form& f) {
       return Phase(f.chkEstimate(kItemSurveyExponent), f.txtEstimate(kItemSurveyExponent));
     }},
    // Unlike the fishery's, the survey's gamma has its phase written with the flat-topped option only.
    {"# phase_gamma_SURVEY (set to middle phase, like 4-6)",
     [](const Form& f) {
       const bool in_use = SurveyParametric(f) && f.opSurvSelParametric(kFlatTopped).Value();
       return Phase(in_use && f.chkSurvSelParEst(kLogGamma).IsChecked(), f.txtSurvSelParEst(kLogGamma));
     }},
    {"# phase_beta_SURVEY (set to middle phase, like 4-6)",
     [](const Form& f) {
       return Phase(SurveyParametric(f) && f.chkSurvSelParEst(kLogBeta).IsChecked(),
                    f.txtSurvSelParEst(kLogBeta));
     }},
    {"# phase_a50_SURVEY (set to middle phase, like 4-6)",
     [](const Form& f) {
       return Phase(SurveyParametric(f) && f.chkSurvSelParEst(kLogA50).IsChecked(),
                    f.txtSurvSelParEst(kLogA50));
     }},
    {"# phase_sel_period_SURVEY (set to middle phase, like 4-6)",
     [](const Form& f) {
       return Phase(f.opSurvSelModel(kNonparametric).Value() && f.chkSurvSelNonParEst.IsChecked(),
                    f.txtSurvSelNonParEst);
     }},
    {"# phase_effective_sample_size_SURVEY (set to later phase > 4)",
     [](const Form& f) { return Phase(f.listSurvSample.AnySelected(), f.txtEstSurvSample); }},
};

void PrintComment(OutputFile& file, std::string_view lines) {
  for (std::size_t end = lines.find('\n'); end != std::string_view::npos; end = lines.find('\n')) {
    file.PrintLine(lines.substr(0, end));
    lines.remove_prefix(end + 1);
  }
  file.PrintLine(lines);
}

template <std::size_t Count>
void WriteSettings(OutputFile& file, const Form& form, const Setting (&settings)[Count]) {
  for (const Setting& setting : settings) {
    PrintComment(file, setting.comment);
    file.PrintLine(setting.value(form));
  }
}

void WriteEstimateM(OutputFile& file, const Form& form) {
  file.PrintLine("# Logical flags set by USER (1=true, 0=false)");
  file.PrintLine("# Logical flag: estimate_M (flag=0 sets M to be constant)");
  // The flag names the prior: 1 lognormal, 2 normal, 3 gamma.
  file.PrintLine(form.chkEstimate(kItemM).IsChecked() ? NumberText(form.cmbMType.ListIndex() + 1) : "0");
}

void WriteSurveyIndexFlags(OutputFile& file, const Form& form) {
  file.PrintLine("# Logical flag: fit_survey_index (flag=0 implies no fit to survey index)");
  for (int survey = 1; survey <= NIndex; ++survey) PrintFlag(file, SurvParametric(survey) != 0);
  file.EndLine();
  file.PrintLine("# Logical flag: fit_survey_index_number_per_tow (1=true by survey, otherwise false)");
  WriteMarks(file, form.listSurvFit);
}

}  // namespace

void WriteSettingLines(OutputFile& file, InputForm& form) {
  WriteSettings(file, form, kEmphasisBeforeSurveys);
  EndWithTitles(file, "# Likelihood emphasis: SURVEY age composition");
  WriteColumn(file, form.ORVFlexGrid(kGridSurveyEmphasis), 1, NIndex, kOneBlank);
  EndWithTitles(file, "# Likelihood emphasis: SURVEY biomass index");
  WriteColumn(file, form.ORVFlexGrid(kGridSurveyEmphasis), 2, NIndex, kOneBlank);
  WriteSettings(file, form, kEmphasisBehindSurveys);
  WriteEstimateM(file, form);
  WriteSettings(file, form, kFlagsBeforeSurveys);
  WriteSurveyIndexFlags(file, form);
  WriteSettings(file, form, kFlagsBehindSurveys);
  file.PrintLine("# Logical flag: estimate_effective_sample_size_SURVEY");
  file.PrintLine("# (1=true by survey, otherwise false)");
  WriteMarks(file, form.listSurvSample);
  WriteSettings(file, form, kCriteria);
  file.PrintLine("# Optimization phase settings");
  file.PrintLine("# where phase=-1 indicates no estimation of this parameter.");
  file.PrintLine("# That is, the parameter value is constant");
  file.PrintLine("# and is taken directly from the *.pin file)");
  WriteSettings(file, form, kPhases);
}

}  // namespace tarnvik
