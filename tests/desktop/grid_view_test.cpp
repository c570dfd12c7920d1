#include "desktop/grids/grid_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>

#include "core/frmmain.h"
#include "core/globals.h"
#include "desktop/forms/events.h"
#include "desktop/grids/grid_find.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "support/test_program.h"

namespace tarnvik {
namespace {

// Years 1990 to 1994 down, Age 1 to Age 3 and a derived column across.
struct GridForm : Form {
  GridForm() : Form("frmGrid", "") {
    table.Resize(6, 5);
    table.Editable = true;
    table.ReadOnlyCol = 4;
    for (int i = 1; i < 6; ++i) table.SetTextMatrix(i, 0, std::to_string(1989 + i));
    for (int i = 0; i < 5; ++i) table.SetTextMatrix(0, i, i == 0 ? "Year" : "Age " + std::to_string(i));
  }
  Grid table{this, "table"};
};

std::string heard;  // what the logic has heard of
GridForm* the_form = nullptr;
void (*at_end_of_edit)() = nullptr;

class GridViewTest : public testing::Test {
 protected:
  void SetUp() override {
    SetHost(&host);
    heard.clear();
    the_form = &form;
    at_end_of_edit = nullptr;
    form.table.OnBeginEdit = [](int) {
      heard +=
          "begin " + std::to_string(the_form->table.Row) + "," + std::to_string(the_form->table.Col) + ";";
    };
    form.table.OnEndEdit = [](int) {
      heard += "end;";
      if (at_end_of_edit) at_end_of_edit();
    };
    window.resize(500, 300);
    view = std::make_unique<GridView>(form.table, &window);
    view->Widget()->resize(500, 300);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    view->Table()->setFocus();
  }
  // Keys for whatever has the focus: "7", "Down", "Ctrl+V", "Shift+Tab" ..., separated by blanks.
  static void Keys(const char* keys) {
    for (const QString& key : QString::fromLatin1(keys).split(u' ')) {
      ASSERT_NE(QApplication::focusWidget(), nullptr);
      if (key.size() == 1) {
        QTest::keyClick(QApplication::focusWidget(), key[0].toLatin1());
        continue;
      }
      const QKeyCombination held = QKeySequence(key)[0];
      const bool back = held.key() == Qt::Key_Tab && held.keyboardModifiers().testFlag(Qt::ShiftModifier);
      QTest::keyClick(QApplication::focusWidget(), back ? Qt::Key_Backtab : held.key(),
                      held.keyboardModifiers());
    }
  }
  void Select(int row, int col, int row_sel, int col_sel) {
    view->Table()->Choose({{row, col}, {row_sel, col_sel}});
  }
  QLineEdit* Editor() const {
    for (auto* editor : view->Table()->findChildren<QLineEdit*>()) {
      if (editor->isVisible()) return editor;
    }
    return nullptr;
  }
  std::string Selection() const {
    const Grid& grid = form.table;
    std::string text = std::to_string(grid.Row) + "," + std::to_string(grid.Col);
    if (grid.Row != grid.RowSel || grid.Col != grid.ColSel) {
      text += "-" + std::to_string(grid.RowSel) + "," + std::to_string(grid.ColSel);
    }
    return text;
  }
  // The first rows of the body, as far as they hold something: cells by "|", rows by "/".
  std::string Body() const {
    std::string text;
    for (int row = 1; row < form.table.Rows(); ++row) {
      if (row > 1) text += "/";
      for (int col = 1; col < form.table.Cols(); ++col)
        text += (col > 1 ? "|" : "") + form.table.TextMatrix(row, col);
      text.erase(text.find_last_not_of('|') + 1);
    }
    text.erase(text.find_last_not_of('/') + 1);
    return text;
  }
  static std::string Heard() { return std::exchange(heard, ""); }
  void Copied(const char* text) { QGuiApplication::clipboard()->setText(QString::fromLatin1(text)); }
  std::string Messages() {
    std::string all;
    for (const std::string& text : host.TakeTexts()) all += text + ";";
    return all;
  }

