#include "surveys.h"

#include <algorithm>

#include "text_file.h"

namespace vpa {

namespace {

std::string Named(const Index& index, std::size_t place) {
  return "index " + std::to_string(place + 1) + " (age " + std::to_string(index.age) + " of " +
         Quotable(index.fleet->name) + ")";
}

std::vector<Index> IndicesOf(const SurveyGroup& group, const std::vector<Index>& all, const Stock& stock,
                             const std::string& list_file, std::vector<std::string>& notes) {
  std::vector<Index> used;
  for (const std::size_t place : group.indices) {
    const Index& index = all[place];
    if (stock.ages.Holds(index.age))
      used.push_back(index);
    else if (index.age == 0 && stock.age0_dropped)
      notes.push_back(Named(index, place) + " is left out of survey " + Quotable(group.title));
    else
      throw Fault(list_file, group.line,
                  Named(index, place) + " is not of the ages of the catch numbers, " + Told(stock.ages));
  }
  if (used.empty())
    throw Fault(list_file, group.line, "survey " + Quotable(group.title) + " has no index of age 1 or older");
  return used;
}

bool HasAll(const std::vector<Index>& indices, int year) {
  for (const Index& index : indices)
    if (!index.fleet->At(year, index.age)) return false;
  return true;
}

Span YearsWithAll(const std::vector<Index>& indices, const Stock& stock) {
  Span years = stock.years;
  while (years.first <= years.last && !HasAll(indices, years.first)) ++years.first;
  while (years.first <= years.last && !HasAll(indices, years.last)) --years.last;
  return years;
}

// A year that lacks an index says nothing about the sum of all. One in which all are 0 has no shares.
void AddYear(Survey& survey, const std::vector<Index>& indices, const Stock& stock, int year) {
  std::vector<double> values(stock.Ages());
  if (HasAll(indices, year))
    for (const Index& index : indices)
      values[stock.ages.Place(index.age)] += *index.fleet->At(year, index.age);
  const double sum = Sum(values);
  if (sum > 0)
    for (double& value : values) value /= sum;
  survey.fitted.push_back(sum > 0);
  survey.index.push_back(sum);
  survey.shares.push_back(values);
}

Survey MakeSurvey(const SurveyGroup& group, const std::vector<Index>& indices, const Stock& stock,
                  const std::string& list_file) {
  Survey survey;
  survey.title = group.title;
  survey.has_age.resize(stock.Ages());
  for (const Index& index : indices) {
    survey.has_age[stock.ages.Place(index.age)] = true;
    survey.z_before += (index.fleet->alpha + index.fleet->beta) / 2 / static_cast<double>(indices.size());
  }
  survey.years = YearsWithAll(indices, stock);
  if (survey.years.Count() < 1)
    throw Fault(list_file, group.line,
                "survey " + Quotable(survey.title) + ": in no year of " + Told(stock.years) +
                    " have all its indices values");
  for (int year = survey.years.first; year <= survey.years.last; ++year)
    AddYear(survey, indices, stock, year);
  if (std::find(survey.fitted.begin(), survey.fitted.end(), true) == survey.fitted.end())
    throw Fault(list_file, group.line, "survey " + Quotable(survey.title) + " is 0 in all years");
  return survey;
}

}  // namespace

std::vector<Survey> MakeSurveys(const std::string& list_file, const std::vector<Fleet>& fleets,
                                const Stock& stock, std::vector<std::string>& notes) {
  const std::vector<Index> all = ListIndices(fleets);
  std::vector<Survey> surveys;
  for (const SurveyGroup& group : ReadSurveyGroups(list_file, all.size()))
    surveys.push_back(MakeSurvey(group, IndicesOf(group, all, stock, list_file, notes), stock, list_file));
  return surveys;
}

}  // namespace vpa
