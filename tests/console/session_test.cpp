// The commands one by one, on forms of the test's own.
#include "console/session.h"

#include <cmath>

#include "console/json_text.h"
#include "core/globals.h"
#include "platform/chart.h"
#include "platform/grid.h"
#include "platform/lists.h"
#include "platform/paths.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

using Lines = std::vector<std::string>;

// --- Forms with every kind of control. Their handlers say in a box what has reached them.

void Say(const std::string& text) { ShowMessage(text); }

struct DeepForm : Form {
  DeepForm() : Form("frmDeep", "") {}
  void QueryUnload(bool&, UnloadMode mode) override {
    Say("deep closes " + std::to_string(static_cast<int>(mode)));
  }
};
FormOf<DeepForm> frmDeep{"frmDeep"};

struct BoxForm : Form {
  BoxForm();
  CommandButton cmdOK{this, "cmdOK"};
  CommandButton cmdDeeper{this, "cmdDeeper"};
};
FormOf<BoxForm> frmBox{"frmBox"};

BoxForm::BoxForm() : Form("frmBox", "") {
  cmdOK.OnClick = [](int) { UnloadForm(frmBox); };
  cmdDeeper.OnClick = [](int) { ShowFormModal(frmDeep); };
}

struct KindsForm : Form {
  KindsForm();
  void Activate() override { Say("activated"); }
  void QueryUnload(bool& cancel, UnloadMode mode) override { cancel = mode == UnloadMode::ByUser; }
  TabStrip tabs{this, "tabs"};
  Frame frame{this, "frame"};
  Label label{this, "label"};
  CommandButton button{this, "button"};
  ControlArray<TextBox> text{this, "text", {0, 5}};
  CheckBox check{this, "check"};
  ControlArray<OptionButton> option{this, "option", {0, 1}};
  ComboBox combo{this, "combo"};
  ListBox list{this, "list"};
  Grid grid{this, "grid"};
  Chart chart{this, "chart"};
  RichText rich{this, "rich"};
  MenuItem mnuTop{this, "mnuTop"};
  MenuItem mnuEntry{this, "mnuEntry"};
  StatusBar bar{this, "bar", 2};
};
FormOf<KindsForm> frmKinds{"frmKinds"};

KindsForm::KindsForm() : Form("frmKinds", "") {
  tabs.SetPages({"First", "Second"});
  frame.SetContainer(&tabs, 1);
  text(5).SetContainer(&frame);
  text.SetHandler(&TextBox::OnLostFocus, [](int index) { Say("left " + std::to_string(index)); });
  check.OnClick = [](int) { Say("checked"); };
  option(0).SetValue(true);
  option.SetHandler(&OptionButton::OnClick, [](int index) { Say("option " + std::to_string(index)); });
  for (const char* entry : {"a", "b c", "b c"}) {
    combo.AddItem(entry);
    list.AddItem(entry);
  }
  combo.OnClick = [](int) { Say("combo " + frmKinds->combo.Text()); };
  list.OnClick = [](int) { Say("list " + std::to_string(frmKinds->list.ListIndex())); };
  list.OnDblClick = [](int) { Say("double"); };
  list.OnMouseDown = [](int item) { Say("down " + std::to_string(item)); };
  list.OnMouseUp = [](int item) { Say("up " + std::to_string(item)); };
  grid.Resize(3, 3);
  grid.Editable = true;
  grid.SetTextMatrix(0, 0, "Year");
  grid.OnBeginEdit = [](int) { Say("begin " + frmKinds->grid.TextMatrix(1, 2)); };
  grid.OnEndEdit = [](int) { Say("end " + frmKinds->grid.TextMatrix(1, 2)); };
  grid.OnKeyDown = [](int, int code, bool control) {
    Say(std::to_string(code) + (control ? " with Ctrl" : ""));
  };
  mnuEntry.Parent = &mnuTop;
  mnuEntry.OnClick = [](int) { throw RunTimeError(kErrOverflow); };
  button.OnClick = [](int) {
    ShowFormModal(frmBox);
    Say("box has gone");
  };
}

std::string Box(const std::string& text) {
  return R"({"message":{"text":")" + text +
         R"(","title":"Tarnvik","icon":"none","buttons":["ok"],"answer":"ok"}})";
}

std::string Refused(const std::string& json) { return R"({"refused":")" + json + "\"}"; }
std::string Error(const std::string& json) { return R"({"error":")" + json + "\"}"; }
std::string Is(const std::string& json) { return R"({"value":)" + json + "}"; }
const std::string kOk = R"({"ok":true})";

