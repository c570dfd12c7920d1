#include "desktop/grids/grid_clipboard.h"

#include <gtest/gtest.h>

#include "platform/form.h"

namespace tarnvik {
namespace {

// The rows of a block joined for comparison: cells by "|", rows by "/".
std::string Joined(const TextBlock& block) {
  std::string text;
  for (const auto& row : block) {
    if (!text.empty()) text += '/';
    for (std::size_t i = 0; i < row.size(); ++i) text += (i > 0 ? "|" : "") + row[i];
  }
  return text;
}

TEST(ReadBlockTest, takes_what_spreadsheets_and_R_put_on_the_clipboard) {
  const struct {
    const char* name;
    const char* text;
    const char* block;
  } cases[] = {
      {"Excel ends every row", "1\t2\r\n3\t4\r\n", "1|2/3|4"},
      {"Calc leaves the last row open", "1\t2\n3\t4", "1|2/3|4"},
      {"old Mac line ends", "1\r2\r", "1/2"},
      {"empty cells and rows", "\t2\n\n3\t", "|2//3|"},
      {"one cell", "7", "7"},
      {"R quotes texts", "\"Age 1\"\t\"y\"\n0.5\tn\n", "Age 1|y/0.5|n"},
      {"quoted line ends and tabs become blanks", "\"a\r\nb\tc\"\t2", "a b c|2"},
      {"doubled quotes", "\"say \"\"yes\"\"\"\t1", "say \"yes\"|1"},
      {"a quote that is not closed", "\"a\t1\n2", "\"a|1/2"},
      {"a quote within a text", "5\" net\t1", "5\" net|1"},
      {"nothing", "", ""},
  };
  for (const auto& row : cases) EXPECT_EQ(Joined(ReadBlock(row.text)), row.block) << row.name;
}

TEST(NumberCommaTest, tells_numbers_with_a_comma_from_texts) {
  for (const char* text : {"1,5", "-0,25", "1.234,5", "1,234.5", " 2,5e-3 ", ",5", "1 000,5"}) {
    EXPECT_TRUE(HasNumberComma(text)) << text;
  }
  for (const char* text : {"1.5", "", ",", "Age 1, Age 2", "y,n", "1e5", "cod, 3"}) {
    EXPECT_FALSE(HasNumberComma(text)) << text;
  }
}

// Years 1990 to 1993 down, Age 1 to Age 4 across; Age 3 hidden, Age 4 derived, 1992/Age 1 out of use.
struct SmallGrid : Form {
  SmallGrid() : Form("frmSmall", "") {
    table.Resize(5, 5);
    table.Editable = true;
    table.ReadOnlyCol = 4;
    for (int i = 1; i < 5; ++i) {
      table.SetTextMatrix(i, 0, std::to_string(1989 + i));
      table.SetTextMatrix(0, i, "Age " + std::to_string(i));
      table.SetTextMatrix(i, 4, "d" + std::to_string(i));
    }
    table.SetColWidth(3, 0);
    table.SetCellColors(3, 1, kButtonFace, kButtonFace);
  }
  Grid table{this, "table"};
};

std::string Texts(const std::vector<CellText>& texts) {
  std::string text;
  for (const CellText& cell : texts) {
    text += std::to_string(cell.at.row) + "," + std::to_string(cell.at.col) + "=" + cell.text + " ";
  }
  return text;
}

TEST(PlanPasteTest, puts_a_block_on_the_shown_cells_that_may_be_edited) {
  const struct {
    const char* name;
    CellRange selection;
    const char* text;
    const char* texts;
    int refused;
  } cases[] = {
      {"a block from the upper left", {{1, 1}, {1, 1}}, "1\t2\n3\t4\n", "1,1=1 1,2=2 2,1=3 2,2=4 ", 0},
      {"a selection made upwards", {{2, 2}, {1, 1}}, "1\n", "1,1=1 1,2=1 2,1=1 2,2=1 ", 0},
      {"hidden columns are passed over", {{1, 2}, {1, 2}}, "1\t2", "1,2=1 ", 1},
      {"rows and columns beyond the table", {{4, 2}, {4, 2}}, "1\td4\t3\n4\t5\t\n", "4,2=1 ", 3},
      {"cells out of use", {{2, 1}, {2, 1}}, "1\n2\n3", "2,1=1 4,1=3 ", 1},
      {"one value fills a selection", {{1, 1}, {2, 2}}, "9", "1,1=9 1,2=9 2,1=9 2,2=9 ", 0},
      {"a row is repeated downwards", {{1, 1}, {2, 2}}, "1\t2", "1,1=1 1,2=2 2,1=1 2,2=2 ", 0},
      {"a selection that does not fit counts as its corner", {{1, 1}, {3, 2}}, "1\n2\n", "1,1=1 2,1=2 ", 0},
      {"short rows change nothing at their end", {{1, 1}, {1, 1}}, "1\t2\n3", "1,1=1 1,2=2 2,1=3 ", 0},
  };
  for (const auto& row : cases) {
    const SmallGrid form;
    const PastePlan plan = PlanPaste(form.table, row.selection, ReadBlock(row.text));
    EXPECT_EQ(Texts(plan.texts), row.texts) << row.name;
    EXPECT_EQ(plan.refused, row.refused) << row.name;
    EXPECT_EQ(plan.comma, "") << row.name;
  }
}

TEST(PlanPasteTest, names_the_first_number_with_a_comma) {
  const SmallGrid form;
  const PastePlan inside = PlanPaste(form.table, {{1, 1}, {1, 1}}, ReadBlock("1\t2\n3\t4,5\n6,5\t7"));
  EXPECT_EQ(inside.comma + " " + inside.comma_cell, "4,5 1991, Age 2");
  const PastePlan outside = PlanPaste(form.table, {{4, 1}, {4, 1}}, ReadBlock("1\n2,5"));
  EXPECT_EQ(outside.comma + outside.comma_cell, "2,5");
}

TEST(BlockTextTest, gives_back_what_it_takes) {
  SmallGrid form;
  form.table.SetTextMatrix(1, 1, "\"net\"");
  form.table.SetTextMatrix(1, 2, "a\tb");
  EXPECT_EQ(BlockText(form.table, {{1, 1}, {2, 4}}), "\"\"\"net\"\"\"\t\"a\tb\"\td1\r\n\t\td2\r\n");
  EXPECT_EQ(Joined(ReadBlock(BlockText(form.table, {{1, 1}, {2, 4}}))), "\"net\"|a b|d1/||d2");
  EXPECT_EQ(BlockText(form.table, {{1, 4}, {1, 4}}), "d1") << "a single cell has no line end";
}

}  // namespace
}  // namespace tarnvik
