#include "deviations.h"

#include "derived.h"

#include <Eigen/Cholesky>

#include <cmath>

namespace model {

namespace {

// Catchabilities are reported in their natural scale, among the derived quantities.
bool ReportedAsParameter(const ParameterLayout& layout, int group) {
  return layout.groups[group].Estimated() && group != gLogQCpue && group != gLogQSurvey;
}

// All reported quantities as functions of the free numbers. With `names`, their names too.
template <class T>
std::vector<T> Quantities(const Fit& fit, const std::vector<T>& u, std::vector<std::string>* names) {
  T ignoredHold = 0;
  const ParameterValues<T> values = FromFreeNumbers(fit.values, fit.phase, u, ignoredHold);
  const Population<T> population = ComputePopulation(fit.data, values, fit.phase);
  const Derived<T> derived = ComputeDerived(fit.data, values, population);

  std::vector<std::pair<const char*, const T*>> elements;
  for (int group = 0; group < kGroups; ++group)
    for (int i = 0; ReportedAsParameter(fit.layout, group) && i < fit.layout.groups[group].count; ++i)
      elements.emplace_back(fit.layout.groups[group].name, &values.At(static_cast<Group>(group), i));
  for (const auto& [name, list] : NamedQuantities(derived))
    for (const T& element : *list) elements.emplace_back(name, &element);

  std::vector<T> quantities(elements.size());
  for (std::size_t i = 0; i < elements.size(); ++i) {
    quantities[i] = *elements[i].second;
    if (names != nullptr) names->emplace_back(elements[i].first);
  }
  return quantities;
}

}  // namespace

std::optional<std::vector<ReportedQuantity>> ComputeDeviations(const Fit& fit) {
  const Vector u = CurrentFreeNumbers(fit);
  const Matrix H = RecordObjective(fit)->Hessian(u);
  const Eigen::LLT<Matrix> factor(H);
  if (!H.allFinite() || factor.info() != Eigen::Success) return std::nullopt;

  const Recording recording(
      RecordingKind::Quantities, u, OperationsGuess(fit.data),
      [&fit](const std::vector<adouble>& at) { return Quantities<adouble>(fit, at, nullptr); });
  // With H = L L', the variance of an element is the squared length of L^-1 times its row of the Jacobian.
  Matrix roots = recording.Jacobian(u).transpose();
  factor.matrixL().solveInPlace(roots);

  std::vector<std::string> names;
  const std::vector<double> values = Quantities<double>(fit, {u.begin(), u.end()}, &names);
  std::vector<ReportedQuantity> reported;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const double deviation = roots.col(static_cast<Eigen::Index>(i)).norm();
    if (!std::isfinite(values[i]) || !std::isfinite(deviation)) return std::nullopt;
    reported.push_back({names[i], values[i], deviation});
  }
  return reported;
}

}  // namespace model
