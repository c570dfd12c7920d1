#include "inputedit/general_combos.h"

#include <algorithm>

#include "core/globals.h"
#include "core/text.h"
#include "inputedit/dimensions.h"
#include "inputedit/frminput.h"

namespace tarnvik {

namespace {

bool Offers(const ComboBox& combo, int first, int last) {
  return combo.ListCount() > 0 && Val(combo.List(0)) == first &&
         Val(combo.List(combo.ListCount() - 1)) == last;
}

// Makes an entry the current one without running the handler of the list.
void SelectAtRest(ComboBox& combo, int item) {
  const std::int16_t before = LoadingForm;
  LoadingForm = kTrue;
  combo.SetListIndex(item);
  LoadingForm = before;
}

void FillYears() {
  ComboBox& first_years = frmInput->cmbNFYear;
  ComboBox& last_years = frmInput->cmbNXYear;
  if (Offers(first_years, GPYearMin, GPYearMax)) return;
  std::int16_t first = GPYearMin;
  std::int16_t last = GPYearMax;
  if (first_years.ListCount() > 0) {
    const auto in_range = [](std::int16_t year) { return year >= GPYearMin && year <= GPYearMax; };
    first = ValInt(first_years.Text());
    last = ValInt(last_years.Text());
    if (!in_range(first)) first = GPYearMin;
    if (!in_range(last)) last = GPYearMax;
    last = std::max(last, first);
  }
  first_years.FillNumbers(GPYearMin, GPYearMax);
  last_years.FillNumbers(GPYearMin, GPYearMax);
  NewNXYear = last;
  NewNFYear = first;
  NewNYears = Int16(last - first + 1);
  // The handler of the last year reshapes the case by what both lists show: the first year stands in its own
  // before that handler runs, or the surveys and the deviations would keep the old span.
  SelectAtRest(first_years, first - GPYearMin);
  last_years.SetListIndex(last - GPYearMin);
  first_years.SetListIndex(first - GPYearMin);
  RefreshYearCombos();
}

// Refills a list of the whole numbers from 1 to a maximum, keeping its value as far as that allows.
void FillCounts(ComboBox& combo, std::int16_t maximum, std::int16_t& wanted) {
  if (Offers(combo, 1, maximum)) return;
  const std::int16_t value = std::clamp<std::int16_t>(ValInt(combo.Text()), 1, maximum);
  combo.FillNumbers(1, maximum);
  wanted = value;
  combo.SetListIndex(value - 1);
}

}  // namespace

void FillGeneralCombos() {
  FillYears();
  FillCounts(frmInput->cmbNAges, GPAgeMax, NewNAges);
  FillCounts(frmInput->cmbNIndex, GPSurveyMax, NewNIndex);
}

}  // namespace tarnvik
