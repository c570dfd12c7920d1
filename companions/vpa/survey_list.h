// The two lists through which the user says which indices make up which survey: ours of all indices there
// are, and the one that comes back with the surveys made of them.
#pragma once

#include <string>
#include <vector>

#include "lowestoft_files.h"

namespace vpa {

// One age of one fleet. Its number is its place among all, counted from 1, fleet after fleet and age after
// age.
struct Index {
  const Fleet* fleet = nullptr;
  int age = 0;
};

std::vector<Index> ListIndices(const std::vector<Fleet>& fleets);

// The text of vpa_survey_list.txt: the count, then an index a line: number, name, first age, last age, timing
// (0 for January 1, 1 for the mean of the year), unit (0 for numbers). Or one line that says that there is
// none.
std::string SurveyListText(const std::vector<Index>& indices);

// A survey as asked for.
struct SurveyGroup {
  std::string title;
  std::vector<std::size_t> indices;  // places in the list of indices, from 0
  std::size_t line = 0;              // where the list names them
};

// Reads tarnvik_survey_list.txt: the number of surveys, then for each a line with its title, one with the
// number of its indices, one with their numbers. A Fault for unknown and repeated indices.
std::vector<SurveyGroup> ReadSurveyGroups(const std::string& file, std::size_t index_count);

}  // namespace vpa