  TestHost host;
  GridForm form;
  QWidget window;
  std::unique_ptr<GridView> view;
};

TEST_F(GridViewTest, keys_lead_where_they_lead_in_a_spreadsheet) {
  for (int row = 1; row < 6; ++row) form.table.SetTextMatrix(row, 1, row == 4 ? "" : "1");
  form.table.SetColWidth(3, 0);
  RefreshViews();
  const struct {
    const char* keys;
    const char* selection;
  } cases[] = {
      {"Down", "2,1"},
      {"Right Right", "1,4"},  // past the hidden column
      {"Shift+Down Shift+Right", "1,1-2,2"},
      {"Shift+Down Shift+Right Right", "1,2"},
      {"Ctrl+Down", "3,1"},
      {"Ctrl+Down Ctrl+Down", "5,1"},
      {"Right Ctrl+Down", "5,2"},
      {"Ctrl+Shift+Down", "1,1-3,1"},
      {"Up Left", "1,1"},
      {"End", "1,4"},
      {"Ctrl+End", "5,4"},
      {"Ctrl+End Home", "5,1"},
      {"Ctrl+End Ctrl+Home", "1,1"},
      {"PgDown", "5,1"},
      {"Shift+End", "1,1-1,4"},
      {"Ctrl+A", "1,1-5,4"},
      {"Down Shift+Space", "2,1-2,4"},
      {"Right Ctrl+Space", "1,2-5,2"},
      {"Tab Tab", "1,4"},
      {"Tab Tab Tab", "2,1"},
      {"Right Tab Return", "2,2"},
      {"Tab Return Tab Return", "3,1"},
      {"Down Shift+Return", "1,1"},
      {"Down Shift+Tab", "1,4"},
  };
  for (const auto& row : cases) {
    Select(1, 1, 1, 1);
    Keys("Down Up");  // ends a run of Tab
    Keys(row.keys);
    EXPECT_EQ(Selection(), row.selection) << row.keys;
  }
}

TEST_F(GridViewTest, typing_passes_the_edit_events_and_moves_on) {
  Keys("7 Return");
  EXPECT_EQ(Heard(), "begin 1,1;end;");
  Keys("8 Tab 9 Return");
  EXPECT_EQ(Body(), "7/8|9");
  EXPECT_EQ(Selection(), "3,1") << "Enter returns to the column where Tab began";
  EXPECT_EQ(Heard(), "begin 2,1;end;begin 2,2;end;");
  Keys("Up 1 2 Down Up F2 3 Left Left 0 Up");
  EXPECT_EQ(Body(), "7/1023|9") << "the arrows end typing and move within a text opened by F2";
  EXPECT_EQ(Selection(), "1,1");
  Keys("4 5 Escape Backspace 6 Right");
  EXPECT_EQ(Body(), "6/1023|9");
  Keys("End 1");
  EXPECT_EQ(Editor(), nullptr) << "the derived column";
  EXPECT_EQ(Body(), "6/1023|9");
}

TEST_F(GridViewTest, escape_restores_and_leaving_keeps_what_was_typed) {
  form.table.SetTextMatrix(1, 1, "5");
  Keys("9 Escape");
  EXPECT_EQ(Body(), "5");
  EXPECT_EQ(Heard(), "begin 1,1;");
  Keys("9");
  ASSERT_NE(Editor(), nullptr);
  QTest::mouseClick(view->Table()->viewport(), Qt::LeftButton, {},
                    view->Table()->visualRect(view->Table()->model()->index(2, 1)).center());
  window.setFocusPolicy(Qt::StrongFocus);
  window.setFocus();
  EXPECT_EQ(Body(), "9");
  view->Table()->setFocus();
  Select(2, 1, 2, 1);
  Keys("4");
  CommitPendingEdits();  // a shortcut leaves the focus where it is
  EXPECT_EQ(Body(), "9/4");
  EXPECT_TRUE(view->Table()->hasFocus());
  EXPECT_EQ(Heard(), "begin 1,1;end;begin 2,1;end;");
}

TEST_F(GridViewTest, shows_what_the_logic_leaves_of_an_edit) {
  at_end_of_edit = [] {
    ShowMessage("too many");
    RefreshViews();  // as the box does
    the_form->table.SetTextMatrix(1, 1, "3");
  };
  Keys("9 Return");
  EXPECT_EQ(Messages(), "too many;");
  EXPECT_EQ(Body(), "3");
  EXPECT_EQ(view->Table()->model()->index(0, 0).data().toString().toStdString(), "3");
  EXPECT_EQ(Heard(), "begin 1,1;end;");
  at_end_of_edit = [] { the_form->table.Resize(3, 2); };
  Select(1, 1, 1, 1);
  Keys("8 Return");
  EXPECT_EQ(view->Table()->model()->rowCount(), 2);
  EXPECT_EQ(view->Table()->model()->columnCount(), 1);
  Keys("Ctrl+Z");
  EXPECT_EQ(Body(), "8") << "the new dimensions end the history";
}

TEST_F(GridViewTest, a_form_that_goes_while_an_edit_ends_takes_nothing_with_it) {
  static GridView* the_view = nullptr;
  the_view = view.get();
  at_end_of_edit = [] { the_view->LetGo(); };
  Keys("9 Return");
  Keys("8 Ctrl+V Delete Ctrl+Z Down Ctrl+F");
  EXPECT_EQ(Body(), "9");
  view.reset();
  window.repaint();
}

TEST_F(GridViewTest, blocks_go_through_the_same_events_in_one_step) {
  Copied("1\t2\r\n3\t4\r\n");
  Keys("Right Ctrl+V");
  EXPECT_EQ(Body(), "|1|2/|3|4");
  EXPECT_EQ(Selection(), "1,2-2,3");
  EXPECT_EQ(Heard(), "begin 1,2;begin 1,3;begin 2,2;begin 2,3;end;");
  Keys("Ctrl+C");
  EXPECT_EQ(host.clipboard, "1\t2\r\n3\t4\r\n");
  Keys("Delete");
  EXPECT_EQ(Body(), "");
  Keys("Ctrl+Z");
  EXPECT_EQ(Body(), "|1|2/|3|4");
  Keys("Ctrl+Z");
  EXPECT_EQ(Body(), "");
  Keys("Ctrl+Y Ctrl+Y Ctrl+Y");
  EXPECT_EQ(Body(), "") << "pasted and deleted again";
  Keys("Ctrl+Z Ctrl+X");
  EXPECT_EQ(host.clipboard + "->" + Body(), "1\t2\r\n3\t4\r\n->");
  EXPECT_EQ(Messages(), "");
}

TEST_F(GridViewTest, what_does_not_fit_is_refused_with_a_count) {
  Copied("1\t2\t3\n4\t5\t6\n");
  Select(5, 2, 5, 2);
  Keys("Ctrl+V");
  EXPECT_EQ(Body(), "////|1|2");
  EXPECT_EQ(Messages(), "4 cells lie outside the table or cannot be edited.;");
  Copied("1\n2,5\n");
  Select(1, 1, 1, 1);
  Keys("Ctrl+V");
  EXPECT_EQ(Body(), "////|1|2");
  const std::string refusal = Messages();
  EXPECT_NE(refusal.find("\"2,5\" for 1991, Age 1"), std::string::npos) << refusal;
  EXPECT_NE(refusal.find("Nothing has been pasted."), std::string::npos) << refusal;
  Keys("1 , 5 Return");
  ASSERT_NE(Editor(), nullptr) << "open again, for the comma to be mended";
  EXPECT_NE(Messages().find("\"1,5\" for 1990, Age 1"), std::string::npos);
  Keys("Backspace Backspace . 5 Return");
  EXPECT_EQ(form.table.TextMatrix(1, 1), "1.5");
}

TEST_F(GridViewTest, undo_keeps_to_cells_that_are_still_as_the_user_left_them) {
  const auto type = [&] {
    Select(1, 1, 1, 1);
    Keys("7 Return 8 Return");
    ASSERT_EQ(Body(), "7/8");
  };
  type();
  UserEvent([&] { form.table.SetTextMatrix(2, 1, "0"); });
  Keys("Ctrl+Z");
  EXPECT_EQ(Body(), "/0") << "the step of the other cell is void";
  type();
  UserEvent([&] {
    form.table.Clear();
    form.table.SetTextMatrix(1, 1, "7");
    form.table.SetTextMatrix(2, 1, "8");
  });
  Keys("Ctrl+Z");
  EXPECT_EQ(Body(), "7/8") << "refilled: another survey, other years";
  Keys("9 Return");
  EndEditHistory();
  Keys("Ctrl+Z");
  EXPECT_EQ(Body().find('9') != std::string::npos, true);
}

TEST_F(GridViewTest, shows_the_shape_and_place_that_the_logic_gives) {
  GridTable* table = view->Table();
  EXPECT_EQ(table->model()->headerData(1, Qt::Horizontal).toString().toStdString(), "Age 2");
  EXPECT_EQ(table->model()->headerData(4, Qt::Vertical).toString().toStdString(), "1994");
  UserEvent([&] {
    form.table.Resize(200, 6);
    form.table.ColsInView = 2;
    form.table.SetTextMatrix(1, 1, "Observed");
    form.table.SetRowHeight(3, 0);
    form.table.SetTopRow(100);
  });
  EXPECT_EQ(table->model()->columnCount(), 4);
  EXPECT_EQ(table->model()->headerData(0, Qt::Vertical).toString().toStdString(), "1990 Observed");
  EXPECT_TRUE(table->isRowHidden(2));
  EXPECT_EQ(table->rowAt(0), 99);
  table->verticalScrollBar()->setValue(0);
  EXPECT_EQ(form.table.TopRow, 1);
  UserEvent([&] { form.table.SetTopRow(100); });  // the same block is chosen again
  EXPECT_EQ(table->rowAt(0), 99);
  UserEvent([&] { form.table.SetSelection(190, 3, 191, 4); });
  EXPECT_EQ(table->selectionModel()->selectedIndexes().size(), 4);
  EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(table->currentIndex())));
  UserEvent([&] { form.table.Resize(1, 1); });
  Keys("Down 1 Ctrl+V Delete Ctrl+A F2 Tab");
  UserEvent([&] { form.table.FixedCols = form.table.ColsInView = 0, form.table.Resize(2, 1); });
  table->setFocus();
  Keys("Home 5 Return");
  EXPECT_EQ(form.table.TextMatrix(1, 0), "5") << "without label columns";
}

