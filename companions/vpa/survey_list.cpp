#include "survey_list.h"

#include "numbers.h"
#include "text_file.h"

namespace vpa {

namespace {

constexpr int kMostSurveys = 100;  // what the estimation program takes

// The reader of the list parts it at blanks, and cuts the colon that it sets behind the number.
std::string OneWord(std::string text) {
  for (char& c : text)
    if (c == ' ' || c == '\t' || c == ':') c = '_';
  return text;
}

// Titles are lines as they stand: one may be empty, and one may hold a "#".
Line WantRawLine(TextFile& file, const std::string& wanted) {
  const std::optional<Line> line = NextRawLine(file);
  if (!line) throw Fault(file.name, file.line + 1, "the file ends where " + wanted + " should follow");
  return *line;
}

int ReadCount(TextFile& file, const std::string& wanted, int most) {
  const Line line = WantRawLine(file, wanted);
  const std::optional<int> count = ReadWhole(Trimmed(line.text));
  if (!count || *count < 1 || *count > most)
    throw Fault(
        file.name, line.number,
        wanted + ": '" + Quotable(line.text) + "' is not a whole number from 1 to " + std::to_string(most));
  return *count;
}

// In the data file titles stand in a list between "(" and ")", parted by commas.
std::string ReadTitle(TextFile& file, int survey) {
  std::string title(Trimmed(WantRawLine(file, "the title of survey " + std::to_string(survey)).text));
  for (char& c : title) {
    if (c == ',') c = ';';
    if (c == '(') c = '[';
    if (c == ')') c = ']';
    if (static_cast<unsigned char>(c) < 0x20) c = ' ';
  }
  return title.empty() ? "Survey " + std::to_string(survey) : title;
}

}  // namespace

std::vector<Index> ListIndices(const std::vector<Fleet>& fleets) {
  std::vector<Index> indices;
  for (const Fleet& fleet : fleets)
    for (int age = fleet.ages.first; age <= fleet.ages.last; ++age) indices.push_back({&fleet, age});
  return indices;
}

std::string SurveyListText(const std::vector<Index>& indices) {
  if (indices.empty()) return "*** Index Data is Unavailable ***\r\n";
  std::string text = std::to_string(indices.size()) + "\r\n";
  std::size_t number = 0;
  for (const Index& index : indices) {
    const std::string age = std::to_string(index.age);
    const bool january_first = index.fleet->alpha == 0 && index.fleet->beta == 0;
    text += std::to_string(++number) + " " + OneWord(index.fleet->name) + "_age" + age + " " + age + " " +
            age + (january_first ? " 0" : " 1") + " 0\r\n";
  }
  return text;
}

std::vector<SurveyGroup> ReadSurveyGroups(const std::string& file, std::size_t index_count) {
  TextFile text = OpenTextFile(file);
  std::vector<SurveyGroup> groups;
  std::vector<bool> taken(index_count);
  const int known = static_cast<int>(index_count);
  const int surveys = ReadCount(text, "the number of surveys", kMostSurveys);
  for (int survey = 1; survey <= surveys; ++survey) {
    SurveyGroup group;
    group.title = ReadTitle(text, survey);
    const std::string of = " of survey " + std::to_string(survey);
    const int count = ReadCount(text, "the number of indices" + of, known);
    const Line line = WantRawLine(text, "the indices" + of);
    group.line = line.number;
    const auto words = Words(line.text);
    if (words.size() != static_cast<std::size_t>(count))
      throw Fault(
          file, line.number,
          std::to_string(words.size()) + " index numbers, the line above says " + std::to_string(count));
    for (const std::string_view word : words) {
      const std::optional<int> number = ReadWhole(word);
      if (!number || *number < 1 || *number > known)
        throw Fault(
            file, line.number,
            "unknown index '" + Quotable(word) + "'; the tuning data have 1 to " + std::to_string(known));
      const std::size_t place = static_cast<std::size_t>(*number - 1);
      if (taken[place]) throw Fault(file, line.number, "index " + Quotable(word) + " is named twice");
      taken[place] = true;
      group.indices.push_back(place);
    }
    groups.push_back(std::move(group));
  }
  return groups;
}

}  // namespace vpa
