#include "stock.h"

#include <limits>
#include <numeric>

#include "text_file.h"

namespace vpa {

namespace {

constexpr double kNoLimit = std::numeric_limits<double>::infinity();
constexpr int kMostAges = 100;  // what the estimation program takes

// A row or number for all years covers every year, and a column or number for all ages every age, whatever
// the head of the file says.
void CheckCover(const Matrix& matrix, const Stock& stock) {
  const auto refuse = [&](std::size_t line, const std::string& what, const Span& has, const Span& needs) {
    throw Fault(matrix.file, line,
                what + " " + Told(has) + " do not cover those of the catch numbers, " + Told(needs));
  };
  if (matrix.VariesByYear() && !matrix.years.Covers(stock.years))
    refuse(matrix.spans_line, "years", matrix.years, stock.years);
  if (matrix.VariesByAge() && !matrix.ages.Covers(stock.ages))
    refuse(matrix.spans_line + 1, "ages", matrix.ages, stock.ages);
}

Table TableOf(const Matrix& matrix, const Stock& stock) {
  CheckCover(matrix, stock);
  Table table(stock.Years(), std::vector<double>(stock.Ages()));
  for (int year = stock.years.first; year <= stock.years.last; ++year)
    for (int age = stock.ages.first; age <= stock.ages.last; ++age)
      table[stock.years.Place(year)][stock.ages.Place(age)] = matrix.At(year, age);
  return table;
}

Table ReadNeededTable(const IndexFile& index, StockFile which, const Stock& stock) {
  return TableOf(ReadMatrix(NeededFile(index, which), kNoLimit), stock);
}

// The catch numbers rule over the case: their years and ages are its own.
void ReadCatchNumbers(Stock& stock, const IndexFile& index) {
  const Matrix matrix = ReadMatrix(NeededFile(index, kCatchNumbers), kNoLimit);
  if (matrix.form != Form::kYearByAge)
    throw Fault(matrix.file, matrix.spans_line + 2,
                "catch numbers need a row a year and a column an age, form code 1");
  stock.years = matrix.years;
  stock.ages = matrix.ages;
  stock.age0_dropped = matrix.ages.first == 0;
  if (stock.age0_dropped) stock.ages.first = 1;
  if (stock.years.Count() < 2) throw Fault(matrix.file, matrix.spans_line, "a case needs two years or more");
  if (stock.ages.Count() < 2 || stock.ages.Count() > kMostAges)
    throw Fault(matrix.file, matrix.spans_line + 1,
                "a case needs 2 to " + std::to_string(kMostAges) + " ages (age 0 does not count)");
  stock.catch_numbers = TableOf(matrix, stock);
  double all = 0;
  for (const auto& year : stock.catch_numbers) all += Sum(year);
  if (!(all > 0)) throw Fault(matrix.file, "all catch numbers are 0");
}

void ReadCatchBiomass(Stock& stock, const IndexFile& index) {
  if (index.files[kCatchBiomass].path.empty()) {
    for (std::size_t y = 0; y < stock.Years(); ++y)
      stock.catch_biomass.push_back(std::inner_product(
          stock.catch_numbers[y].begin(), stock.catch_numbers[y].end(), stock.catch_weights[y].begin(), 0.0));
    return;
  }
  const Matrix matrix = ReadMatrix(NeededFile(index, kCatchBiomass), kNoLimit);
  if (matrix.VariesByAge() && matrix.ages.Count() > 1)
    throw Fault(matrix.file, matrix.spans_line + 2, "catch biomass needs one number a year, form code 5");
  if (matrix.VariesByYear() && !matrix.years.Covers(stock.years)) CheckCover(matrix, stock);
  for (int year = stock.years.first; year <= stock.years.last; ++year)
    stock.catch_biomass.push_back(matrix.At(year, matrix.ages.first));
}

void ReadNaturalMortality(Stock& stock, const IndexFile& index) {
  const std::string file = NeededFile(index, kNaturalMortality);
  const Table m = TableOf(ReadMatrix(file, kNoLimit), stock);
  for (std::size_t a = 0; a < stock.Ages(); ++a) {
    double sum = 0;
    for (const auto& year : m) sum += year[a];
    if (!(sum > 0))
      throw Fault(file, "natural mortality is 0 at age " +
                            std::to_string(stock.ages.first + static_cast<int>(a)) +
                            " in all years of the catch numbers");
    stock.mean_m.push_back(sum / static_cast<double>(m.size()));
  }
}

// The mean over ages, years and those of the two files that there are.
void ReadSpawningTime(Stock& stock, const IndexFile& index) {
  double sum = 0;
  double count = 0;
  for (StockFile which : {kFBeforeSpawning, kMBeforeSpawning}) {
    if (index.files[which].path.empty()) continue;
    for (const auto& year : TableOf(ReadMatrix(NeededFile(index, which), 1), stock)) {
      sum += Sum(year);
      count += static_cast<double>(year.size());
    }
  }
  stock.z_before_spawning = count > 0 ? sum / count : 0;
}

}  // namespace

Stock ReadStock(const IndexFile& index) {
  Stock stock;
  stock.title = index.title;
  ReadCatchNumbers(stock, index);
  stock.catch_weights = ReadNeededTable(index, kCatchWeights, stock);
  ReadCatchBiomass(stock, index);
  stock.stock_weights = ReadNeededTable(index, kStockWeights, stock);
  ReadNaturalMortality(stock, index);
  stock.maturity = ReadNeededTable(index, kMaturity, stock);
  ReadSpawningTime(stock, index);
  return stock;
}

double Sum(const std::vector<double>& values) { return std::accumulate(values.begin(), values.end(), 0.0); }

}  // namespace vpa