TEST_F(GridViewTest, the_logic_gets_its_letters_and_its_right_button) {
  form.table.Editable = false;
  form.table.OnKeyDown = [](int, int code, bool control) {
    heard += std::string(control ? "Ctrl+" : "") + static_cast<char>(code) + ";";
  };
  form.table.OnRightClick = [](int) { heard += "right;"; };
  Keys("Ctrl+A Ctrl+C Ctrl+V Ctrl+X");
  EXPECT_EQ(Heard(), "Ctrl+A;Ctrl+C;Ctrl+V;Ctrl+X;");
  EXPECT_EQ(Selection() + host.clipboard, "1,1") << "selecting and copying are the logic's";
  QContextMenuEvent click(QContextMenuEvent::Mouse, {30, 10},
                          view->Table()->viewport()->mapToGlobal(QPoint(30, 10)));
  QApplication::sendEvent(view->Table()->viewport(), &click);
  EXPECT_EQ(Heard(), "right;");
  form.table.OnRightClick = nullptr;
  QApplication::sendEvent(view->Table()->viewport(), &click);
  const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  std::string offered;
  for (const QAction* action : menu->actions()) {
    if (action->isEnabled() && !action->isSeparator()) offered += action->text().toStdString() + ";";
  }
  EXPECT_EQ(offered, "&Copy;Select &All;&Find...;");
  QApplication::activePopupWidget()->close();
}

