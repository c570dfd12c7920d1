// The three kinds of file of the Lowestoft format: the index file that names the others, matrices by year and
// age, and the tuning file with the fleets. What is read here is what the files say; what a case makes of it
// is in stock.h and surveys.h. Every procedure raises a Fault for what it cannot read.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vpa {

// A span of years or ages, both ends included.
struct Span {
  int first = 0;
  int last = 0;

  int Count() const { return last - first + 1; }
  bool Covers(const Span& other) const { return first <= other.first && other.last <= last; }
  bool Holds(int one) const { return first <= one && one <= last; }
  std::size_t Place(int one) const { return static_cast<std::size_t>(one - first); }
};

std::string Told(const Span& span);  // "1963-2014"

// ---- the index file ----

// The files of a stock, in the order in which the index file names them.
enum StockFile {
  kCatchBiomass,
  kCatchNumbers,
  kCatchWeights,
  kStockWeights,
  kNaturalMortality,
  kMaturity,
  kFBeforeSpawning,
  kMBeforeSpawning,
  kOldestAgeF,
  kLastYearF,
  kTuning,
  kStockFiles  // how many there are
};

const char* NameOf(StockFile which);  // "catch numbers at age"

struct IndexFile {
  struct Entry {
    std::string path;      // with the index file's folder in front; "" for "-", a file that there is none of
    std::size_t line = 0;  // where the index file names it
  };
  std::string name;   // as on the command line
  std::string title;  // of the stock
  std::array<Entry, kStockFiles> files;
};

IndexFile ReadIndexFile(const std::string& file);

// The path of a file that must be there; a Fault when the index file has "-" in its place, or names a file
// that does not exist.
std::string NeededFile(const IndexFile& index, StockFile which);

// ---- matrices ----

// What one number of a matrix file stands for.
enum class Form {
  kYearByAge = 1,  // one row a year
  kOneRow = 2,     // one row for all years
  kOneNumber = 3,  // one number for all
  kOneColumn = 5,  // one number a year, for all ages
};

struct Matrix {
  std::string file;
  std::size_t spans_line = 0;  // where the first and last year stand
  Span years;
  Span ages;
  Form form = Form::kYearByAge;
  std::vector<double> values;  // row after row, as many as the form has

  bool VariesByYear() const { return form == Form::kYearByAge || form == Form::kOneColumn; }
  bool VariesByAge() const { return form == Form::kYearByAge || form == Form::kOneRow; }
  double At(int year, int age) const;  // of a year and an age that the file covers
};

// Reads a matrix of numbers from 0 to `largest`.
Matrix ReadMatrix(const std::string& file, double largest);

// ---- tuning data ----

struct Fleet {
  std::string name;
  Span years;
  Span ages;
  double alpha = 0;  // the part of the year in which it fishes
  double beta = 0;
  std::vector<std::optional<double>> values;  // value / effort, year after year; nothing: missing

  std::optional<double> At(int year, int age) const;  // nothing for other years and ages
};

std::vector<Fleet> ReadTuningFile(const std::string& file);

}  // namespace vpa