struct Exchange {
  const char* command;
  Lines answers;
};

// A session on these forms.
class Console : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    EndProgram();
    SetHost(&host);
  }
  Lines Run(const Lines& commands) {
    frmKinds->label.SetCaption("caption");
    Lines answers;
    std::size_t next = 0;
    const auto read = [&](std::string& line) {
      if (next == commands.size()) return false;
      line = commands[next++];
      return true;
    };
    const auto write = [&](const std::string& line) {
      answers.push_back(line);
      return answers.size() != cut_after;
    };
    Session({read, write}, folder, DateTime{2026, 11, 16, 1, 5}).Run();
    SetHost(&host);
    return answers;
  }
  // One session over all rows; each row's lines must come in its place.
  void Expect(const std::vector<Exchange>& rows) {
    Lines commands, expected;
    for (const Exchange& row : rows) {
      commands.push_back(row.command);
      expected.insert(expected.end(), row.answers.begin(), row.answers.end());
    }
    const Lines answers = Run(commands);
    for (std::size_t i = 0; i < std::min(answers.size(), expected.size()); ++i) {
      ASSERT_EQ(answers[i], expected[i]) << "line " << i;
    }
    EXPECT_EQ(answers.size(), expected.size());
  }
  std::size_t cut_after = 0;  // the output is gone after that many lines
};

TEST_F(Console, acts_reach_their_handlers) {
  Expect({
      {"type frmKinds.text(5) \"North Sea\"", {Box("left 5"), kOk}},
      {"get frmKinds.text(5)", {Is(R"("North Sea")")}},
      {"select frmKinds.combo 0", {Box("combo a"), kOk}},
      {"pick frmKinds.combo \"b c\"", {Box("combo b c"), kOk}},
      {"get frmKinds.combo ListIndex", {Is("1")}},
      {"select frmKinds.combo -1", {Box("combo "), kOk}},
      {"check frmKinds.check 1", {Box("checked"), kOk}},
      {"get frmKinds.check", {Is("1")}},
      {"choose frmKinds.option(1)", {Box("option 1"), kOk}},
      {"get frmKinds.option(0)", {Is("false")}},
      {"mark frmKinds.list 2 1", {Box("list 2"), kOk}},
      {"get frmKinds.list Selected", {Is("[false,false,true]")}},
      {"down frmKinds.list 0", {Box("down 0"), kOk}},
      {"up frmKinds.list 1", {Box("up 1"), kOk}},
      {"get frmKinds.list ListIndex", {Is("1")}},
      {"double frmKinds.list 2", {Box("list 2"), Box("double"), kOk}},
      {"edit frmKinds.grid 1 2 0.5", {Box("begin "), Box("end 0.5"), kOk}},
      {"grid frmKinds.grid", {Is(R"([["Year","",""],["","","0.5"],["","",""]])")}},
      {"range frmKinds.grid 2 1 1 2", {kOk}},
      {"get frmKinds.grid RowSel", {Is("1")}},
      {"key frmKinds.grid c", {Box("67 with Ctrl"), kOk}},
      {"tab frmKinds.tabs 1", {kOk}},
      {"get frmKinds.tabs", {Is("1")}},
      {"activate frmKinds", {R"({"form":{"show":"frmKinds","modal":false}})", Box("activated"), kOk}},
      {"activate frmKinds", {Box("activated"), kOk}},
      {"menu frmKinds.mnuEntry",
       {R"({"message":{"text":"Overflow","title":"Tarnvik","icon":"exclamation","buttons":["ok"],"answer":"ok"}})",
        kOk}},
      {"close frmKinds", {kOk}},
      {"cell frmKinds.grid 0 0", {Is(R"("Year")")}},
      {"clipboard", {Is(R"("")")}},
  });
}

