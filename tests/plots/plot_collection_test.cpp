#include "plots/plot_collection.h"

#include <filesystem>

#include "core/frmmain.h"
#include "modelrun/results_test.h"
#include "platform/paths.h"
#include "plots/frmplotcollect.h"
#include "plots/output_plots.h"

namespace tarnvik {
namespace {

class PlotCollection : public ResultsTest {
 protected:
  // "0 2 25": the boxes that are ticked.
  static std::string Ticked() {
    std::string list;
    frmPlotCollect->chkPlots.ForEach([&](const CheckBox& box) {
      if (box.IsChecked()) list += (list.empty() ? "" : " ") + std::to_string(box.Index());
    });
    return list;
  }
  static const std::string& Caption(int box) { return frmPlotCollect->chkPlots(box).Caption(); }
  static void SetTabs(bool cpue, bool f_ratios, bool biomass_ratios) {
    frmOutput->SSTab1.SetTabEnabled(2, cpue);
    frmOutput->SSTab1.SetTabEnabled(13, f_ratios);
    frmOutput->SSTab1.SetTabEnabled(14, biomass_ratios);
  }
};

TEST_F(PlotCollection, boxes_tell_how_many_plots_they_stand_for) {
  Scan();
  NAges = 4;
  NIndex = 6;
  NSelPer = 5;
  FishAgeNYears = 1;
  frmOutputData->MSFlexGrid(3).SetTextMatrix(2, 2, "0");
  frmOutputData->MSFlexGrid(3).SetTextMatrix(2, 3, "N/A");
  frmOutputData->MSFlexGrid(3).SetTextMatrix(2, 4, "-1");
  const struct {
    int box;
    const char* caption;
  } rows[] = {
      {0, "Plots of Numbers at Age  (3 Plots)"},
      {1, "Time Series Plots of Age Specific Fishing Mortality  (4 Plots)"},
      {2, "Time Series Plots of Biomass Index for Surveys  (24 Plots)"},
      {4, "Residuals  (1 Plots)"},
      {6, "Observed/Predicted  (18 Plots)"},
      {8, "Standardized Residuals  (2 Plots)"},
      {13, "Time Series Plots of Total Catch Biomass  (3 Plots)"},
      {16, "Plots of Fishery Selectivity by Period  (5 Plots)"},
      {17, "Plot of Survey Sample Size  (6 Plots)"},
      {23, "Plot of Survey Sample Size"},
      {28, "Plots of Fishery Selectivity by Year  (3 Plots)"},
  };
  for (const auto& row : rows) EXPECT_EQ(Caption(row.box), row.caption);
  frmPlotCollect_Form_Load();
  EXPECT_EQ(Caption(17), "Plot of Survey Sample Size  (6 Plots)");
}

TEST_F(PlotCollection, buttons_tick_what_the_results_have) {
  Scan();
  const std::string to_23 = "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23";
  const std::string defaults = "2 4 5 7 8 13 15 16 17 19 25";
  const struct {
    bool cpue, f_ratios, biomass_ratios;
    std::string at_load, all, by_default;
  } rows[] = {
      {true, true, true, "26 27", to_23 + " 24 25 26 27 28", defaults + " 26 27 28"},
      {false, true, false, "26", to_23 + " 26 28", defaults + " 26 28"},
      {true, false, true, "27", to_23 + " 24 25 27 28", defaults + " 27 28"},
  };
  for (const auto& row : rows) {
    UnloadForm(frmPlotCollect);
    SetTabs(row.cpue, row.f_ratios, row.biomass_ratios);
    EXPECT_EQ(Ticked(), row.at_load);
    EXPECT_EQ(frmPlotCollect->chkPlots(24).Enabled(), row.cpue);
    EXPECT_EQ(frmPlotCollect->chkPlots(26).Enabled(), row.f_ratios);
    EXPECT_EQ(frmPlotCollect->chkPlots(27).Enabled(), row.biomass_ratios);
    frmPlotCollect->chkPlots(28).UserCheck(1);
    frmPlotCollect->cmdAll.UserClick();
    EXPECT_EQ(Ticked(), row.all);
    frmPlotCollect->cmdDefault.UserClick();
    EXPECT_EQ(Ticked(), row.by_default);
    frmPlotCollect->cmdNone.UserClick();
    EXPECT_EQ(Ticked(), "28");
  }
}

TEST_F(PlotCollection, wants_results_and_a_choice_among_the_first_boxes) {
  Scan();
  frmPlotCollect->cmdNone.UserClick();
  frmPlotCollect->chkPlots(28).UserCheck(1);
  frmPlotCollect->cmdGenerate.UserClick();
  frmPlotCollect->chkPlots(9).UserCheck(1);
  StdFileRead = ParFileRead = kFalse;
  frmPlotCollect->cmdGenerate.UserClick();
  EXPECT_EQ(host.TakeTexts(), (Texts{"No Plots Selected", "Please Scan In Model Results Before Proceding"}));
  EXPECT_TRUE(host.pictures.empty());
  frmPlotCollect->cmdCancel.UserClick();
  EXPECT_FALSE(frmPlotCollect.Loaded());
}

// --- The collection itself

// The small case has three years, three ages, one survey and one period. What the boxes show, in this order:
using Texts = std::vector<std::string>;
const struct {
  int box;
  Texts pictures;
} kFigures[] = {
    {0, Texts(3, "Chart1 Estimated Numbers (000s) of Fish at Age")},
    {1,
     {"Chart2 Estimated Fishing Mortality for Age 1", "Chart2 Estimated Fishing Mortality for Age 2",
      "Chart2 Estimated Fishing Mortality for Age 3"}},
    {24,
     {"Chart27 CPUE Biomass Index", "Chart27 Residuals for CPUE Biomass Index",
      "Chart27 Log-Scale Residuals for CPUE Biomass Index",
      "Chart27 Standardized Log-Scale Residuals for CPUE Biomass Index"}},
    {2,
     {"Chart3 Biomass Index for Survey 1", "Chart3 Biomass Index Residuals for Survey 1",
      "Chart3 Log-Scale Biomass Index Residuals for Survey 1",
      "Chart3 Standardized Log-Scale Biomass Index Residuals for Survey 1"}},
    {3,
     {"Chart4 Fishery Proportion at Age for Year 2001", "Chart4 Fishery Proportion at Age for Year 2002",
      "Chart4 Fishery Proportion at Age for Year 2003"}},
    {4,
     {"Chart4 Fishery Proportion Residuals at Age for Year 2001",
      "Chart4 Fishery Proportion Residuals at Age for Year 2003"}},
    {5,
     {"Chart4 Standardized Fishery Proportion Residuals at Age for Year 2001",
      "Chart4 Standardized Fishery Proportion Residuals at Age for Year 2003"}},
    {6,
     {"Chart5 Proportion at Age for Year 2001 for Survey 1",
      "Chart5 Proportion at Age for Year 2002 for Survey 1",
      "Chart5 Proportion at Age for Year 2003 for Survey 1"}},
    {7, {"Chart5 Proportion Residuals at Age for Year 2003 for Survey 1"}},
    {8, {"Chart5 Standardized Proportion Residuals at Age for Year 2003 for Survey 1"}},
    {9, {"Chart6 Population Biomass (mt)"}},
    {10, {"Chart6 Spawning Biomass (mt)"}},
    {11, {"Chart6 Exploitable Biomass (mt)"}},
    {12,
     {"Chart9 Recruitment (thousands of age-1 recruits)",
      "Chart9 Standardized Log-Scale Residuals for Recruitment"}},
    {13,
     {"Chart10 Catch Biomass (mt)", "Chart10 Residuals for Catch Biomass",
      "Chart10 Standardized Log-Scale Residuals for Catch Biomass"}},
    {14, {"Chart11 Annual Surplus Production (mt)"}},
    {15,
     {"Chart12 Estimated Average Annual Fishing Mortality",
      "Chart12 Standardized Log-Scale Residuals for Fishing Mortality"}},
    {26,
     {"Chart25 Ratio of Annual Fishing Mortality to Target F",
      "Chart25 Ratio of Annual Fishing Mortality to Limit F"}},
    {27,
     {"Chart26 Ratio of Annual Spawning Biomass to Target Biomass",
      "Chart26 Ratio of Annual Spawning Biomass to Limit Biomass"}},
    {16, {"Chart13 Fishery Selectivity for Period 1: 2001-2003"}},
    {28,
     {"Chart13 Fishery Selectivity for Year 2001", "Chart13 Fishery Selectivity for Year 2002",
      "Chart13 Fishery Selectivity for Year 2003"}},
    {17, {"Chart14 Selectivity for Survey 1"}},
    {18, {"Chart15 F vs. SSB"}},
    {19, {"Chart16 Likelihood Components"}},
    {20, {"Chart17 Fishery Age Composition Sample Size"}},
    {21, {"Chart19 Recruitment Deviations"}},
    {22, {"Chart20 Fishing Mortality Deviations"}},
    {23, {"Chart18 Age Composition Sample Size for Survey 1"}},
    {25,
     {"Chart23 Numbers at Age (Thousands) in Last Year",
      "Chart23 Numbers at Age (Thousands) in Last Year Plus One"}},
};

std::string last_progress;
std::string years_alone;  // the legends of Chart1 while it is drawn

class Generation : public PlotCollection {
 protected:
  void SetUp() override {
    PlotCollection::SetUp();
    Scan();
    // 2002 of the fishery and the first two years of the survey were not observed.
    for (int age = 1; age <= 3; ++age) {
      frmOutputData->MSFlexGrid(3).SetTextMatrix(2, age + 1, "N/A");
      for (const int row : {1, 2}) frmOutputData->MSFlexGrid(4).SetTextMatrix(row, age + 2, "0");
    }
    SetTabs(true, true, true);
    RefreshOutputPlots();
    last_progress.clear();
    years_alone.clear();
    OnControlChanged = [](Control& control) {
      if (&control != &frmMain->StatusBar1) return;
      if (!frmMain->StatusBar1.Panel(2).empty()) last_progress = frmMain->StatusBar1.Panel(2);
      for (const ChartSeries& year : frmOutput->Chart1.AllSeries()) years_alone += year.Legend + " ";
      control.ClearChanged();
    };
    frmMain->StatusBar1.ClearChanged();
  }
  void TearDown() override {
    OnControlChanged = nullptr;
    PlotCollection::TearDown();
  }
  // Shows the form, ticks the boxes alone and presses "Generate".
  Texts Generate(const std::vector<int>& boxes) {
    host.pictures.clear();
    host.modal_acts.push_back([&] {
      for (int box = 0; box < kPlotBoxes; ++box) frmPlotCollect->chkPlots(box).SetValue(0);
      for (const int box : boxes) frmPlotCollect->chkPlots(box).SetValue(1);
      frmPlotCollect->cmdGenerate.UserClick();
      stayed_open = frmPlotCollect.Loaded();
    });
    ShowFormModal(frmPlotCollect);
    EXPECT_EQ(MousePointer(), Pointer::Default);
    EXPECT_EQ(frmMain->StatusBar1.Panel(2), "");
    return host.TakeTexts();
  }
  bool stayed_open = false;
};

TEST_F(Generation, every_box_makes_its_figures_and_they_come_in_order) {
  Texts all;
  std::vector<int> boxes;
  for (const auto& row : kFigures) {
    boxes.push_back(row.box);
    all.insert(all.end(), row.pictures.begin(), row.pictures.end());
    if (row.box == 28) continue;  // alone it is no choice
    host.answers = {Answer::Yes};
    Generate({row.box});
    EXPECT_EQ(host.pictures, row.pictures) << row.box;
    const std::string count = std::to_string(row.pictures.size());
    EXPECT_EQ(last_progress, "Figure " + count + " of " + count) << row.box;
  }
  ASSERT_EQ(boxes.size(), 29u);
  EXPECT_EQ(years_alone, "2001 2002 2003 ");
  host.answers = {Answer::Yes};
  const Texts boxes_shown = Generate(boxes);
  EXPECT_EQ(boxes_shown, (Texts{"A plot collection file and images already exist.|"
                                "Do you wish to overwrite the existing files?",
                                "Plot Collection Has Completed|See File " + InFolder("small_plots.html")}));
  EXPECT_EQ(host.pictures, all);
  EXPECT_EQ(last_progress, "Figure " + std::to_string(all.size()) + " of " + std::to_string(all.size()));
  EXPECT_FALSE(stayed_open);
  EXPECT_TRUE(frmOutput->lblPlot1(0).Caption().empty());
}

TEST_F(Generation, page_names_the_pictures_in_a_folder_beside_it) {
  std::filesystem::create_directory(InFolder("small_plots"));
  for (const char* name : {"plot9.mtf", "OLD.MTF", "notes.txt"})
    WriteBytes(InFolder("small_plots/") + name, "old");
  host.answers = {Answer::Yes};
  Generate({13});
  EXPECT_EQ(ReadBytes("small_plots/plot3.mtf"), host.pictures.at(2));
  EXPECT_TRUE(FileExists("small_plots/notes.txt"));
  EXPECT_FALSE(FileExists("small_plots/plot9.mtf") || FileExists("small_plots/OLD.MTF"));
  std::string expected =
      "<html>\r\n<body>\r\n<center><b>Plot Collection for <br>\r\n" + InFolder("small.ctl") +
      "</b><br>\r\n11/16/2026</center>\r\n<br>\r\n"
      "Note: You may wish to embed the images in this file so it can be easily transported.\r\n<br><br>\r\n"
      "For Microsoft Word, choose <b>Select All</b> from the <b>Edit</b> menu, press <b>Ctrl-Shift-F9</b> to "
      "embed the images then use <b>Save As</b> to save this file as a Word Document.\r\n<br><br>\r\n"
      "For other word processors, consult your word processor's documentation for further instructions on "
      "how "
      "to embed or break the link to the image files. Be sure to use your word processor's <b>Save As</b> "
      "option "
      "to save this file as other than a HTML file.\r\n<br>\r\n<br>\r\n<br>\r\n";
  for (const char* n : {"1", "2", "3"}) {
    expected +=
        "<img SRC=\"" + InFolder("small_plots/plot") + n + ".mtf\">\r\n<br>Figure # " + n + "<br><br>\r\n";
  }
  EXPECT_EQ(ReadBytes("small_plots.html"), expected + "</body>\r\n</html>\r\n");
}

TEST_F(Generation, names_follow_the_control_file_and_are_written_as_html_and_urls) {
  const struct {
    const char *folder, *control, *page, *source;
  } rows[] = {
      {"a", "cod.CTL", "cod_plots", "a/cod_plots"},
      {"c", "cod.txt", "plots", "c/plots"},
      {"b", "ctl", "plots", "b/plots"},
      {"R&D <1> 50% #2?", "x.ctl", "x_plots", "R%26D <1> 50%25 %232%3F/x_plots"},
      {"f\xc3\xb8roya\"", "x.ctl", "x_plots", "f%C3%B8roya%22/x_plots"},
  };
  for (const auto& row : rows) {
    std::filesystem::create_directory(row.folder);
    const std::string control = InFolder(row.folder) + "/" + row.control;
    frmInput->lblCTL.SetCaption(control);
    const std::string page = InFolder(row.folder) + "/" + row.page + ".html";
    EXPECT_EQ(Generate({14}), Texts{"Plot Collection Has Completed|See File " + page});
    EXPECT_NE(ReadBytes(page).find("<img SRC=\"" + InFolder(row.source) + "/plot1.mtf\">"), std::string::npos)
        << ReadBytes(page);
  }
  EXPECT_NE(ReadBytes("R&D <1> 50% #2?/x_plots.html").find("/R&amp;D &lt;1&gt; 50% #2?/x.ctl</b>"),
            std::string::npos);
}

TEST_F(Generation, older_collection_stays_when_the_user_says_no) {
  WriteBytes("small_plots.html", "old");
  host.answers = {Answer::No};
  EXPECT_EQ(Generate({14}).back(), "Plot Collection Terminated");
  EXPECT_EQ(ReadBytes("small_plots.html"), "old");
  EXPECT_FALSE(FolderExists("small_plots") || stayed_open);
}

// Nothing is said; what was written stays, and the form for another try.
TEST_F(Generation, failure_ends_silently) {
  std::filesystem::create_directories("small_plots/plot2.mtf");  // a folder in the place of a picture
  host.answers = {Answer::Yes};
  EXPECT_EQ(Generate({13}).size(), 1u);  // the question
  EXPECT_TRUE(stayed_open);
  const std::string page = ReadBytes("small_plots.html");
  EXPECT_TRUE(page.ends_with("<br>Figure # 1<br><br>\r\n")) << page;
  std::filesystem::remove_all("small_plots");
  WriteBytes("small_plots", "");  // a file in the place of the folder
  std::filesystem::remove("small_plots.html");
  EXPECT_EQ(Generate({13}), Texts());
  EXPECT_FALSE(FileExists("small_plots.html"));
  std::filesystem::remove("small_plots");
  std::filesystem::create_directory("small_plots.html");  // a folder in the place of the page
  EXPECT_EQ(Generate({13}), Texts());
  EXPECT_TRUE(stayed_open && host.pictures.empty());
}

}  // namespace
}  // namespace tarnvik
