#include <functional>

#include "platform/chart.h"
#include "platform/form.h"
#include "platform/grid.h"
#include "platform/lists.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

// A form that keeps count of what reaches its handlers.
int clicks = 0;
int loads = 0;
int unloads = 0;
int last_index = -1;
bool resting = false;
bool refuse_unload = false;

struct SmallForm : Form {
  SmallForm() : Form("frmSmall", "Small") {
    combo.OnClick = check.OnClick = list.OnClick = [](int) { ++clicks; };
    option.SetHandler(&OptionButton::OnClick, [](int index) {
      ++clicks;
      last_index = index;
    });
  }
  void Load() override { ++loads; }
  void QueryUnload(bool& cancel, UnloadMode mode) override {
    cancel = refuse_unload && mode == UnloadMode::ByUser;
  }
  void Unload() override { ++unloads; }
  bool CodeClicksRest() const override { return resting; }
  ComboBox combo{this, "combo"};
  ListBox list{this, "list"};
  CheckBox check{this, "check"};
  ControlArray<OptionButton> option{this, "option", {0, 1, 5}};
  TextBox text{this, "text"};
  Grid grid{this, "grid"};
  Frame frame{this, "frame"};
  Chart chart{this, "chart"};
};

FormOf<SmallForm> frmSmall{"frmSmall"};

struct Controls : ProgramTest {
  void SetUp() override {
    ProgramTest::SetUp();
    clicks = loads = unloads = 0;
    resting = refuse_unload = false;
  }
};

TEST_F(Controls, settings_by_code_run_the_handler_also_when_nothing_changes) {
  frmSmall->combo.FillNumbers(1963, 1965);
  frmSmall->combo.SetListIndex(1);
  frmSmall->combo.SetListIndex(1);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(frmSmall->combo.Text(), "1964");
  frmSmall->check.SetValue(0);
  frmSmall->option(5).SetValue(true);
  EXPECT_EQ(clicks, 4);
  EXPECT_EQ(last_index, 5);
  frmSmall->option(0).SetValue(true);
  EXPECT_FALSE(frmSmall->option(5).Value());
  resting = true;
  frmSmall->combo.SetListIndex(2);
  frmSmall->option(1).SetValue(true);
  EXPECT_EQ(clicks, 5);
  frmSmall->combo.UserSelect(0);
  EXPECT_EQ(clicks, 6);
}

TEST_F(Controls, indices_outside_raise_their_errors_and_change_nothing) {
  const struct {
    const char* what;
    std::function<void()> act;
    int number;
  } rows[] = {
      {"combo", [] { frmSmall->combo.SetListIndex(3); }, kErrInvalidProperty},
      {"list", [] { frmSmall->list.SetSelected(0, true); }, kErrInvalidProperty},
      {"gap of an array", [] { frmSmall->option(2).SetValue(true); }, kErrNoControlElement},
      {"row", [] { frmSmall->grid.SetTextMatrix(2, 0, "x"); }, kErrSubscript},
      {"column", [] { frmSmall->grid.TextMatrix(0, -1); }, kErrSubscript},
      {"table beyond the bound", [] { frmSmall->grid.Resize(30000, 30000); }, kErrOutOfMemory},
      {"chart point", [] { frmSmall->chart.SetValue(0, 0, 1); }, kErrSubscript},
  };
  frmSmall->combo.FillNumbers(1, 3);
  frmSmall->combo.SetListIndex(2);
  for (const auto& row : rows) {
    try {
      row.act();
      ADD_FAILURE() << row.what;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number, row.number) << row.what;
    }
  }
  EXPECT_EQ(frmSmall->combo.ListIndex(), 2);
  EXPECT_EQ(frmSmall->grid.Rows(), 2);
}

TEST_F(Controls, a_resized_grid_keeps_the_texts_of_the_cells_that_remain) {
  Grid& grid = frmSmall->grid;
  grid.Resize(3, 3);
  for (int r = 0; r < 3; ++r) {
    for (int c = 0; c < 3; ++c) grid.SetTextMatrix(r, c, std::to_string(r) + std::to_string(c));
  }
  grid.SetCellColors(2, 2, kButtonFace, kBlue);
  grid.SetCols(2);
  grid.SetRows(4);
  grid.SetCols(4);
  EXPECT_EQ(grid.TextMatrix(2, 1), "21");
  EXPECT_EQ(grid.TextMatrix(2, 2), "");
  EXPECT_EQ(grid.TextMatrix(3, 0), "");
  EXPECT_EQ(grid.CellBackColor(2, 2), kWindowBackground);
  grid.Clear();
  EXPECT_EQ(grid.TextMatrix(1, 1), "");
  EXPECT_EQ(grid.Rows(), 4);
}

TEST_F(Controls, a_change_is_marked_once_until_a_view_has_seen_it) {
  static int marks = 0;
  marks = 0;
  Grid& grid = frmSmall->grid;
  grid.ClearChanged();
  OnControlChanged = [](Control&) { ++marks; };
  grid.SetTextMatrix(1, 1, "a");
  grid.SetTextMatrix(1, 0, "b");
  EXPECT_EQ(marks, 1);
  grid.ClearChanged();
  grid.SetTextMatrix(1, 1, "c");
  EXPECT_EQ(marks, 2);
  OnControlChanged = nullptr;
}

TEST_F(Controls, the_first_touch_loads_and_unloading_resets) {
  EXPECT_FALSE(frmSmall.Loaded());
  frmSmall->text.SetText("x");
  EXPECT_EQ(loads, 1);
  EXPECT_EQ(LoadedForms().back(), &frmSmall);
  refuse_unload = true;
  EXPECT_FALSE(UnloadForm(frmSmall, UnloadMode::ByUser));
  EXPECT_TRUE(frmSmall.Loaded());
  EXPECT_TRUE(UnloadForm(frmSmall));
  EXPECT_EQ(unloads, 1);
  EXPECT_FALSE(frmSmall.Loaded());
  EXPECT_EQ(frmSmall->text.Text(), "");
  EXPECT_EQ(loads, 2);
}

TEST_F(Controls, a_record_unloaded_by_its_own_handler_outlives_the_event) {
  static bool name_was_readable = false;
  frmSmall->check.OnClick = [](int) {
    CheckBox& own = frmSmall->check;
    UnloadForm(frmSmall);
    name_was_readable = own.Name() == "check";
  };
  frmSmall->check.UserCheck(1);
  EXPECT_TRUE(name_was_readable);
  EXPECT_FALSE(frmSmall.Loaded());
}

TEST_F(Controls, a_control_in_a_hidden_frame_is_out_of_reach) {
  frmSmall->text.SetContainer(&frmSmall->frame);
  EXPECT_TRUE(frmSmall->text.Reachable());
  frmSmall->frame.SetVisible(false);
  EXPECT_FALSE(frmSmall->text.Reachable());
}

TEST_F(Controls, a_modal_form_gives_the_front_back) {
  FormSlot* before = FrontForm();
  host.modal_acts.push_back([] {
    EXPECT_EQ(FrontForm(), &frmSmall);
    EXPECT_TRUE(frmSmall->Modal);
    UnloadForm(frmSmall);
  });
  ShowFormModal(frmSmall);
  EXPECT_FALSE(frmSmall.Loaded());
  EXPECT_EQ(FrontForm(), before);
}

}  // namespace
}  // namespace tarnvik