TEST_F(Console, what_a_user_could_not_do_is_refused) {
  frmKinds->label.OnClick = nullptr;
  frmKinds->check.SetEnabled(false);
  frmKinds->combo.SetVisible(false);
  frmKinds->tabs.SetTabEnabled(1, false);
  frmKinds->mnuTop.SetEnabled(false);
  Expect({
      {"check frmKinds.check 1", {Refused("frmKinds.check is disabled")}},
      {"get frmKinds.check", {Is("0")}},
      {"select frmKinds.combo 1", {Refused("frmKinds.combo is hidden")}},
      {"type frmKinds.text(5) x", {Refused("frmKinds.text(5) lies on page 1 of tabs, which is disabled")}},
      {"menu frmKinds.mnuEntry", {Refused("mnuEntry lies in mnuTop, which is disabled")}},
      {"menu mnuFile", {Refused("mnuFile has no effect of its own")}},
      {"menu mnuModelScan", {Refused("mnuModelScan is disabled")}},
      {"menu mnuEditCopy", {Refused("mnuEditCopy lies in mnuEdit, which is hidden")}},
      {"menu mnuFileSpc1", {Refused("mnuFileSpc1 is a separator")}},
      {"click frmKinds.label", {Refused("frmKinds.label does nothing when it is clicked")}},
      {"tab frmKinds.tabs 1", {Refused("page 1 of frmKinds.tabs is disabled")}},
      {"select frmKinds.list 3", {Refused("frmKinds.list has no entry 3")}},
      {"pick frmKinds.list c", {Refused("frmKinds.list has no entry \\\"c\\\"")}},
      {"edit frmKinds.grid 0 1 x", {Refused("cell 0,1 of frmKinds.grid cannot be edited")}},
      {"edit frmKinds.grid 3 1 x", {Refused("there is no cell 3,1 of frmKinds.grid")}},
      {"click frmBox.cmdOK", {Refused("frmBox is not loaded")}},
  });
}

TEST_F(Console, faulty_commands_name_what_is_wrong) {
  Expect({
      {"", {}},
      {"   \r", {}},
      {"# note", {}},
      {"fly", {Error("no command fly")}},
      {"type frmKinds.text(0)", {Error("usage: type NAME TEXT")}},
      {"type frmKinds.text(0) \"a", {Error("a quote is not closed")}},
      {"type frmKinds.text(0) \"a\"b", {Error("no blank behind a closing quote")}},
      {"type frmKinds.text(0) \"\\x\"",
       {Error("\\\\x is not understood inside quotes; a backslash is \\\\\\\\")}},
      {"click frmInput.txtFoo", {Error("no control frmInput.txtFoo")}},
      {"get frmKinds.text", {Error("no control frmKinds.text")}},
      {"get frmKinds.text(5", {Error("no control frmKinds.text(5")}},
      {"get StatusBar1", {Error("no control StatusBar1")}},
      {"get frmNone.text", {Error("no form frmNone")}},
      {"click frmKinds.text(0)", {Error("frmKinds.text(0) is a text box, not a button or a label")}},
      {"check frmKinds.check 2", {Error("2 is neither 0 nor 1")}},
      {"select frmKinds.list 1.5", {Error("1.5 is not a whole number")}},
      {"key frmKinds.grid 7", {Error("7 is not a letter")}},
      {"cell frmKinds.grid 3 0", {Error("frmKinds.grid has no cell 3,0")}},
      {"cell frmBox.grid 0 0", {Error("frmBox is not loaded")}},
      {"get frmKinds.grid", {Error("frmKinds.grid is a grid and has no single value")}},
      {"get frmKinds.text(0) Rows", {Error("frmKinds.text(0) has no property Rows")}},
      {"get frmKinds.mnuEntry BackColor", {Error("mnuEntry has no property BackColor")}},
      {"get frmKinds.grid CellBackColor(0)", {Error("frmKinds.grid has no property CellBackColor(0)")}},
      {"get frmKinds.bar Panel(3)", {Error("frmKinds.bar has no property Panel(3)")}},
      {"chart frmKinds.grid", {Error("frmKinds.grid is a grid, not a chart")}},
      {"state NoSuch", {Error("no state NoSuch")}},
      {"state SurvTitle", {Error("SurvTitle takes 1 index")}},
      {"state SurvTitle(9)", {Error("there is no element SurvTitle(9)")}},
  });
}