TEST_F(GridViewTest, finding_goes_round_cells_labels_and_headings) {
  form.table.SetTextMatrix(2, 2, "Cod");
  form.table.SetTextMatrix(4, 1, "cod 2");
  const struct {
    const char* text;
    CellAt from;
    bool back;
    CellAt found;
  } cases[] = {
      {"cod", {1, 1}, false, {2, 2}},   {"COD", {2, 2}, false, {4, 1}},  {"cod", {4, 1}, false, {2, 2}},
      {"cod", {2, 2}, true, {4, 1}},    {"1993", {1, 1}, false, {4, 1}}, {"age 3", {3, 3}, false, {1, 3}},
      {"cod 2", {4, 1}, false, {4, 1}},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(FindInGrid(form.table, row.text, row.from, row.back), row.found) << row.text;
  }
  EXPECT_EQ(FindInGrid(form.table, "herring", {1, 1}, false), std::nullopt);
  Keys("Ctrl+F c o d Return");
  EXPECT_EQ(Selection(), "2,2");
  Keys("Return Escape");
  EXPECT_EQ(Selection(), "4,1");
  Keys("F3");
  EXPECT_EQ(Selection(), "2,2");
}

TEST_F(GridViewTest, one_event_costs_one_refresh_however_many_cells_change) {
  int refreshes = 0;
  QObject::connect(view->Table()->model(), &QAbstractItemModel::dataChanged, [&] { ++refreshes; });
  std::string block;
  for (int i = 0; i < 5; ++i) block += "1\t2\t3\n";
  Copied(block.c_str());
  RefreshViews();
  refreshes = 0;
  Keys("Ctrl+V");
  EXPECT_EQ(refreshes, 1);
  Keys("Down Down Shift+Right");
  EXPECT_EQ(refreshes, 1) << "selecting changes nothing";
}

