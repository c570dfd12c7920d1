#include "console/questions.h"

#include "console/case_values.h"
#include "console/chart_model.h"
#include "console/properties.h"
#include "console/targets.h"

namespace tarnvik {

Outcome AskGet(ConsoleHost&, const Words& words) {
  const Control& control = LookUp(words[1]);
  return Value(words.size() == 2 ? ControlValue(control) : PropertyValue(control, words[2]));
}

Outcome AskCell(ConsoleHost&, const Words& words) {
  const int row = NumberWord(words[2]);
  const int col = NumberWord(words[3]);
  const Grid& grid = LookUp<Grid>(words[1]);
  if (row < 0 || row >= grid.Rows() || col < 0 || col >= grid.Cols()) {
    StopWithError(ControlName(grid) + " has no cell " + words[2] + "," + words[3]);
  }
  return Value(JsonText(grid.TextMatrix(row, col)));
}

Outcome AskGrid(ConsoleHost&, const Words& words) {
  const Grid& grid = LookUp<Grid>(words[1]);
  return Value(JsonArray(0, grid.Rows() - 1, [&](int row) {
    return JsonArray(0, grid.Cols() - 1, [&](int col) { return JsonText(grid.TextMatrix(row, col)); });
  }));
}

Outcome AskState(ConsoleHost&, const Words& words) { return Value(CaseValue(words[1])); }

Outcome AskDump(ConsoleHost&, const Words& words) {
  std::string json;
  for (const Control* control : LoadedForm(words[1]).Record()->Controls()) {
    json += json.empty() ? "{" : ",";
    json += JsonText(control->FullName()) + ":" + PropertiesOf(*control);
  }
  return Value(json.empty() ? "{}" : json + "}");
}

Outcome AskForms(ConsoleHost&, const Words&) {
  const auto& forms = LoadedForms();
  return Value(JsonArray(0, static_cast<int>(forms.size()) - 1,
                         [&](int i) { return JsonText(forms[static_cast<std::size_t>(i)]->Name()); }));
}

Outcome AskChart(ConsoleHost&, const Words& words) { return Value(ChartModel(LookUp<Chart>(words[1]))); }

Outcome AskClipboard(ConsoleHost& host, const Words&) { return Value(JsonText(host.clipboard)); }

}  // namespace tarnvik
