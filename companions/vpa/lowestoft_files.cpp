#include "lowestoft_files.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "numbers.h"
#include "text_file.h"

namespace vpa {

namespace fs = std::filesystem;

std::string Told(const Span& span) { return std::to_string(span.first) + "-" + std::to_string(span.last); }

// ---- values and spans ----

namespace {

// Far beyond any stock; what is larger would only overflow somewhere later.
constexpr double kLargestValue = 1e15;
constexpr int kOldestAge = 1000;

double ReadValue(const TextFile& file, const Line& line, std::string_view word) {
  const std::optional<double> value = ReadNumber(word);
  if (!value) throw Fault(file.name, line.number, NotANumber(word));
  if (std::abs(*value) > kLargestValue)
    throw Fault(file.name, line.number, Quotable(word) + " is too large for a number of fish or a weight");
  return *value;
}

// Reads "1963 2014". What stands behind the two numbers is no matter.
Span ReadSpan(TextFile& file, const std::string& wanted, Span allowed, const std::string& cause) {
  const Line line = WantLine(file, wanted);
  const auto words = Words(line.text);
  if (words.size() < 2) throw Fault(file.name, line.number, wanted + ": one number, two are wanted");
  int ends[2];
  for (std::size_t i = 0; i < 2; ++i) {
    if (!ReadNumber(words[i])) throw Fault(file.name, line.number, wanted + ": " + NotANumber(words[i]));
    const std::optional<int> end = ReadWhole(words[i]);
    if (!end || !allowed.Holds(*end))
      throw Fault(file.name, line.number,
                  wanted + ": " + Quotable(words[i]) + " is not a whole number from " +
                      std::to_string(allowed.first) + " to " + std::to_string(allowed.last) + cause);
    ends[i] = *end;
  }
  if (ends[0] > ends[1])
    throw Fault(file.name, line.number,
                wanted + ": the first, " + std::to_string(ends[0]) + ", is after the last, " +
                    std::to_string(ends[1]));
  return {ends[0], ends[1]};
}

Span ReadYears(TextFile& file, const std::string& cause) {
  return ReadSpan(file, "first and last year", {1000, 3000}, cause);
}

Span ReadAges(TextFile& file) { return ReadSpan(file, "first and last age", {0, kOldestAge}, ""); }

std::string Counted(std::size_t count, const char* one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

}  // namespace

// ---- the index file ----

namespace {

// Index files written on other systems: the folders in a name may be parted by "\", and letters may be of
// another case than the file's. One file must match, and only one.
fs::path FindFile(const fs::path& folder, std::string name) {
  std::error_code ignored;
  if (fs::path::preferred_separator == '/' && !fs::exists(folder / name, ignored))
    std::replace(name.begin(), name.end(), '\\', '/');
  const fs::path path = folder / name;
  if (fs::exists(path, ignored)) return path;
  const auto lower = [](std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
  };
  std::vector<fs::path> alike;
  const fs::path beside = path.has_parent_path() ? path.parent_path() : ".";
  for (fs::directory_iterator it(beside, ignored), end; !ignored && it != end; it.increment(ignored))
    if (lower(it->path().filename().string()) == lower(path.filename().string()))
      alike.push_back(path.parent_path() / it->path().filename());
  return alike.size() == 1 ? alike.front() : path;
}

}  // namespace

const char* NameOf(StockFile which) {
  static constexpr std::array<const char*, kStockFiles> names = {"catch biomass",
                                                                 "catch numbers at age",
                                                                 "catch weights at age",
                                                                 "stock weights at age",
                                                                 "natural mortality",
                                                                 "proportion mature",
                                                                 "proportion of F before spawning",
                                                                 "proportion of M before spawning",
                                                                 "F at the oldest age",
                                                                 "F at age in the last year",
                                                                 "tuning data"};
  return names[which];
}

IndexFile ReadIndexFile(const std::string& file) {
  TextFile text = OpenTextFile(file);
  IndexFile index;
  index.name = file;
  index.title = WantLine(text, "the title of the stock").text;
  const Line number = WantLine(text, "a number");
  if (!ReadNumber(Words(number.text)[0]))
    throw Fault(file, number.number,
                "a number is wanted before the file names, not '" + Quotable(number.text) +
                    "'; is the title missing, or is this not the index file of a stock?");
  const fs::path folder = fs::path(file).parent_path();
  for (int which = 0; which < kStockFiles; ++which) {
    const Line name =
        WantLine(text, "the name of the file with " + std::string(NameOf(static_cast<StockFile>(which))) +
                           " (" + std::to_string(which + 1) + " of 11, '-' for none)");
    IndexFile::Entry& entry = index.files[static_cast<std::size_t>(which)];
    entry.line = name.number;
    if (name.text != "-") entry.path = FindFile(folder, std::string(name.text)).string();
  }
  return index;
}

std::string NeededFile(const IndexFile& index, StockFile which) {
  const IndexFile::Entry& entry = index.files[which];
  if (entry.path.empty())
    throw Fault(index.name, entry.line,
                std::string("a file with ") + NameOf(which) + " is needed, '-' will not do");
  std::error_code ignored;
  if (!fs::exists(entry.path, ignored))
    throw Fault(index.name, entry.line,
                std::string("file with ") + NameOf(which) + " not found: " + entry.path +
                    "; is the name right, and is this the index file of a stock?");
  return entry.path;
}

// ---- matrices ----

namespace {

Form ReadForm(TextFile& file) {
  const Line line = WantLine(file, "the form code");
  const std::string_view word = Words(line.text)[0];
  const std::optional<int> form = ReadWhole(word);
  if (form != 1 && form != 2 && form != 3 && form != 5)
    throw Fault(file.name, line.number, "form code: '" + Quotable(word) + "' is none of 1, 2, 3, 5");
  return static_cast<Form>(*form);
}

void ReadRow(Matrix& matrix, const TextFile& file, const Line& line, std::size_t columns, double largest) {
  const auto words = Words(line.text);
  for (std::size_t i = 0; i < std::min(columns, words.size()); ++i) {
    const double value = ReadValue(file, line, words[i]);
    if (value < 0) throw Fault(file.name, line.number, Quotable(words[i]) + " is below 0");
    if (value > largest)
      throw Fault(file.name, line.number, Quotable(words[i]) + " is above " + Exact(largest));
    matrix.values.push_back(value);
  }
  if (words.size() < columns)
    throw Fault(file.name, line.number,
                Counted(words.size(), "value") + " for " + Counted(columns, "age") +
                    (matrix.VariesByAge() ? " (" + Told(matrix.ages) + ")" : ""));
}

}  // namespace

double Matrix::At(int year, int age) const {
  const std::size_t columns = VariesByAge() ? static_cast<std::size_t>(ages.Count()) : 1;
  const std::size_t row = VariesByYear() ? years.Place(year) : 0;
  return values[row * columns + (VariesByAge() ? ages.Place(age) : 0)];
}

Matrix ReadMatrix(const std::string& file, double largest) {
  TextFile text = OpenTextFile(file);
  Matrix matrix;
  matrix.file = file;
  WantLine(text, "the title");
  WantLine(text, "two codes");
  matrix.years = ReadYears(text, "; is a line missing above, or does the title begin with #?");
  matrix.spans_line = text.line;
  matrix.ages = ReadAges(text);
  matrix.form = ReadForm(text);
  const int rows = matrix.VariesByYear() ? matrix.years.Count() : 1;
  const std::size_t columns = matrix.VariesByAge() ? static_cast<std::size_t>(matrix.ages.Count()) : 1;
  for (int row = 0; row < rows; ++row) {
    const std::string of = matrix.VariesByYear() ? "the row of " + std::to_string(matrix.years.first + row)
                                                 : std::string("a row of numbers");
    ReadRow(matrix, text, WantLine(text, of), columns, largest);
  }
  // A row too many would mean that every row belongs to another year than its place says.
  if (const std::optional<Line> more = NextLine(text))
    throw Fault(file, more->number,
                "more rows than the " +
                    (matrix.VariesByYear() ? "years " + Told(matrix.years) : "form code") +
                    " of the head allow" + (rows == 1 ? "; should the form code be 1?" : ""));
  return matrix;
}

// ---- tuning data ----

namespace {

void ReadPartOfYear(Fleet& fleet, TextFile& file) {
  const Line line = WantLine(file, "'1 1 alpha beta' of fleet " + Quotable(fleet.name));
  const auto words = Words(line.text);
  if (words.size() < 4)
    throw Fault(file.name, line.number, Counted(words.size(), "value") + ", four are wanted: 1 1 alpha beta");
  for (std::size_t i : {2, 3}) {
    const double part = ReadValue(file, line, words[i]);
    if (part < 0 || part > 1)
      throw Fault(file.name, line.number,
                  std::string(i == 2 ? "alpha" : "beta") + ": " + Quotable(words[i]) + " is not from 0 to 1");
    (i == 2 ? fleet.alpha : fleet.beta) = part;
  }
}

bool IsMissing(std::string_view word) { return word == "NA" || word == "na"; }

// A negative number or NA: missing.
std::optional<double> ReadTuningValue(const TextFile& file, const Line& line, std::string_view word) {
  if (IsMissing(word)) return std::nullopt;
  const double value = ReadValue(file, line, word);
  return value < 0 ? std::nullopt : std::optional(value);
}

// A year without effort has no index at any age.
void ReadTuningRow(Fleet& fleet, const TextFile& file, const Line& line) {
  const auto words = Words(line.text);
  const std::size_t wanted = static_cast<std::size_t>(fleet.ages.Count()) + 1;
  if (!IsMissing(words[0]) && !ReadNumber(words[0]) && std::isalpha(static_cast<unsigned char>(words[0][0])))
    throw Fault(
        file.name, line.number,
        NotANumber(words[0]) + "; fewer rows than the years " + Told(fleet.years) + " of the fleet above?");
  if (words.size() < wanted)
    throw Fault(file.name, line.number,
                Counted(words.size(), "value") + ", " + std::to_string(wanted) +
                    " are wanted: effort and ages " + Told(fleet.ages));
  const std::optional<double> effort = ReadTuningValue(file, line, words[0]);
  for (std::size_t i = 1; i < wanted; ++i) {
    std::optional<double> value = ReadTuningValue(file, line, words[i]);
    if (!effort || *effort == 0)
      value.reset();
    else if (value)
      *value /= *effort;
    if (value && !(*value <= kLargestValue))
      throw Fault(file.name, line.number,
                  Quotable(words[i]) + " / " + Quotable(words[0]) + " is too large for an index");
    fleet.values.push_back(value);
  }
}

bool IsRowOfNumbers(std::string_view text) {
  const auto words = Words(text);
  return words.size() > 1 &&
         std::all_of(words.begin(), words.end(), [](auto word) { return ReadNumber(word); });
}

}  // namespace

std::optional<double> Fleet::At(int year, int age) const {
  if (!years.Holds(year) || !ages.Holds(age)) return std::nullopt;
  return values[years.Place(year) * static_cast<std::size_t>(ages.Count()) + ages.Place(age)];
}

std::vector<Fleet> ReadTuningFile(const std::string& file) {
  TextFile text = OpenTextFile(file);
  WantLine(text, "the title");
  const Line count = WantLine(text, "100 + the number of fleets");
  if (!ReadNumber(Words(count.text)[0]))
    throw Fault(
        file, count.number,
        "100 + the number of fleets is wanted, not '" + Quotable(count.text) + "'; is the title missing?");
  // The count is often wrong, so fleets are read until the file ends.
  std::vector<Fleet> fleets;
  while (const std::optional<Line> name = NextLine(text)) {
    if (IsRowOfNumbers(name->text))
      throw Fault(file, name->number,
                  "the name of a fleet is wanted, not a row of numbers" +
                      (fleets.empty() ? std::string()
                                      : "; more rows than the years " + Told(fleets.back().years) +
                                            " of the fleet above?"));
    Fleet fleet;
    fleet.name = name->text;
    fleet.years = ReadYears(text, "");
    ReadPartOfYear(fleet, text);
    fleet.ages = ReadAges(text);
    for (int year = fleet.years.first; year <= fleet.years.last; ++year)
      ReadTuningRow(
          fleet, text,
          WantLine(text, "the row of " + std::to_string(year) + " of fleet " + Quotable(fleet.name)));
    fleets.push_back(std::move(fleet));
  }
  return fleets;
}

}  // namespace vpa
