// Opening and saving a data file as a user does it.

#include "inputfiles/datafile_text.h"
#include "inputfiles/paramfile.h"

namespace tarnvik {
namespace {

using DataFileFlows = DataFileTest;

TEST_F(DataFileFlows, saving_under_a_name_moves_the_case_to_it) {
  OpenFresh(every_option);
  frmMain->mnuModelScan.SetEnabled(true);
  host.files.push_back("b.dat");
  SaveDataFileAs();
  EXPECT_EQ(host.dialogs.back().title, "Save Input Data File");
  EXPECT_EQ(host.dialogs.back().filter, "Input Data Files (*.dat)|*.dat");
  EXPECT_EQ(DatFilePath, "b.dat");
  EXPECT_EQ(frmInput->lblFile(1).Caption(), "b.dat");
  EXPECT_EQ(FilesSaved, kTrue);
  EXPECT_FALSE(frmMain->mnuModelScan.Enabled());
  EXPECT_NE(ReadBytes("b.dat").find("# file = b.dat\r\n"), std::string::npos);
}

TEST_F(DataFileFlows, a_name_with_a_blank_is_refused_and_no_name_ends_the_saving) {
  OpenFresh(every_option);
  const std::string path = DatFilePath;
  const std::string blank = InFolder("my case.dat");
  host.files = {blank, std::nullopt, ""};
  for (int i = 0; i < 3; ++i) SaveDataFileAs();
  EXPECT_EQ(host.TakeTexts(),
            Texts{"This Pathname Contains Imbedded Spaces|and is Not Supported in the Model|File Not Saved"});
  EXPECT_EQ(DatFilePath, path);
  EXPECT_EQ(ReadBytes(path), every_option);
}

TEST_F(DataFileFlows, a_cancelled_opening_changes_nothing) {
  OpenFresh(every_option);
  host.files.push_back(std::nullopt);
  OpenDataFile();
  EXPECT_EQ(host.dialogs.back().title, "Open Statistical Catch at Age Model Input Data File");
  EXPECT_EQ(DatFileOpen, kTrue);
  EXPECT_EQ(Saved(), every_option);
}

TEST_F(DataFileFlows, opening_without_a_name_leaves_an_empty_form) {
  OpenFresh(every_option);
  host.files.push_back("");
  OpenDataFile();
  EXPECT_EQ(DatFileOpen, kFalse);
  EXPECT_EQ(DatFilePath, "");
  EXPECT_EQ(frmInput->lblFile(1).Caption(), kNoneSelected);
  EXPECT_EQ(frmInput->ORVFlexGrid(0).TextMatrix(1, 1), "");
}

TEST_F(DataFileFlows, data_alone_offer_their_saving_and_with_parameters_the_whole_case) {
  Open(every_option);
  EXPECT_EQ(frmInput->lblFile(1).ForeColor(), kBlue);
  EXPECT_TRUE(frmMain->mnuFileSaveDataAs.Enabled());
  EXPECT_FALSE(frmMain->mnuModelRun.Enabled());
  EXPECT_FALSE(frmMain->mnuDataPlotInput.Enabled());
  EXPECT_TRUE(frmInput->cmdExpandGrd(0).Enabled());
  EXPECT_FALSE(frmInput->cmdCondenseGrd(1).Enabled());
  CopyExample(folder);
  host.files.push_back("cod.ctl");
  frmInput_cmdBrowseCTL_Click(0);
  OutputFormsOpen = kTrue;
  frmMain->mnuViewReport.SetEnabled(true);
  host.files.push_back("cod.dat");
  OpenDataFile();
  EXPECT_EQ(host.TakeTexts(), Texts{});
  EXPECT_TRUE(frmMain->mnuModelRun.Enabled());
  EXPECT_TRUE(frmMain->mnuFileSaveAll.Enabled());
  EXPECT_TRUE(frmMain->mnuDataPlotInput.Enabled());
  EXPECT_FALSE(frmMain->mnuViewReport.Enabled());
  EXPECT_EQ(OutputFormsOpen, kFalse);
  // The parameters fitted and stayed.
  EXPECT_NE(frmPin->txtParmFile(0).Text(), "");
}

TEST_F(DataFileFlows, parameters_fit_while_every_dimension_is_the_same) {
  CopyExample(folder);
  host.files.push_back("cod.ctl");
  frmInput_cmdBrowseCTL_Click(0);
  const auto matches = [] {
    CompareBasicParms();
    return BasicParmsMatch;
  };
  EXPECT_EQ(matches(), kTrue);
  std::int16_t* const dimensions[] = {&RecYr, &NYears, &NFYear, &NSelPer, &NIndex, &NAges};
  for (std::int16_t* dimension : dimensions) {
    ++*dimension;
    EXPECT_EQ(matches(), kFalse);
    --*dimension;
  }
  EXPECT_EQ(matches(), kTrue);
}

}  // namespace
}  // namespace tarnvik