TEST_F(GridViewTest, the_mouse_selects_and_a_double_click_edits) {
  GridTable* table = view->Table();
  const auto place = [&](int row, int col) {
    return table->visualRect(table->model()->index(row, col)).center();
  };
  QWidget* cells = table->viewport();
  QTest::mousePress(cells, Qt::LeftButton, {}, place(1, 0));
  QTest::mouseMove(cells, place(3, 2));
  QMouseEvent drag(QEvent::MouseMove, place(3, 2), cells->mapToGlobal(place(3, 2)), Qt::NoButton,
                   Qt::LeftButton, {});
  QApplication::sendEvent(cells, &drag);
  QTest::mouseRelease(cells, Qt::LeftButton, {}, place(3, 2));
  EXPECT_EQ(Selection(), "2,1-4,3");
  QTest::mouseClick(cells, Qt::LeftButton, Qt::ShiftModifier, place(0, 1));
  EXPECT_EQ(Selection(), "2,1-1,2");
  QTest::mouseClick(table->horizontalHeader()->viewport(), Qt::LeftButton, {},
                    {table->horizontalHeader()->sectionViewportPosition(1) + 20, 5});
  EXPECT_EQ(Selection(), "1,2-5,2");
  QTest::mouseClick(cells, Qt::LeftButton, {}, place(2, 1));
  QTest::mouseDClick(cells, Qt::LeftButton, {}, place(2, 1));
  ASSERT_NE(Editor(), nullptr);
  Keys("6 Return");
  EXPECT_EQ(Body(), "//|6");
}

// --- On the grids of the example case

class CaseGridViewTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    host.files.push_back(CopyExample(folder));
    frmMain->mnuFileOpen.UserClick();
    host.messages.clear();
  }
  GridTable& Open(Grid& grid, int row, int col) {
    view = std::make_unique<GridView>(grid, &window);
    window.show();
    view->Table()->Choose({{row, col}, {row, col}});
    return *view->Table();
  }
  void TearDown() override {
    view.reset();
    ProgramTest::TearDown();
  }
  QWidget window;
  std::unique_ptr<GridView> view;
};

TEST_F(CaseGridViewTest, a_block_of_bad_counts_is_warned_of_once) {
  Grid& counts = frmInput->ORVFlexGrid(11);
  GridTable& table = Open(counts, 1, 1);
  QGuiApplication::clipboard()->setText(QStringLiteral("99\n3\n-1\n"));
  table.Paste();
  EXPECT_EQ(host.TakeTexts().size(), 1u);
  EXPECT_EQ(counts.TextMatrix(1, 1) + counts.TextMatrix(2, 1) + counts.TextMatrix(3, 1), "636");
  frmPin->frmNonParFishSel1.SetVisible(true);
  EXPECT_FALSE(UserMayEdit(frmPin->ORVFlexGrid1(4), {2, 4})) << "out of use now";
  EXPECT_TRUE(UserMayEdit(frmPin->ORVFlexGrid1(4), {2, 3}));
}

TEST_F(CaseGridViewTest, an_edit_of_one_survey_is_not_undone_in_another) {
  Grid& index = frmInput->ORVFlexGrid(16);
  GridTable& table = Open(index, 1, 1);
  const std::string before = index.TextMatrix(1, 1);
  table.ClearSelected();
  EXPECT_EQ(SurvYearFit(1, 1, SurvFYear(1) - NFYear + 1), "") << "stored like typing";
  table.Undo();
  EXPECT_EQ(index.TextMatrix(1, 1), before);
  table.ClearSelected();
  UserEvent([] { frmInput->cmbiSurv.UserSelect(1); });
  index.SetTextMatrix(1, 1, "");
  table.Undo();
  EXPECT_EQ(index.TextMatrix(1, 1), "");
}

TEST_F(CaseGridViewTest, condensing_ends_undo_and_the_buttons_of_the_frame_are_in_the_menu) {
  Grid& ages = frmInput->ORVFlexGrid(1);
  GridTable& table = Open(ages, 1, 1);
  table.Choose({{1, 1}, {1, ages.Cols() - 1}});
  table.ClearSelected();
  UserEvent([] { frmInput->cmdCondenseGrd(1).UserClick(); });
  ASSERT_EQ(ages.TextMatrix(1, 0), "1964");
  const std::string first = ages.TextMatrix(1, 3);
  table.Undo();
  EXPECT_EQ(ages.TextMatrix(1, 3), first);
  QContextMenuEvent click(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
  QApplication::sendEvent(table.viewport(), &click);
  const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QAction* expand = nullptr;
  for (QAction* action : menu->actions()) {
    if (action->text().contains(QStringLiteral("Expand"))) expand = action;
  }
  ASSERT_NE(expand, nullptr);
  expand->trigger();
  EXPECT_EQ(ages.TextMatrix(1, 0), "1963");
  EXPECT_EQ(table.model()->rowCount(), NYears);
  QApplication::activePopupWidget()->close();
}

}  // namespace
}  // namespace tarnvik
