#include "inputfiles/casefiles.h"

#include <chrono>
#include <filesystem>

#include "core/frmmain.h"
#include "core/utils.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "inputfiles/case_test.h"
#include "platform/paths.h"

namespace fs = std::filesystem;

namespace tarnvik {
namespace {

const char* const kSaved = "Input Files Have Been Saved";

std::string ControlBytes(const std::string& model, const std::string& pin, const std::string& dat) {
  return Joined({"# Model Description", model, "# Parameter Input File", pin, "# Input Data File", dat});
}

class CaseFiles : public CaseTest {
 protected:
  void OpenExample() {
    OpenCase(control);
    EXPECT_EQ(LastText(), "no box");
    EXPECT_EQ(PinFileOpen, kTrue);
  }
  static void NameFiles(const std::string& ctl, const std::string& pin, const std::string& dat) {
    frmInput->lblCTL.SetCaption(ctl);
    frmInput->lblFile(0).SetCaption(pin);
    frmInput->lblFile(1).SetCaption(dat);
  }
};

TEST_F(CaseFiles, example_opens_and_saves_back_byte_for_byte) {
  const char* const names[] = {"cod.ctl", "cod.dat", "cod.pin"};
  Texts before, after;
  for (const char* name : names) before.push_back(ReadBytes(name));
  OpenExample();
  EXPECT_EQ(frmInput->lblCTL.Caption() + frmInput->lblFile(1).Caption(), control + "cod.dat");
  EXPECT_EQ(FrontForm(), &frmInput);
  for (const char* name : names) fs::remove(name);
  SaveAllInputFiles();
  EXPECT_EQ(LastText(), kSaved);
  EXPECT_EQ(FilesSaved, kTrue);
  for (const char* name : names) after.push_back(ReadBytes(name));
  EXPECT_EQ(after, before);
}

TEST_F(CaseFiles, saved_with_a_root_name_the_case_opens_again_the_same) {
  OpenExample();
  fs::create_directory("runs");
  for (const auto& [given, name] : {std::pair("a.DAT", "a"), {"b.ctl", "b"}, {"c.x", "c.x"}}) {
    const std::string root = InFolder("runs/") + name;
    host.files.push_back(InFolder("runs/") + given);
    SaveAllWithRootName();
    EXPECT_EQ(LastText(), "no box");
    EXPECT_EQ(ReadBytes(root + ".ctl"),
              ControlBytes("North Sea cod", std::string(name) + ".pin", std::string(name) + ".dat"));
    Texts before = LinesOf(ReadBytes(root + ".dat") + ReadBytes(root + ".pin"));
    OpenCase(root + ".ctl");
    SaveAllInputFiles();
    EXPECT_EQ(LastText(), kSaved);
    // The files name themselves as the labels do: by their paths at first, bare after opening.
    for (std::string& line : before) {
      const std::size_t path = line.find(InFolder("runs/"));
      if (path != std::string::npos) line.erase(path, InFolder("runs/").size());
    }
    EXPECT_EQ(LinesOf(ReadBytes(root + ".dat") + ReadBytes(root + ".pin")), before);
  }
}

TEST_F(CaseFiles, root_name_asks_before_it_replaces) {
  OpenExample();
  WriteBytes("new.dat", "old");
  WriteBytes("new.ctl", "old");
  const std::string root = InFolder("new");
  for (const Answer answer : {Answer::Cancel, Answer::Ok}) {
    host.files.push_back(root + ".ctl");
    host.answers.push_back(answer);
    SaveAllWithRootName();
    EXPECT_EQ(LastText(), "Overwrite the following files?|" + root + ".ctl|" + root + ".dat");
    EXPECT_EQ(ReadBytes("new.dat") == "old", answer == Answer::Cancel);
    EXPECT_EQ(FileExistsAsWritten("new.pin"), answer == Answer::Ok);
    EXPECT_EQ(frmInput->lblCTL.Caption(), answer == Answer::Ok ? root + ".ctl" : control);
  }
}

TEST_F(CaseFiles, control_file_needs_all_names_and_writes_neighbours_bare) {
  fs::create_symlink("/dev/full", "full.ctl");
  const struct {
    const char *ctl, *pin, *dat, *text, *pin_line, *dat_line;
  } rows[] = {
      {"None Selected", "", "", "Please Open or Create a New Control File", "", ""},
      {"a.ctl", "", "None Selected", "Please Open or Create a New Parameter Input File", "", ""},
      {"a.ctl", "a.pin", "None Selected", "Please Open or Create a New Input Data File", "", ""},
      {"full.ctl", "a.pin", "a.dat", "Error Saving Control File |Disk full", "", ""},
      {"no/a.ctl", "a.pin", "a.dat", "Error Saving Control File |Path not found", "", ""},
      {"a.ctl", "./a.pin", "a.dat", "no box", "./a.pin", "a.dat"},
      {"./a.ctl", "./a.pin", "../a.dat", "no box", "a.pin", "../a.dat"},
      {"./a.ctl", ".\\a.pin", "a.dat", "no box", ".\\a.pin", "a.dat"},
  };
  frmInput->txtModel.SetText("  ");
  for (const auto& row : rows) {
    NameFiles(row.ctl, row.pin, row.dat);
    WriteControlFile();
    EXPECT_EQ(LastText(), row.text);
    EXPECT_EQ(FilesSaved, Flag(row.pin_line[0] != '\0'));
    if (FilesSaved == kFalse) continue;
    EXPECT_EQ(ReadBytes("a.ctl"), ControlBytes("None Selected", row.pin_line, row.dat_line));
  }
}

TEST_F(CaseFiles, saving_all_says_so_even_on_a_full_disk_but_the_flag_tells) {
  OpenExample();
  fs::create_symlink("/dev/full", "full.dat");
  NameFiles("cod.ctl", "cod.pin", "full.dat");
  SaveAllInputFiles();
  EXPECT_EQ(host.TakeTexts(), Texts({"Error Saving Input Data File |Disk full", kSaved}));
  EXPECT_EQ(FilesSaved, kFalse);
  host.files.push_back("full");
  host.answers.push_back(Answer::Ok);
  SaveAllWithRootName();
  EXPECT_EQ(LastText(), "Error Saving Input Data File |Disk full");
  EXPECT_FALSE(FileExistsAsWritten("full.pin"));
}

TEST_F(CaseFiles, a_fault_stops_the_save_before_the_file_it_is_in) {
  OpenExample();
  const std::string parameters = "Input Parameters File Not Saved|Please Correct Value Before Saving";
  fs::remove("cod.dat");
  frmPin->txtParmFile(0).SetText("");
  SaveAllWithRootName();
  EXPECT_EQ(LastText() + (fs::exists("cod.dat") ? " dat" : ""), parameters);
  SaveAllInputFiles();
  EXPECT_EQ(LastText() + (fs::exists("cod.dat") ? " dat" : ""), parameters + " dat");
  EXPECT_EQ(FilesSaved, kFalse);  // what a model run asks before it starts
  frmInput->txtFractionZ.SetText("");
  SaveAllInputFiles();
  EXPECT_EQ(LastText(), "Input Data File Not Saved|Please Correct Value Before Saving Input Data");
}

TEST_F(CaseFiles, files_that_are_not_where_the_control_file_says) {
  const std::string pin = "Parameter Input File is Not Available in Path Specified";
  const std::string dat = "Input Data File is Not Available in Path Specified";
  const std::string question = "|Would you like to use this file instead?||";
  const std::string ask_pin = pin + question + InFolder("cod.pin"),
                    ask_dat = dat + question + InFolder("cod.dat");
  const struct {
    std::string bytes;
    std::deque<Answer> answers;
    Texts texts;
    bool opens;
  } rows[] = {
      {ControlBytes("m", "C:\\work\\cod.pin", "cod.dat"), {Answer::Yes}, {ask_pin}, true},
      {ControlBytes("m", "C:\\work\\cod.pin", "cod.dat"), {Answer::No}, {ask_pin}, false},
      {ControlBytes("m", "/no/cod.pin", "\\\\h\\cod.dat"),
       {Answer::Yes, Answer::Yes},
       {ask_pin, ask_dat},
       true},
      {ControlBytes("m", "  cod.pin", "C:\\cod.dat # ours"), {Answer::No}, {ask_dat}, false},
      {ControlBytes("m", "C:\\work\\other.pin", "cod.dat"), {}, {pin}, false},
      {ControlBytes("m", "cod.pin", ""), {}, {dat}, false},
      {ControlBytes("m", ".", "cod.dat"), {}, {pin}, false},
      {"", {}, {pin}, false},
      {std::string("\0\xff#\n\r\"\t\\\n\0C:\\\0\n", 16), {}, {pin}, false},
      {"#\rm\r#\rcod.pin\r#\rcod.dat", {}, {}, true},
      {ControlBytes("m", "COD.PIN", "Cod.Dat"), {}, {}, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.bytes);
    WriteBytes(control, row.bytes);
    host.answers = row.answers;
    OpenCase(control);
    EXPECT_EQ(host.TakeTexts(), row.texts);
    EXPECT_EQ(PinFileOpen, Flag(row.opens));
    EXPECT_EQ(DatFileOpen, Flag(row.opens));
    for (const int file : {0, 1}) EXPECT_EQ(frmInput->lblFile(file).ForeColor(), row.opens ? kBlue : kRed);
    EXPECT_FALSE(File1.IsOpen());
  }
  EXPECT_EQ(frmInput->lblFile(0).Caption(), "COD.PIN");
  OpenCase(InFolder("no.ctl"));
  EXPECT_EQ(LastText(), "Error Reading Control File|File not found");
}

TEST_F(CaseFiles, results_count_while_no_input_is_younger) {
  OpenExample();
  constexpr int kNone = -1;  // no such file
  const struct {
    const char* what;
    int hours[6];  // of dat, pin, ctl, rep, std, par
    bool current;
  } rows[] = {
      {"in order", {1, 2, 3, 5, 4, 4}, true},
      {"all at once", {1, 1, 1, 1, 1, 1}, true},
      {"no results at all", {1, 2, 3, kNone, kNone, kNone}, true},
      {"report missing", {1, 2, 3, kNone, 4, 4}, true},
      {"data changed", {4, 2, 3, 5, 5, 5}, false},
      {"parameters changed", {1, 4, 3, 5, 5, 5}, false},
      {"report before control file", {1, 2, 3, 2, 4, 4}, false},
      {"deviations before control file", {1, 2, 3, 5, 2, 4}, false},
      {"output parameters before control file", {1, 2, 3, 5, 4, 2}, false},
      {"report before output parameters", {1, 2, 3, 4, 4, 5}, false},
  };
  const fs::file_time_type base = fs::last_write_time("cod.ctl");
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const char* const names[] = {"cod.dat", "cod.pin", "cod.ctl", "cod.rep", "cod.std", "cod.par"};
    for (int i = 0; i < 6; ++i) {
      if (i > 2) WriteBytes(names[i], "");
      fs::last_write_time(names[i], base + std::chrono::hours(row.hours[i]));
      if (row.hours[i] == kNone) fs::remove(names[i]);
    }
    DisableResultMenus();
    frmMain->mnuViewLog.SetEnabled(false);
    CtlFileOpen = kFalse;
    CheckResultsCurrent();
    EXPECT_EQ(CtlFileOpen, kTrue);
    for (const MenuItem* entry :
         {&frmMain->mnuModelScan, &frmMain->mnuViewLog, &frmMain->mnuViewPlotCollect}) {
      EXPECT_EQ(entry->Enabled(), row.current) << entry->Name();
    }
  }
  EXPECT_EQ(ReportPath + StdPath + ParPath, InFolder("cod.rep") + InFolder("cod.std") + InFolder("cod.par"));
  // Bare names do not agree with a label that shows a path.
  host.files.push_back(InFolder("cod.pin"));
  frmInput_cmdBrowse1_Click(0);
  EXPECT_EQ(CtlFileOpen, kFalse);
  EXPECT_FALSE(frmMain->mnuModelScan.Enabled());
}

}  // namespace
}  // namespace tarnvik
