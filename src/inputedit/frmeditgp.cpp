#include "inputedit/frmeditgp.h"

#include <string>

#include "core/globals.h"
#include "core/settings.h"
#include "core/text.h"
#include "core/utils.h"
#include "inputedit/general_combos.h"
#include "platform/host.h"

namespace tarnvik {

EditGPForm::EditGPForm() : Form("frmEditGP", "Edit General Parameter Ranges") {
  lblYr0.SetCaption("First Year of the Year Range");
  lblYr1.SetCaption("Last Year of the Year Range");
  chkAuto.SetCaption("Auto Update to Current Year");
  lblAges.SetCaption("Maximum Number of Ages");
  lblSurveys.SetCaption("Maximum Number of Surveys");
  cmdOK.SetCaption("OK");
  cmdCancel.SetCaption("Cancel");
  chkAuto.OnClick = frmEditGP_chkAuto_Click;
  cmdOK.OnClick = frmEditGP_cmdOK_Click;
  cmdCancel.OnClick = frmEditGP_cmdCancel_Click;
}

void EditGPForm::Load() { frmEditGP_Form_Load(); }

void frmEditGP_Form_Load() {
  frmEditGP->txtYr(0).SetText(NumberText(GPYearMin));
  frmEditGP->txtYr(1).SetText(NumberText(GPYearMax));
  frmEditGP->chkAuto.SetValue(GPAutoYear == kTrue ? 1 : 0);
  frmEditGP->txtAges.SetText(NumberText(GPAgeMax));
  frmEditGP->txtSurveys.SetText(NumberText(GPSurveyMax));
}

void frmEditGP_chkAuto_Click(int) {
  const bool follows = frmEditGP->chkAuto.IsChecked();
  TextBox& last = frmEditGP->txtYr(1);
  if (follows) last.SetText(NumberText(CurrentYear()));
  last.SetBackColor(follows ? kButtonFace : kWindowBackground);
  last.SetEnabled(!follows);
}

namespace {

struct Ranges {
  std::int16_t first_year;
  std::int16_t last_year;
  std::int16_t ages;
  std::int16_t surveys;
};

bool Refuse(const char* text) {
  ShowMessage(text, Icon::Exclamation);
  return false;
}

// A number from 1 to the largest that a dimension may have.
bool Take(const TextBox& box, std::int16_t& value, const char* missing, const char* invalid) {
  if (box.Text().empty()) return Refuse(missing);
  const double number = Val(box.Text());
  if (number < 1 || number > INT16_MAX) return Refuse(invalid);
  value = Int16(number);
  return true;
}

bool TakeRanges(Ranges& ranges) {
  const EditGPForm& form = *frmEditGP;
  if (!Take(form.txtYr(0), ranges.first_year, "Please Enter a Minimum Value for the Year Range",
            "Invalid Value for the Year Range Minimum Value")) {
    return false;
  }
  if (form.chkAuto.IsChecked()) {
    ranges.last_year = CurrentYear();
  } else if (!Take(form.txtYr(1), ranges.last_year, "Please Enter a Maximum Value for the Year Range",
                   "Invalid Value for the Year Range Maximum Value")) {
    return false;
  }
  if (ranges.last_year < ranges.first_year) {
    return Refuse("Year Range Minimum Must Be Less Than Year Range Maximum");
  }
  return Take(form.txtAges, ranges.ages, "Please Enter a Maximum Value for the Age Range",
              "Invalid Value for the Age Range Maximum Value") &&
         Take(form.txtSurveys, ranges.surveys, "Please Enter a Maximum Value for the Number of Surveys",
              "Invalid Value for the Number of Surveys Maximum Value");
}

// Whether dimensions in force, 0 when there are none, lie outside.
bool ConflictWithCase(const Ranges& ranges) {
  const auto outside = [&](std::int16_t year) {
    return year > 0 && (year < ranges.first_year || year > ranges.last_year);
  };
  return outside(NFYear) || outside(NXYear) || NAges > ranges.ages || NIndex > ranges.surveys;
}

}  // namespace

void frmEditGP_cmdOK_Click(int) {
  Ranges ranges{};
  if (!TakeRanges(ranges)) return;
  if (ConflictWithCase(ranges)) {
    const std::string line_break = kLineBreak;
    const std::string warning = "Warning! The New General Parameter Ranges Conflict" + line_break +
                                "with the General Parameters of the Current Input Data." + line_break +
                                "Some Data May Be Deleted." + line_break + line_break +
                                "Do You Wish to Continue?";
    if (ShowMessage(warning, Icon::None, Buttons::OkCancel) != Answer::Ok) return;
  }
  GPYearMin = ranges.first_year;
  GPYearMax = ranges.last_year;
  GPAutoYear = Flag(frmEditGP->chkAuto.IsChecked());
  GPAgeMax = ranges.ages;
  GPSurveyMax = ranges.surveys;
  WriteSettingsFile();
  FillGeneralCombos();
  UnloadForm(frmEditGP);
}

void frmEditGP_cmdCancel_Click(int) { UnloadForm(frmEditGP); }

}  // namespace tarnvik
