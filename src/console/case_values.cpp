#include "console/case_values.h"

#include <vector>

#include "console/json_text.h"
#include "console/outcome.h"
#include "console/words.h"
#include "core/globals.h"
#include "core/state_names.h"
#include "core/text.h"
#include "modelrun/modeloutput.h"
#include "platform/host.h"

namespace tarnvik {

namespace {

std::string Json(std::int16_t value) { return JsonNumber(value); }
std::string Json(const std::string& text) { return JsonText(text); }
std::string Json(char flag) { return JsonNumber(Flag(flag != 0)); }

std::string PointerNumber() {
  switch (MousePointer()) {
    case Pointer::Default:
      return JsonNumber(0);
    case Pointer::Hourglass:
      return JsonNumber(11);
    case Pointer::IndexInHand:
      return JsonNumber(5);
  }
  return JsonNumber(0);
}

// Elements of arrays that check their own bounds.
template <const auto& kArray>
std::string Element(const int* at) {
  return Json(kArray(at[0]));
}
template <const auto& kTable>
std::string Cell(const int* at) {
  return Json(kTable(at[0], at[1], at[2]));
}

std::string SeriesSelection(const int* at) {
  if (at[0] < 1 || at[0] > 5) throw RunTimeError(kErrSubscript);
  return Json(PlotSeriesSel[at[0]]);
}

std::string OutputName(const int* at) {
  if (at[0] < 1 || at[0] > kModelOutputCount) throw RunTimeError(kErrSubscript);
  return Json(ModelOutputNames[at[0] - 1]);
}

// What is no single word or text of the case state.
struct SpecialValue {
  const char* name;
  std::size_t indices;
  std::string (*value)(const int* at);
};

const SpecialValue kSpecialValues[] = {
    {"SurvFYear", 1, Element<SurvFYear>},
    {"SurvXYear", 1, Element<SurvXYear>},
    {"SurvNYears", 1, Element<SurvNYears>},
    {"SurvTitle", 1, Element<SurvTitle>},
    {"SurvParametric", 1, Element<SurvParametric>},
    {"SurvYearFit", 3, Cell<SurvYearFit>},
    {"SurvAgeFit", 3, Cell<SurvAgeFit>},
    {"PlotSeriesSel", 1, SeriesSelection},
    {"SurveyIndexYears", 3, Cell<SurveyIndexYears>},
    {"FishAgeYears", 1, Element<FishAgeYears>},
    {"ModelOutputNames", 1, OutputName},
    {"MousePointer", 0, [](const int*) { return PointerNumber(); }},
    {"TokenPos", 0, [](const int*) { return JsonNumber(TokenPos); }},
};

std::string SpecialValueOf(const SpecialValue& special, const IndexedName& asked, std::string_view word) {
  if (asked.at.size() != special.indices) {
    StopWithError(std::string(special.name) + " takes " + std::to_string(special.indices) +
                  (special.indices == 1 ? " index" : " indices"));
  }
  try {
    return special.value(asked.at.data());
  } catch (const RunTimeError&) {
    StopWithError("there is no element " + std::string(word));
  }
}

}  // namespace

std::string CaseValue(std::string_view word) {
  for (const StateWord& known : StateWords()) {
    if (word == known.name) return Json(*known.value);
  }
  for (const StateText& known : StateTexts()) {
    if (word == known.name) return Json(*known.value);
  }
  const auto asked = ReadIndexedName(word);
  for (const SpecialValue& special : kSpecialValues) {
    if (asked && asked->name == special.name) return SpecialValueOf(special, *asked, word);
  }
  StopWithError("no state " + std::string(word));
}

}  // namespace tarnvik
