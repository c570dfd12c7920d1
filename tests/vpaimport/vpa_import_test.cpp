#include "vpaimport/vpa_import.h"

#include <filesystem>

#include "core/globals.h"
#include "inputedit/frminput.h"
#include "inputfiles/casefiles.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "support/test_program.h"
#include "vpaimport/frmvpaindices.h"

namespace tarnvik {
namespace {

constexpr const char* kThreeIndices =
    "3\r\n1 IBTS_age1 1 1 1 0\r\n2 IBTS_age2 2 2 0 0\r\n3 SURV_age3 3 6 0 1\r\n";

class VpaImportTest : public ProgramTest {
 protected:
  // Stands for the two programs: what they leave beside the VPA file, and whether they can be started.
  std::string index_list = kThreeIndices;
  std::string converted = "ctl pin dat";
  std::string refused;  // the program that cannot be started

  void SetUp() override {
    ProgramTest::SetUp();
    host.process = [this](const std::string& command) {
      if (!refused.empty() && command.find(refused) != std::string::npos) return 0;
      if (command.find("scanvpasurvey") != std::string::npos) {
        if (!index_list.empty()) WriteBytes(InFolder("vpa_survey_list.txt"), index_list);
        return 1;
      }
      const std::string example = InFolder("cod.");
      for (const std::string ending : {"ctl", "pin", "dat"}) {
        if (converted.find(ending) == std::string::npos) continue;
        CopyFileKeepingTime(example + ending, InFolder("stock_tarnvik.") + ending);
      }
      return 1;
    };
    CopyExample(folder);
    WriteBytes(InFolder("stock.dat"), "North Sea");
  }
  void OpenEarlierCase() {
    host.files = {InFolder("cod.ctl")};
    OpenControlFile();
    ASSERT_EQ(DatFileOpen, kTrue);
  }
  void Import(std::function<void()> act) {
    host.files = {InFolder("stock.dat")};
    host.modal_acts = {std::move(act)};
    ImportVpa();
  }
  void Load(const std::string& list) {
    WriteBytes(InFolder("vpa_survey_list.txt"), list);
    LoadVpaList(JoinPath(folder, ""));
  }
};

// One index from lstVPA, with two clicks.
void Assign(int index, int entry) {
  frmVPAIndices->lstVPA.UserSelect(index);
  frmVPAIndices->lstTARNVIK.UserSelect(entry);
}

void AssignAndImport() {
  Assign(0, 0);
  frmVPAIndices->cmdImport.UserClick();
}

void Drag(int from, int to) {
  ListBox& list = frmVPAIndices->lstTARNVIK;
  list.UserPoint(from);
  list.OnMouseDown(from);
  list.UserPoint(to);
  list.OnMouseUp(to);
}

// lstTARNVIK in short: "#1" a heading, "3" an index, "." an empty entry.
std::string Surveys() {
  std::string text;
  const ListBox& list = frmVPAIndices->lstTARNVIK;
  for (int item = 0; item < list.ListCount(); ++item) {
    const std::string& entry = list.List(item);
    if (item > 0) text += ' ';
    text += entry.empty() ? "." : entry[0] == '=' ? "#" + entry.substr(25, 1) : entry.substr(6, 1);
  }
  return text;
}

TEST_F(VpaImportTest, the_assignment_goes_to_the_converter_and_its_case_is_opened) {
  OpenEarlierCase();
  index_list = "10\n";
  for (int index = 1; index <= 10; ++index) index_list += std::to_string(index) + " North_Sea 1 6 0 1\n";
  WriteBytes(InFolder("vpa2tarnvik_error.log"), "of an earlier import");
  Import([&] {
    EXPECT_EQ(frmVPAIndices->lblVPAFile.Caption(), InFolder("stock.dat"));
    EXPECT_EQ(frmVPAIndices->lstVPA.ListIndex(), 0);
    frmVPAIndices->cmdImport.UserClick();
    EXPECT_EQ(host.TakeTexts(),
              std::vector<std::string>{"Please Assign at Least One VPA Index to a Tarnvik Survey"});
    frmVPAIndices->cmbNSurv.UserSelect(2);
    frmVPAIndices->ORVFlexGrid1.SetTextMatrix(3, 1, "Third one");
    frmVPAIndices->ORVFlexGrid1.OnEndEdit(0);
    EXPECT_EQ(frmVPAIndices->lstTARNVIK.List(4), "========= Tarnvik Survey 3: Third one =========");
    Assign(9, 4);
    Assign(1, 1);
    Assign(0, 1);
    EXPECT_EQ(frmVPAIndices->lstTARNVIK.List(1), "Index 02:  North_Sea,  Ages 1-6,  Jan-1 Weight");
    EXPECT_EQ(frmInput->lblCTL.Caption(), InFolder("cod.ctl"));
    frmVPAIndices->lstVPA.UserSelect(0);  // in hand when the dialog closes
    frmVPAIndices->cmdImport.UserClick();
  });
  EXPECT_EQ(host.TakeTexts(), std::vector<std::string>{});
  EXPECT_EQ(host.commands, (std::vector<std::string>{folder + "/scanvpasurvey.exe " + folder + "/stock.dat",
                                                     "CMD.EXE /C " + folder + "/vpa2tarnvik.exe " + folder +
                                                         "/stock.dat 2> vpa2tarnvik_error.log"}));
  EXPECT_EQ(ReadBytes(InFolder("tarnvik_survey_list.txt")),
            "2\r\nSurvey 1\r\n2\r\n2  1  \r\nThird one\r\n1\r\n10  \r\n");
  EXPECT_FALSE(FileExists(InFolder("vpa2tarnvik_error.log")));
  EXPECT_EQ(frmInput->lblCTL.Caption(), InFolder("stock_tarnvik.ctl"));
  EXPECT_EQ(DatFileOpen, kTrue);
  EXPECT_EQ(PinFileOpen, kTrue);
  EXPECT_EQ(CaseOpenPending, kTrue);
  EXPECT_EQ(MousePointer(), Pointer::Default);
  EXPECT_FALSE(frmVPAIndices.Loaded());
  EXPECT_EQ(FrontForm(), &frmInput);
}

TEST_F(VpaImportTest, a_failure_leaves_the_earlier_case) {
  const std::string failed = "Import VPA Failed - ";
  const struct {
    const char* refused;
    const char* index_list;
    const char* converted;
    std::string text;
  } rows[] = {
      {"scanvpasurvey", kThreeIndices, "ctl pin dat", "Process Creation Failed"},
      {"", "", "ctl pin dat", failed + "Unable to Find vpa_survey_list.txt"},
      {"", "*** Index Data is Unavailable ***", "ctl pin dat", failed + "No VPA Indices Available"},
      {"vpa2tarnvik", kThreeIndices, "ctl pin dat", "Process Creation Failed"},
      {"", kThreeIndices, "pin dat", failed + "Unable to Find Tarnvik Input Control File"},
      {"", kThreeIndices, "ctl dat", failed + "Unable to Find Tarnvik Parameter Input File"},
      {"", kThreeIndices, "ctl pin", failed + "Unable to Find Tarnvik Data Input File"},
  };
  OpenEarlierCase();
  for (const auto& row : rows) {
    refused = row.refused;
    index_list = row.index_list;
    converted = row.converted;
    WriteBytes(InFolder("vpa_survey_list.txt"), kThreeIndices);
    for (const char* ending : {"ctl", "pin", "dat"}) WriteBytes(InFolder("stock_tarnvik.") + ending, "old");
    Import(AssignAndImport);
    ASSERT_EQ(host.messages.size(), 1U) << row.text;
    EXPECT_EQ(host.messages[0].icon, Icon::Exclamation);
    EXPECT_EQ(host.TakeTexts()[0], row.text);
    EXPECT_EQ(frmInput->lblCTL.Caption(), InFolder("cod.ctl"));
    EXPECT_EQ(DatFileOpen, kTrue);
    EXPECT_EQ(CaseOpenPending, kFalse);
    EXPECT_FALSE(frmVPAIndices.Loaded());
  }
}

TEST_F(VpaImportTest, cancelling_and_a_list_that_cannot_be_written_end_the_import) {
  ImportVpa();
  EXPECT_EQ(host.TakeTexts(), std::vector<std::string>{"Import VPA Failed - VPA Input File Not Found"});
  WriteBytes(InFolder("tarnvik_survey_list.txt"), "of an earlier import");
  Import([] {
    Assign(0, 0);
    frmVPAIndices->lstVPA.UserSelect(0);
    frmVPAIndices->cmdCancel.UserClick();
  });
  EXPECT_EQ(host.TakeTexts(), std::vector<std::string>{});
  EXPECT_EQ(MousePointer(), Pointer::Default);
  EXPECT_TRUE(FileExists(InFolder("vpa_survey_list.txt")));
  std::filesystem::create_directory(InFolder("tarnvik_survey_list.txt"));
  Import(AssignAndImport);
  EXPECT_EQ(host.TakeTexts(),
            std::vector<std::string>{"Error Writing Surveys to File |Path/File access error"});
  EXPECT_EQ(host.commands.size(), 2U);  // neither went on to the converter
}

TEST_F(VpaImportTest, a_list_of_indices_is_read_whole_or_refused) {
  const std::string error = "Error Reading VPA Index List|";
  const struct {
    std::string list;
    int entries;  // the last one and all before it
    std::string last;
    std::string text;
  } rows[] = {
      {kThreeIndices, 3, "Index 3:  SURV_age3,  Ages 3-6,  Jan-1 Weight", ""},
      {"1\n7 A 1 2 0.5 0", 1, "Index 7:  A,  Ages 1-2,  Mean Numbers", ""},
      {"1\r4 North Sea 1 1 0 0\r", 1, "Index 4:  North,  Ages Sea-1,  Mean Numbers", ""},
      {"1\n4\tA\t1\t1\t0\t0\n", 1, "Index 4\tA\t1\t1\t0\t0:  ,  Ages -,  Jan-1 Numbers", ""},
      {"10\n\n\n\n\n\n\n\n\n\n\n", 10, "Index 00:  ,  Ages -,  Jan-1 Numbers", ""},
      {"nan\n", 0, "", "Import VPA Failed - No VPA Indices Available"},
      {"", 0, "", error + "Input past end of file"},
      {"2\n1 A 1 1 0 0\n", 0, "", error + "Input past end of file"},
      {"999999999\n1 A 1 1 0 0\n", 0, "", error + "Overflow"},
      {"-2\n1 A 1 1 0 0\n", 0, "", error + "Invalid property value"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.list);
    ModelRunOK = kFalse;
    Load(row.list);
    EXPECT_EQ(ModelRunOK, Flag(row.entries > 0));
    EXPECT_EQ(frmVPAIndices.Loaded(), row.entries > 0);
    const auto texts = host.TakeTexts();
    EXPECT_EQ(texts.empty() ? "" : texts[0], row.text);
    if (row.entries == 0) continue;
    EXPECT_EQ(frmVPAIndices->lstVPA.ListCount(), row.entries);
    EXPECT_EQ(frmVPAIndices->lstVPA.List(row.entries - 1), row.last);
    EXPECT_EQ(frmVPAIndices->lstVPA.ListIndex(), 0);
  }
}

TEST_F(VpaImportTest, an_index_is_taken_put_down_and_given_back) {
  Load(kThreeIndices);
  EXPECT_EQ(MousePointer(), Pointer::Default);
  IndicesForm& form = *frmVPAIndices;
  form.lstTARNVIK.UserSelect(1);
  EXPECT_EQ(Surveys(), "#1 .");
  form.lstVPA.UserSelect(2);
  EXPECT_EQ(MousePointer(), Pointer::IndexInHand);
  form.lstVPA.UserSelect(1);
  EXPECT_EQ(MousePointer(), Pointer::Default);
  Assign(1, 1);
  Assign(1, 0);
  Assign(0, 1);
  EXPECT_EQ(Surveys(), "#1 3 1 2 .");
  EXPECT_EQ(form.lstVPA.ListCount(), 0);
  for (const int entry : {0, 4, 1}) {
    form.lstTARNVIK.UserSelect(entry);
    form.lstTARNVIK.OnDblClick(0);
  }
  EXPECT_EQ(Surveys(), "#1 1 2 .");
  ASSERT_EQ(form.lstVPA.ListCount(), 1);
  EXPECT_EQ(form.lstVPA.List(0), "Index 3:  SURV_age3,  Ages 3-6,  Jan-1 Weight");
}

TEST_F(VpaImportTest, the_number_of_surveys_changes_without_losing_an_index) {
  Load(kThreeIndices);
  const struct {
    int surveys;
    std::function<void()> then;
    const char* list;
  } rows[] = {
      {3, [] { Assign(0, 5); }, "#1 . #2 . #3 1 ."},
      {3, [] { Assign(0, 3); }, "#1 . #2 2 . #3 1 ."},
      {4, [] { Assign(0, 8); }, "#1 . #2 2 . #3 1 . #4 3 ."},
      {0, [] {}, "#1 . #2 2 . #3 1 . #4 3 ."},  // no number chosen
      {2, [] {}, "#1 . #2 2 1 3 ."},
      {1, [] {}, "#1 2 1 3 ."},
      {2, [] {}, "#1 2 1 3 . #2 ."},
  };
  IndicesForm& form = *frmVPAIndices;
  for (const auto& row : rows) {
    form.cmbNSurv.UserSelect(row.surveys - 1);
    row.then();
    EXPECT_EQ(Surveys(), row.list);
  }
  EXPECT_EQ(form.ORVFlexGrid1.Rows(), 3);
  // A title that was emptied comes back with the next change of the number, in the heading as well.
  form.ORVFlexGrid1.SetTextMatrix(1, 1, "");
  form.ORVFlexGrid1.OnEndEdit(0);
  EXPECT_EQ(form.lstTARNVIK.List(0), "========= Tarnvik Survey 1:  =========");
  form.cmbNSurv.UserSelect(14);
  EXPECT_EQ(form.ORVFlexGrid1.TextMatrix(1, 1), "Survey 1");
  EXPECT_EQ(form.lstTARNVIK.List(0), "========= Tarnvik Survey 1: Survey 1 =========");
}

class DragTest : public VpaImportTest {
 protected:
  // Positions:     0  1 2 3 4  5 6 7  8
  const std::string start = "#1 1 2 . #2 3 . #3 .";
  void StartOver() {
    if (frmVPAIndices.Loaded()) UnloadForm(frmVPAIndices);
    Load(kThreeIndices);
    frmVPAIndices->cmbNSurv.UserSelect(2);
    Assign(2, 2);
    Assign(1, 0);
    Assign(0, 0);
    ASSERT_EQ(Surveys(), start);
  }
};

TEST_F(DragTest, a_dragged_index_stands_where_it_was_dropped) {
  const struct {
    int from, to, selected;
    std::string list;
  } rows[] = {
      {2, 1, 1, "#1 2 1 . #2 3 . #3 ."},  // up: ahead of the entry
      {1, 2, 2, "#1 2 1 . #2 3 . #3 ."},  // down: in its place
      {5, 1, 1, "#1 3 1 2 . #2 . #3 ."},  // to another survey
      {1, 4, 4, "#1 2 . #2 1 3 . #3 ."},  // down on a heading: the survey that it opens
      {5, 4, 3, "#1 1 2 3 . #2 . #3 ."},  // up on a heading: the survey that it follows
      {2, 0, 1, "#1 2 1 . #2 3 . #3 ."},  // the first heading follows none
      {5, 3, 3, "#1 1 2 3 . #2 . #3 ."},  // on an empty entry: ahead of it
      {1, 3, 2, "#1 2 1 . #2 3 . #3 ."},
      {1, 8, 7, "#1 2 . #2 3 . #3 1 ."},
      {0, 5, 0, start},  // neither headings nor empty entries move
      {3, 1, 3, start},
      {1, -1, 1, start},  // dropped outside
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.from << " to " << row.to);
    StartOver();
    Drag(row.from, row.to);
    EXPECT_EQ(Surveys(), row.list);
    EXPECT_EQ(frmVPAIndices->lstTARNVIK.ListIndex(), row.selected);
  }
}

TEST_F(DragTest, no_drag_takes_an_index_out_of_the_surveys) {
  for (int drag = 0; drag < 81; ++drag) {
    StartOver();
    Drag(drag / 9, drag % 9);
    std::string order = Surveys();
    for (const char* index : {" 1", " 2", " 3"}) order.erase(order.find(index, 2), 2);
    EXPECT_EQ(order, "#1 . #2 . #3 .") << drag;
    for (const char* lost : {". 1", ". 2", ". 3"}) EXPECT_EQ(Surveys().find(lost), std::string::npos) << drag;
  }
}

TEST_F(DragTest, a_double_click_that_gives_an_index_back_is_no_drag) {
  StartOver();
  ListBox& list = frmVPAIndices->lstTARNVIK;
  list.OnMouseDown(1);
  list.UserSelect(1);
  list.OnDblClick(0);
  list.UserPoint(4);
  list.OnMouseUp(4);
  EXPECT_EQ(Surveys(), "#1 2 . #2 3 . #3 .");
}

}  // namespace
}  // namespace tarnvik
