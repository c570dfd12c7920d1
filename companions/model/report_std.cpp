#include "report_std.h"

#include "numbers.h"

namespace model {

std::string DeviationFileText(const std::vector<ReportedQuantity>& quantities) {
  std::string text = " index   name   value      std.dev\n";
  int index = 0;
  for (const ReportedQuantity& q : quantities)
    text +=
        std::to_string(++index) + ' ' + q.name + ' ' + General(q.value) + ' ' + General(q.deviation) + '\n';
  return text;
}

}  // namespace model