TEST_F(Console, properties_and_state_have_their_types) {
  frmKinds->grid.SetCellColors(1, 1, kRed, kButtonFace);
  frmKinds->grid.SetColWidth(2, 900);
  frmKinds->bar.SetPanel(2, "busy");
  frmKinds->mnuEntry.SetChecked(true);
  frmKinds->text(0).SetTip("t\xe9l\xc3\xa9 \x80\"");
  Expect({
      {"get frmKinds.text(0) Enabled", {Is("true")}},
      {"get frmKinds.text(0) ToolTipText", {"{\"value\":\"t\xc3\xa9l\xc3\xa9 \xe2\x82\xac\\\"\"}"}},
      {"get frmKinds.text(0) ForeColor", {Is(R"("#000000")")}},
      {"get frmKinds.list List", {Is(R"(["a","b c","b c"])")}},
      {"get frmKinds.option(0) Value", {Is("true")}},
      {"get frmKinds.grid CellBackColor(1,1)", {Is(R"("#ff0000")")}},
      {"get frmKinds.grid CellForeColor(1,1)", {Is(R"("ButtonFace")")}},
      {"get frmKinds.grid ColWidth(2)", {Is("900")}},
      {"get frmKinds.tabs TabCaption(1)", {Is(R"("Second")")}},
      {"get frmKinds.bar Panel(2)", {Is(R"("busy")")}},
      {"get frmKinds.mnuEntry Checked", {Is("true")}},
      {"state CtlFileOpen", {Is("0")}},
      {"state PlotSeriesSel(1)", {Is("0")}},
      {"state MousePointer", {Is("0")}},
  });
}

TEST_F(Console, dump_holds_every_control_with_its_properties) {
  const Lines answers = Run({"dump frmKinds"});
  ASSERT_EQ(answers.size(), 1u);
  const std::string& dump = answers[0];
  EXPECT_EQ(dump.substr(0, 57), R"({"value":{"tabs":{"Enabled":true,"Visible":true,"ForeColo)");
  for (const char* part :
       {R"("Tab":0,"Tabs":2,"TabEnabled":[true,true],"TabCaption":["First","Second"]},"frame":{)",
        R"~("text(5)":{"Enabled":true,"Visible":true,"Text":"","ForeColor":"#000000",)~"
        R"("BackColor":"WindowBackground","ToolTipText":""},)",
        R"("Rows":3,"Cols":3,"ColWidth":[-1,-1,-1],"RowHeight":[-1,-1,-1],"TopRow":1,)",
        R"("bar":{"Enabled":true,"Visible":true,"ToolTipText":"","Panel":["",""]}}})"}) {
    EXPECT_NE(dump.find(part), std::string::npos) << part << "\n" << dump;
  }
}

// --- Charts

TEST_F(Console, chart_gives_the_plot_model) {
  const char* const kEmptyAxis = R"({"min":null,"max":null,"title":"","decimals":null})";
  const std::string empty =
      std::string(R"({"titles":["",""],"gallery":null,"axisX":)") + kEmptyAxis + R"(,"axisY":)" + kEmptyAxis +
      R"(,"legendBox":false,"markerSetting":null,"finished":false,"pointLabels":[],"series":[]})";
  EXPECT_EQ(Run({"chart frmKinds.chart"}), Lines{Is(empty)});
  Chart& chart = frmKinds->chart;
  chart.OpenData(6, 2, 2);
  chart.OpenData(1, 2, 2);
  chart.SetXValue(0, 0, 1963);
  chart.SetXValue(1, 1, 0.1);
  chart.SetValue(0, 0, -1e20);
  chart.SetValue(0, 1, Chart::Hidden);
  chart.SetValue(1, 1, std::nan(""));
  chart.Series(1).Legend = "\"a\"";
  chart.Series(1).Gallery = 4;
  chart.SetPointLabel(1, "\xe9");
  chart.Titles[1] = "t";
  chart.Gallery = 1;
  chart.MarkerSetting = 3;
  chart.ChartFinishFlag = chart.SerLegBoxVisible = true;
  chart.AxisX.Min = 1963;
  chart.AxisY.Max = 0.25;
  chart.AxisY.Decimals = 0;
  chart.AxisY.Title = "Log F";
  EXPECT_EQ(
      Run({"chart frmKinds.chart"}),
      Lines{Is(R"({"titles":["","t"],"gallery":1,"axisX":{"min":1963,"max":null,"title":"","decimals":null},)"
               R"("axisY":{"min":null,"max":0.25,"title":"Log F","decimals":0},"legendBox":true,)"
               R"("markerSetting":3,"finished":true,"pointLabels":["","é"],"series":[)"
               R"({"legend":"","gallery":null,"x":[1963,0],"y":[-1e+20,null]},)"
               R"({"legend":"\"a\"","gallery":4,"x":[0,0.1],"y":[0,null]}]})")});
}

TEST_F(Console, draw_writes_a_picture_by_its_ending) {
  Lines commands, expected;
  for (const char* file : {"a.png", "b.SVG", "c.Pdf"}) {
    commands.push_back(std::string("draw frmKinds.chart ") + file);
    expected.push_back(kOk);
  }
  EXPECT_EQ(Run(commands), expected);
  EXPECT_EQ(ReadBytes("a.png").substr(0, 8), "\x89PNG\r\n\x1a\n");
  EXPECT_NE(ReadBytes("b.SVG").find("<svg"), std::string::npos);
  EXPECT_EQ(ReadBytes("c.Pdf").substr(0, 5), "%PDF-");
  Expect({
      {"draw frmKinds.chart a.gif", {Error("a.gif ends neither in .png nor in .svg or .pdf")}},
      {"draw frmKinds.chart png", {Error("png ends neither in .png nor in .svg or .pdf")}},
      {"draw frmKinds.chart missing/a.png", {Error("Path not found")}},
      {"draw frmKinds.grid a.png", {Error("frmKinds.grid is a grid, not a chart")}},
      {"draw frmBox.chart a.png", {Refused("frmBox is not loaded")}},
  });
  frmKinds->chart.SetVisible(false);
  Expect({{"draw frmKinds.chart d.png", {Refused("frmKinds.chart is hidden")}}});
  EXPECT_FALSE(FileExistsAsWritten("d.png"));
}

// --- Modal forms

const std::string kBoxShown = R"({"form":{"show":"frmBox","modal":true}})";
const std::string kDeepShown = R"({"form":{"show":"frmDeep","modal":true}})";
const std::string kOpenerEnds = R"({"ok":true,"for":"click  frmKinds.button"})";

TEST_F(Console, modal_form_reads_on_until_it_is_closed) {
  Expect({
      {"click  frmKinds.button\r", {kBoxShown}},
      {"click frmKinds.button", {Refused("frmKinds is behind frmBox")}},
      {"exit", {Refused("frmMain is behind frmBox")}},
      {"get frmKinds.label", {Is(R"("caption")")}},
      {"click frmBox.cmdDeeper", {kDeepShown}},
      {"click frmBox.cmdOK", {Refused("frmBox is behind frmDeep")}},
      {"close frmDeep", {Box("deep closes 0"), kOk, R"({"ok":true,"for":"click frmBox.cmdDeeper"})"}},
      {"click frmBox.cmdOK", {kOk, Box("box has gone"), kOpenerEnds}},
  });
}

TEST_F(Console, end_of_input_closes_modal_forms_by_code) {
  EXPECT_EQ(Run({"click  frmKinds.button", "click frmBox.cmdDeeper"}),
            (Lines{kBoxShown, kDeepShown, Box("deep closes 1"),
                   R"({"ok":true,"for":"click frmBox.cmdDeeper"})", Box("box has gone"), kOpenerEnds}));
}

TEST_F(Console, nothing_is_read_once_the_output_is_gone) {
  cut_after = 2;
  EXPECT_EQ(Run({"forms", "state NFYear", "check frmKinds.check 1"}).size(), 2u);
}

// --- Answers to come

TEST_F(Console, boxes_take_only_answers_that_they_offer) {
  frmKinds->check.OnClick = [](int) {
    Say("done");
    ShowMessage("Save?\r\nNow", Icon::Question, Buttons::YesNoCancel);
    ShowMessage("Go?", Icon::Information, Buttons::YesNo);
    ShowMessage("Go?", Icon::Exclamation, Buttons::OkCancel);
  };
  const auto answer_of = [](const std::string& line) {
    const auto at = line.rfind(R"("answer":)");
    return at == std::string::npos ? line : line.substr(at + 9, line.size() - at - 11);
  };
  Lines answers = Run({"answer yes no", "check frmKinds.check 1", "check frmKinds.check 1"});
  EXPECT_EQ(answers.at(2), R"({"message":{"text":"Save?\r\nNow","title":"Tarnvik","icon":"question",)"
                           R"("buttons":["yes","no","cancel"],"answer":"yes"}})");
  for (std::string& line : answers) line = answer_of(line);
  EXPECT_EQ(answers, (Lines{kOk, R"("ok")", R"("yes")", R"("no")", R"("cancel")", kOk, R"("ok")",
                            R"("cancel")", R"("no")", R"("cancel")", kOk}));
}

TEST_F(Console, dialogs_take_queued_files_and_move_the_current_folder) {
  frmKinds->check.OnClick = [](int) {
    const FileDialog dialog{true, "Save \"it\"", "All Files (*.*)|*.*", "ctl", frmKinds->check.Value() == 1};
    Say(TheHost().ShowFileDialog(dialog).value_or("nothing"));
  };
  const Lines answers = Run({"file \"new folder/a\"", "file /", "file cancel", "check frmKinds.check 0",
                             "check frmKinds.check 1", "check frmKinds.check 1", "check frmKinds.check 1",
                             "file b", "check frmKinds.check 1"});
  const auto dialog = [](const std::string& answer) {
    return R"({"dialog":{"kind":"save","title":"Save \"it\"","filter":"All Files (*.*)|*.*","default":"ctl",)"
           R"("answer":)" +
           answer + "}}";
  };
  EXPECT_EQ(answers,
            (Lines{kOk, kOk, kOk, dialog('"' + InFolder("new folder/a") + '"'), Box(InFolder("new folder/a")),
                   kOk, dialog("\"/\""), Box("/"), kOk, dialog("null"), Box("nothing"), kOk, dialog("null"),
                   Box("nothing"), kOk, kOk, dialog("\"/b\""), Box("/b"), kOk}));
  EXPECT_EQ(CurrentFolder(), "/");
}

TEST_F(Console, processes_are_told_with_their_result) {
  frmKinds->check.OnClick = [](int) {
    TheHost().CreateConsoleProcess("/bin/true x");
    TheHost().CreateConsoleProcess("/no/such/program");
    TheHost().StartProgram("/no/such/viewer a");
  };
  EXPECT_EQ(Run({"check frmKinds.check 1"}),
            (Lines{R"({"process":{"command":"/bin/true x","result":1}})",
                   R"({"process":{"command":"/no/such/program","result":0}})",
                   R"({"process":{"command":"/no/such/viewer a","result":0}})",
                   R"({"message":{"text":"File not found","title":"Tarnvik","icon":"exclamation",)"
                   R"("buttons":["ok"],"answer":"ok"}})",
                   kOk}));
}

// --- Texts

TEST(JsonText, is_valid_for_all_bytes) {
  const struct {
    std::string bytes;
    const char* json;
  } rows[] = {
      {"", R"("")"},
      {"a\"\\/\r\n\t", R"("a\"\\/\r\n\t")"},
      {std::string("\0\x1f\x7f", 3), "\"\\u0000\\u001f\x7f\""},
      {"\xc3\xa9\xe2\x82\xac\xf0\x9f\x90\x9f", "\"\xc3\xa9\xe2\x82\xac\xf0\x9f\x90\x9f\""},
      {"\xe9t\xe9", "\"\xc3\xa9t\xc3\xa9\""},  // Windows-1252
      {"\x80\x81\xff", "\"\xe2\x82\xac\xc2\x81\xc3\xbf\""},
      {"\xc3", "\"\xc3\x83\""},  // cut
      {"\xe2\x82", "\"\xc3\xa2\xe2\x80\x9a\""},
      {"\xc0\xaf", "\"\xc3\x80\xc2\xaf\""},                  // overlong
      {"\xed\xa0\x80", "\"\xc3\xad\xc2\xa0\xe2\x82\xac\""},  // half a pair
      {"\xf4\x90\x80\x80", "\"\xc3\xb4\xc2\x90\xe2\x82\xac\xe2\x82\xac\""},
  };
  for (const auto& row : rows) EXPECT_EQ(JsonText(row.bytes), row.json);
}

TEST_F(Console, texts_of_any_length_and_bytes_are_typed) {
  const std::string text(300000, 'x');
  const Lines answers = Run({"type frmKinds.text(0) " + text, "get frmKinds.text(0)",
                             std::string("type frmKinds.text(0) \"\\\"\\\\ ") + '\0' + "\t\\t\\r\\n\"",
                             "get frmKinds.text(0)", "type frmKinds.text(0) a\\\"b\tc",
                             "get frmKinds.text(0)", "type frmKinds.text(0) \"\"", "get frmKinds.text(0)"});
  ASSERT_EQ(answers.size(), 12u);
  EXPECT_TRUE(answers[2] == Is('"' + text + '"'));
  EXPECT_EQ(answers[5], R"({"value":"\"\\ \u0000\t\t\r\n"})");
  EXPECT_EQ(answers[8], R"({"value":"a\\\"b\tc"})");
  EXPECT_EQ(answers[11], R"({"value":""})");
}

}  // namespace
}  // namespace tarnvik
