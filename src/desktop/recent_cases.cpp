#include "desktop/recent_cases.h"

#include <QFileInfo>
#include <QSettings>

#include "charts/text.h"
#include "core/globals.h"
#include "inputedit/frminput.h"

namespace tarnvik {

namespace {

constexpr const char* kKey = "recentCases";
constexpr qsizetype kKept = 10;

}  // namespace

QString OpenCasePath() {
  const InputForm* form = frmInput.IfLoaded();
  if (!form || DatFileOpen != kTrue || IsNone(form->lblCTL.Caption())) return {};
  const QString path = ShownText(form->lblCTL.Caption());
  return QFileInfo(path).isFile() ? QFileInfo(path).absoluteFilePath() : QString();
}

QStringList RecentCases() { return QSettings().value(kKey).toStringList(); }

void NoteRecentCase(const QString& path) {
  QStringList cases = RecentCases();
  if (path.isEmpty() || (!cases.isEmpty() && cases.front() == path)) return;
  cases.removeAll(path);
  cases.prepend(path);
  QSettings().setValue(kKey, cases.mid(0, kKept));
}

void ForgetRecentCase(const QString& path) {
  QStringList cases = RecentCases();
  cases.removeAll(path);
  QSettings().setValue(kKey, cases);
}

}  // namespace tarnvik
