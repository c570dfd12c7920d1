#include "objective.h"

#include "numbers.h"

#include <algorithm>

namespace model {

namespace {

constexpr double kSmallestSigma = 0.01;

double SigmaOf(double cv, const std::string& what, const Messages& messages) {
  const double sigma = std::sqrt(std::log1p(cv * cv));
  if (sigma >= kSmallestSigma) return sigma;
  messages.Warning("the coefficient of variation of " + what + " is " + General(cv) + "; 0.01 is used");
  return kSmallestSigma;
}

void AddVectors(std::vector<SelectivityVector>& vectors, Group group, const std::vector<int>& lengths) {
  int first = 0;
  for (const int length : lengths) {
    vectors.push_back({group, first, length});
    first += length;
  }
}

}  // namespace

Sigmas ComputeSigmas(const CaseData& data, const Messages& messages) {
  return {SigmaOf(data.cvRecruitment, "recruitment deviations", messages),
          SigmaOf(data.cvCatch, "catch biomass deviations", messages),
          SigmaOf(data.cvFishing, "fishing mortality deviations", messages)};
}

SampleSizes InputSampleSizes(const CaseData& data) {
  SampleSizes sizes;
  sizes.fishery = data.fishery.sampleSize;
  for (const Survey& survey : data.surveys) sizes.survey.push_back(survey.composition.sampleSize);
  return sizes;
}

std::vector<SelectivityVector> FisherySelectivityVectors(const CaseData& data,
                                                         const ParameterLayout& layout) {
  std::vector<SelectivityVector> vectors;
  if (data.AnnualFishery())
    AddVectors(vectors, gLogSelAnnual,
               std::vector<int>(static_cast<std::size_t>(data.nYears), layout.annualAges));
  else if (data.parametricFishery == 0)
    AddVectors(vectors, gLogSelFish, data.lastSelectivityAge);
  return vectors;
}

std::vector<SelectivityVector> EstimatedSelectivityVectors(const CaseData& data,
                                                           const ParameterLayout& layout) {
  std::vector<SelectivityVector> vectors = FisherySelectivityVectors(data, layout);
  std::vector<int> surveyLengths;
  for (const Survey& survey : data.surveys) surveyLengths.push_back(survey.lastSelectivityAge);
  AddVectors(vectors, gLogSelSurvey, surveyLengths);
  std::erase_if(vectors,
                [&layout](const SelectivityVector& v) { return !layout.groups[v.group].Estimated(); });
  return vectors;
}

}  // namespace model
