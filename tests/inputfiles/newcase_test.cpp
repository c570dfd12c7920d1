#include "inputfiles/newcase.h"

#include <filesystem>

#include "core/frmmain.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/case_test.h"
#include "inputfiles/datafile.h"

namespace tarnvik {
namespace {

class NewFiles : public CaseTest {};

TEST_F(NewFiles, names_come_from_the_control_file_or_the_clock) {
  std::filesystem::create_directory("runs");
  WriteBytes("runs/old.dat", "");
  host.program_folder = InFolder("runs");
  const std::string clock = "TARNVIK1116260105.dat";
  const struct {
    std::string control, data;
  } rows[] = {
      {"x.ctl", "x.dat"},
      {"cod.ctl", clock},
      {"COD.CTL", clock},
      {InFolder("runs/a.b.ctl"), InFolder("runs/a.b.dat")},
      {InFolder("runs/old.ctl"), InFolder("runs/") + clock},
      {"no/such.ctl", "no/such.dat"},
      {"None Selected", InFolder("runs/") + clock},
      {"", InFolder("runs/") + clock},
      {"nodot", clock},
  };
  for (const auto& row : rows) {
    frmInput->lblCTL.SetCaption(row.control);
    NewDataFile();
    EXPECT_EQ(frmInput->lblFile(1).Caption(), row.data) << row.control;
  }
}

TEST_F(NewFiles, new_data_file_empties_the_fields_and_keeps_dimensions_and_models) {
  OpenCase(control);
  InputForm& form = *frmInput;
  form.chkSmooth(1).SetValue(1);
  form.txtEpsilon.SetText("1e-9");
  form.cmbiSurv.SetListIndex(1);
  NewDataFile();
  EXPECT_EQ(LastText(), "no box");
  const std::pair<std::string, const char*> kept[] = {
      {form.cmbNFYear.Text(), "1963"},         {form.cmbSelPer.Text(), "4"},
      {form.cmbRecYr.Text(), "1963"},          {form.txtEpsilon.Text(), "1e-9"},
      {form.txtModel.Text(), "None Selected"}, {form.txtEstimate(5).Text(), "0.0"},
      {form.txtFractionZ.Text(), ""},          {form.cmbiSurv.Text(), "Survey 1"},
      {form.lstCPUEages.List(5), "Age 6"},     {form.ORVFlexGrid(13).TextMatrix(6, 1), "1.0"}};
  for (const auto& [text, expected] : kept) EXPECT_EQ(text, expected);
  EXPECT_TRUE(form.lstCPUEages.Selected(5) && form.chkSmooth(1).IsChecked() &&
              form.cmdCondenseGrd(0).Enabled());
  EXPECT_EQ(DatFileOpen, kFalse);
  EXPECT_EQ(LoadingForm, kFalse);
  EXPECT_FALSE(frmMain->mnuFileSaveAll.Enabled());
  // Year grids have their headers and years again, and nothing else.
  for (const int g : {0, 4, 6, 7, 14}) {
    const Grid& grid = form.ORVFlexGrid(g);
    std::string cells;
    for (int row = 1; row < grid.Rows(); ++row) {
      for (int col = 1; col < grid.Cols(); ++col) cells += grid.TextMatrix(row, col);
    }
    EXPECT_EQ(grid.TextMatrix(0, 0) + grid.TextMatrix(52, 0) + cells, "Year2014") << g;
  }
  for (const int survey : {1, 2}) {
    EXPECT_EQ(SurvFYear(survey) + SurvNYears(survey), 1963 + 52);
    EXPECT_FALSE(SurvParametric(survey));
    std::string index, ages;
    for (int col = 0; col <= 2; ++col) index += SurvYearFit(survey, col, 52);
    for (int col = 0; col <= 8; ++col) ages += SurvAgeFit(survey, col, 52);
    EXPECT_EQ(index + ages, "2014n2014n");
  }
}

TEST_F(NewFiles, new_parameter_file_is_empty_and_stores_its_name_as_the_data_file) {
  OpenCase(control);
  frmInput->lblCTL.SetCaption("x.ctl");
  NewParameterFile();
  EXPECT_EQ(DatFilePath + ' ' + PinFilePath + ' ' + frmInput->lblFile(0).Caption(), "x.pin cod.pin cod.pin");
  EXPECT_EQ(frmPin->txtParmFile(1).Text(), "");
  for (const auto& [grid, row] : {std::pair(0, 57), {1, 52}, {7, 52}}) {
    const Grid& years = frmPin->ORVFlexGrid1(grid);
    EXPECT_EQ(years.TextMatrix(row, 0) + years.TextMatrix(row, 1), "2014");
  }
  WriteDataFile();
  EXPECT_EQ(DatFilePath, "cod.dat");  // writers take their paths from the labels
}

TEST_F(NewFiles, new_case_after_a_failed_read_begins_again_under_one_root) {
  OpenCase(control);
  WriteBytes("bad.dat", "# Tarnvik Version 1.4\r\n#\r\n99999 -5 0 0\r\n");
  host.files.push_back(InFolder("bad.dat"));
  frmInput_cmdBrowse2_Click(0);
  EXPECT_EQ(LastText(), "Error Reading Input Data File|Overflow");
  NewCase();
  EXPECT_EQ(LastText(), "no box");
  const std::string root = InFolder("TARNVIK1116260105");
  EXPECT_EQ(frmInput->lblFile(1).Caption() + frmInput->lblFile(0).Caption() + frmInput->lblCTL.Caption(),
            root + ".dat" + root + ".pin" + root + ".ctl");
  EXPECT_EQ(CtlFilePath, root + ".ctl");
  EXPECT_EQ(LoadingForm, kFalse);
  EXPECT_EQ(frmInput->cmbNFYear.Text(), std::to_string(NFYear));
  EXPECT_EQ(frmInput->ORVFlexGrid(0).Rows(), NXYear - NFYear + 2);
  EXPECT_GE(NYears, 1);
}

}  // namespace
}  // namespace tarnvik
