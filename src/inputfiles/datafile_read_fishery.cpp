// Reader of the data file: selectivity periods, catch, CPUE and age compositions of the fishery.

#include <vector>

#include "core/globals.h"
#include "inputedit/labels.h"
#include "inputfiles/datafile_read.h"

namespace tarnvik {

namespace {

void ReadPeriods(InputForm& form) {
  std::vector<std::int16_t> starts;
  LineWords words(ReadDataLine());
  for (int period = 1; period <= NSelPer; ++period) starts.push_back(ValInt(words.Next()));
  if (starts.front() != NFYear) {
    throw RefusedValue{"Start of First Selectivity Period Must be the First Year of Data"};
  }
  Grid& periods = form.ORVFlexGrid(kGridPeriods);
  for (std::size_t i = 0; i < starts.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    const int end = i + 1 < starts.size() ? Int16(starts[i + 1] - 1) : NXYear;
    periods.SetTextMatrix(row, 1, NumberText(starts[i]));
    periods.SetTextMatrix(row, 2, NumberText(end));
  }
  LabelPeriods();
}

void ReadAgesToEstimate(InputForm& form, double version) {
  Grid& counts = form.ORVFlexGrid(kGridFisherySelAges);
  if (version >= 1.3) {
    LineWords words(ReadDataLine());
    for (int period = 1; period <= NSelPer; ++period) {
      const int count = ValInt(words.Next());
      if (count < 1 || count > NAges) {
        throw RefusedValue{"Number of Ages to Estimate Fishery Selectivity Exceeds Age Range"};
      }
      counts.SetTextMatrix(period, 1, NumberText(count));
    }
  } else {
    for (int period = 1; period <= NSelPer; ++period) counts.SetTextMatrix(period, 1, NumberText(NAges));
  }
  // Where the one box stands in place of the grid, left so by an earlier case, its text goes back into the
  // first row with the next choice of a model.
  if (form.txtFishSelAge.Visible()) form.txtFishSelAge.SetText(counts.TextMatrix(1, 1));
}

// Files of version 1.3 number the models: 4 is the parametric one, -1 the nonparametric one.
void ReadSelectivityModel(InputForm& form, double version) {
  int option = 0;
  if (version >= 1.4) {
    option = IsOne(TokenFirst(ReadDataLine())) ? 0 : 1;
  } else if (version >= 1.3) {
    const double model = Val(TokenFirst(ReadDataLine()));
    if (model != 4.0 && model != -1.0) return;
    option = model == 4.0 ? 0 : 1;
  }
  form.opFSelModel(option).SetValue(true);
}

// The second box stands for the third difference, too: the third is never checked by a file. No flag unchecks
// a box.
void ReadSmoothers(InputForm& form) {
  LineWords words(ReadDataLine());
  for (const int box : {0, 1, 1}) {
    if (IsOne(words.Next())) form.chkSmooth(box).SetValue(1);
  }
}

void ReadCatch(InputForm& form) {
  LineWords words(ReadDataLine());
  for (int row = 1; row <= NYears; ++row) {
    form.ORVFlexGrid(kGridCatch).SetTextMatrix(row, 1, CatchText(Val(words.Next())));
  }
}

void ReadFitColumn(Grid& grid, int col, int rows) {
  LineWords words(ReadDataLine());
  for (int row = 1; row <= rows; ++row) grid.SetTextMatrix(row, col, YesNo(IsOne(words.Next())));
}

// The number of years in a grid that may hold fewer than the case; the grid takes them.
std::int16_t ReadGridYears(Grid& grid, const char* message) {
  const std::int16_t years = ValInt(ReadDataLine());
  if (years < 1 || years > NYears) throw RefusedValue{message};
  grid.SetRows(years + 1);
  return years;
}

void ReadCpueAges(ListBox& ages) {
  LineWords words(ReadDataLine());
  ages.SetSelected(0, IsOne(words.Next()));
  // Of two ages the second has no flag that counts: it stays unmarked.
  if (NAges <= 2) return;
  for (int age = 2; age <= NAges; ++age) ages.SetSelected(age - 1, IsOne(words.Next()));
}

void ReadCpue(InputForm& form) {
  constexpr int kYear = 0, kValue = 1, kFit = 2;
  Grid& cpue = form.ORVFlexGrid(kGridCpue);
  FishCPUENYears = ReadGridYears(cpue, "Invalid Value for Number of Years of Fishery CPUE Data");
  ReadCpueAges(form.lstCPUEages);
  ReadFitColumn(cpue, kFit, FishCPUENYears);
  ReadColumn(cpue, kYear, FishCPUENYears);
  ReadColumn(cpue, kValue, FishCPUENYears);
  ReadField(form.txtZCpue);
}

// Files before version 1.2 have no CPUE.
void PutCpueDefaults(InputForm& form) {
  FishCPUENYears = NYears;
  for (int row = 1; row <= NYears; ++row)
    form.ORVFlexGrid(kGridCpue).SetTextMatrix(row, 0, NumberText(NFYear + row - 1));
  for (int age = 1; age <= NAges; ++age) form.lstCPUEages.SetSelected(age - 1, true);
  form.txtZCpue.SetText("0.5");
}

void ReadAgeYears(Grid& ages) {
  LineWords words(ReadDataLine());
  int before = 0;
  for (int row = 1; row <= FishAgeNYears; ++row) {
    const int year = ValInt(words.Next());
    if (year < NFYear || year > NXYear) throw RefusedValue{"Invalid Value for Fishery Age Data Years"};
    if (row > 1 && year != before + 1) {
      throw RefusedValue{"Fishery Age Data Years Must Be Sequential and Continuous"};
    }
    ages.SetTextMatrix(row, 0, NumberText(year));
    before = year;
  }
}

void ReadAgeCompositions(InputForm& form, double version) {
  constexpr int kFit = 1, kSamples = 2, kFirstAge = 3;
  Grid& ages = form.ORVFlexGrid(kGridFisheryAge);
  FishAgeNYears = ReadGridYears(ages, "Invalid Value for Number of Years of Fishery Age Data");
  if (version >= 1.2) {
    ReadFitColumn(ages, kFit, FishAgeNYears);
  } else {
    for (int row = 1; row <= FishAgeNYears; ++row) ages.SetTextMatrix(row, kFit, "y");
  }
  ReadAgeYears(ages);
  ReadColumn(ages, kSamples, FishAgeNYears);
  for (int row = 1; row <= FishAgeNYears; ++row) ReadRow(ages, row, kFirstAge, NAges);
}

}  // namespace

void ReadFisheryLines(InputForm& form, double version) {
  ReadPeriods(form);
  ReadAgesToEstimate(form, version);
  ReadSelectivityModel(form, version);
  if (version >= 1.4) ReadSmoothers(form);
  ReadCatch(form);
  if (version >= 1.2) {
    ReadCpue(form);
  } else {
    PutCpueDefaults(form);
  }
  ReadAgeCompositions(form, version);
}

}  // namespace tarnvik
