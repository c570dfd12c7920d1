// The plot of the likelihood components: a bar for each, the first at the top.
#include <string>
#include <utility>

#include "core/globals.h"
#include "plots/drawing.h"
#include "plots/output_drawings.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"

namespace tarnvik {

namespace {

struct Component {
  std::string name;
  std::string text;
};

using Components = std::vector<Component>;

// In the order from top to bottom. A component without a value is a gap.
Components ComponentsOfResults() {
  const OutputDataForm& results = *frmOutputData;
  const auto value = [&results](int index) { return results.lblSumm(index).Caption(); };
  // The kind of index behind the word "Survey".
  const std::string index_kind = results.Label8(kLabelLikelihoodIndex).Caption().substr(6);
  Components components = {
      {"Recruitment Dev.", value(1)},
      {"Fishery Age Comp.", value(2)},
      {"Fishery Selectivity", value(3)},
      {"Catch Biomass", value(4)},
      {results.SSTab1.TabCaption(kPageCpue), value(6)},
      {"Fishing Mortality Dev.", value(5)},
  };
  for (int s = 1; s <= NIndex; ++s) {
    components.push_back({"Survey" + std::to_string(s) + " Age Comp.", results.MSFlexGrid1.TextMatrix(s, 1)});
  }
  for (int s = 1; s <= NIndex; ++s) {
    components.push_back(
        {"Surv." + std::to_string(s) + " " + index_kind, results.MSFlexGrid2.TextMatrix(s, 1)});
  }
  return components;
}

}  // namespace

void DrawLikelihood() {
  DrawSilently([] {
    Chart& chart = frmOutput->Chart16;
    ClearChart(chart);
    const Components components = ComponentsOfResults();
    const int last = static_cast<int>(components.size()) - 1;
    Points values;
    // The bars are stacked from the bottom.
    for (int point = 0; point <= last; ++point) {
      const Component& component = components[static_cast<std::size_t>(last - point)];
      values.push_back(PointOf(component.text));
      chart.SetPointLabel(point, component.name);
    }
    Drawing drawing{.title = "Likelihood Components",
                    .gallery = kHorizontalBars,
                    .markers = kMarkersByAge,
                    .series = {{"", std::move(values)}}};
    drawing.TakeLimits();
    PutDrawing(chart, std::move(drawing));
  });
}

}  // namespace tarnvik
