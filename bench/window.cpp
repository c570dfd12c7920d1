// Measures what a user of the window program waits for: its start, the turning of pages on the largest case,
// a grid that is filled, a long text. Prints a table; the exit status is 1 when a figure is missed. What the
// machine does besides is kept out by taking the smallest of several rounds.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QSettings>
#include <QTableView>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>

#include "charts/text.h"
#include "core/globals.h"
#include "desktop/desktop_host.h"
#include "desktop/forms/events.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/text_area.h"
#include "desktop/main_window.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "large_case.h"
#include "modelrun/scan.h"
#include "platform/paths.h"
#include "plots/frmplotinput.h"
#include "program/program.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "results/frmview.h"
#include "results/viewers.h"

extern char** environ;

namespace tarnvik {
namespace {

constexpr int kRounds = 5;
constexpr int kStarts = 10;
constexpr double kMega = 1048576;

double MillisecondsOf(const QElapsedTimer& clock) { return static_cast<double>(clock.nsecsElapsed()) / 1e6; }

// Notes when the last widget was painted, and how often each was.
class PaintedApplication : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* object, QEvent* event) override {
    const QEvent::Type type = event->type();
    const bool result = QApplication::notify(object, event);
    if (type == QEvent::Paint) ++paints[object];
    if (type == QEvent::Paint || type == QEvent::UpdateRequest) last_paint = MillisecondsOf(clock);
    return result;
  }
  // Milliseconds from the begin of an act to the end of the last painting that it leads to.
  template <class Act>
  double TimeOf(const Act& act) {
    constexpr double kQuiet = 15;
    paints.clear();
    clock.start();
    last_paint = 0;
    act();
    last_paint = MillisecondsOf(clock);
    while (MillisecondsOf(clock) < last_paint + kQuiet) {
      processEvents();
      sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return last_paint;
  }
  std::map<QObject*, int> paints;
  QElapsedTimer clock;
  double last_paint = 0;
};

PaintedApplication* application = nullptr;

// A user who says yes to everything.
class BenchDesktop : public DesktopHost {
 public:
  using DesktopHost::DesktopHost;
  Answer ShowMessage(const std::string& text, Icon, Buttons buttons, Answer) override {
    last_message = text;
    return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes;
  }
  std::string last_message;
};

std::string folder;
int missed = 0;

void Print(const std::string& what, double seen, double wanted, const char* unit,
           const std::string& note = {}) {
  const bool holds = seen <= wanted;
  missed += holds ? 0 : 1;
  std::printf("%-44s %8.1f %8.1f %-8s %-7s %s\n", what.c_str(), seen, wanted, unit, holds ? "" : "MISSED",
              note.c_str());
}

// --- The start

// Milliseconds from the creation of the program's process to its first paint.
double TimeOfStart(const std::string& argument) {
  const char* arguments[] = {TARNVIK_BIN "/tarnvik-desktop", argument.empty() ? nullptr : argument.c_str(),
                             nullptr};
  std::vector<char*> environment;
  for (char** entry = environ; *entry; ++entry) environment.push_back(*entry);
  std::string loaded = "LD_PRELOAD=" TARNVIK_FIRST_PAINT;
  environment.push_back(loaded.data());
  environment.push_back(nullptr);
  QElapsedTimer clock;
  clock.start();
  pid_t child = 0;
  if (posix_spawn(&child, arguments[0], nullptr, nullptr, const_cast<char**>(arguments),
                  environment.data()) != 0) {
    return 1e9;
  }
  int status = 0;
  waitpid(child, &status, 0);
  return status == 0 ? MillisecondsOf(clock) : 1e9;
}

void MeasureStart() {
  for (const bool with_case : {false, true}) {
    double least = 1e9;
    for (int i = 0; i < kStarts; ++i) {
      least = std::min(least, TimeOfStart(with_case ? JoinPath(folder, "large.ctl") : ""));
    }
    Print(with_case ? "start with the largest case to first paint" : "start to first paint", least, 500,
          "ms");
  }
}

// --- Pages

struct Turned {
  double first = 1e9;  // the page is built
  double again = 1e9;
};
using Pages = std::map<std::string, Turned>;

void Keep(double& least, double time) { least = std::min(least, time); }

void TurnTo(TabStrip& tabs, int page, double& least) {
  Keep(least, application->TimeOf([&] {
    UserEvent([&] {
      tabs.SetTab(page);
      tabs.UserClick();
    });
  }));
}

// The page that stands when the round begins is measured when it comes back.
void TurnPages(FormSlot& slot, Pages& pages) {
  Turned& own = pages[slot.Name()];
  Keep(own.first, application->TimeOf([&] { UserEvent([&] { ActivateForm(slot); }); }));
  for (const bool built : {false, true}) {
    for (Control* control : slot.Record()->Controls()) {
      if (control->Kind() != ControlKind::TabStrip) continue;
      auto& tabs = static_cast<TabStrip&>(*control);
      const int standing = tabs.Tab();
      for (int step = 1; step <= tabs.Tabs(); ++step) {
        const int page = (standing + step) % tabs.Tabs();
        if (!tabs.TabEnabled(page)) continue;
        Turned& turned = pages[control->FullName() + " of " + slot.Name() + ", \"" +
                               ShownText(tabs.TabCaption(page)).simplified().toStdString() + "\""];
        TurnTo(tabs, page, built || step == tabs.Tabs() ? turned.again : turned.first);
      }
    }
  }
}

bool ScanLarge() {
  ReportPath = JoinPath(folder, "large.rep");
  StdPath = JoinPath(folder, "large.std");
  ParPath = JoinPath(folder, "large.par");
  UserEvent([] { ScanReportFile(); });
  return StdFileRead == kTrue;
}

void PrintWorst(const char* what, const Pages& pages, double Turned::*time) {
  std::vector<std::pair<double, std::string>> worst;
  for (const auto& [name, turned] : pages) {
    if (turned.*time < 1e9) worst.emplace_back(turned.*time, name);
  }
  std::sort(worst.rbegin(), worst.rend());
  Print(what, worst[0].first, 50, "ms", worst[0].second);
  for (std::size_t i = 1; i < std::min<std::size_t>(worst.size(), 6); ++i) {
    std::printf("%44s %8.1f %17s %8s%s\n", "then", worst[i].first, "", "", worst[i].second.c_str());
  }
  std::printf("%44s %8zu\n", "pages", worst.size());
}

// --- A grid that is filled

Grid* LargestGrid() {
  Grid* largest = nullptr;
  frmInput->ORVFlexGrid.ForEach([&](Grid& grid) {
    const bool fits = grid.Rows() > kLargeYears && grid.Cols() > kLargeAges;
    if (fits && !largest) largest = &grid;
  });
  return largest;
}

void MeasureFilling(MainWindow& window) {
  Grid* grid = LargestGrid();
  if (!grid) return Print("a grid of 100 x 60: none is there", 1, 0, "");
  UserEvent([&] { ActivateForm(frmInput); });
  double ignored = 0;
  for (const Control* at = grid; at->Container(); at = at->Container()) {
    if (at->Container()->Kind() != ControlKind::TabStrip) continue;
    TurnTo(static_cast<TabStrip&>(*at->Container()), at->Page(), ignored);
  }
  auto* table = window.WindowOf(frmInput)->Contents().WidgetOf(*grid)->findChild<QTableView*>();
  double least = 1e9;
  int most = 0;
  for (int round = 0; round < kRounds; ++round) {
    Keep(least, application->TimeOf([&] {
      UserEvent([&] {
        for (int row = grid->FixedRows; row < grid->Rows(); ++row) {
          for (int col = 1; col < grid->Cols(); ++col) {
            grid->SetTextMatrix(row, col, std::to_string(round + row * col));
          }
        }
      });
    }));
    most = std::max(most, application->paints[table->viewport()]);
  }
  // Not painted at all would be no feat either.
  Print("repaints when " + grid->FullName() + " is filled", most == 0 ? 1e9 : most, 1, "");
  Print("filling it until it is painted", least, 50, "ms");
}

// --- Long texts

double ResidentMegabytes() {
  long pages = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / kMega;
}

void WriteLongText(const std::string& path, bool lines) {
  constexpr int kLine = 80;
  std::ofstream file(path, std::ios::binary);
  std::string text;
  for (std::size_t number = 0; file.tellp() < 100 * 1048576LL; ++number) {
    text = std::to_string(number);
    text.resize(kLine - 1, ' ');
    text += lines ? '\n' : ' ';
    file << text;
  }
}

void MeasureText(MainWindow& window, bool lines) {
  const std::string kind = lines ? "100 MB of lines" : "100 MB in one line";
  const std::string path = JoinPath(folder, "long.txt");
  WriteLongText(path, lines);
  const double before = ResidentMegabytes();
  const double shown = application->TimeOf([&] { UserEvent([&] { ShowFileInViewer(path); }); });
  const std::string& text = frmView->rtfView.Text();
  Print(kind + ": until shown", text.size() < 100000000 ? 1e9 : shown, 500, "ms");
  Print(kind + ": memory beyond the text",
        ResidentMegabytes() - before - static_cast<double>(text.size()) / kMega, 20, "MB");
  auto* area = window.WindowOf(frmView)->Contents().findChild<QAbstractScrollArea*>();
  auto& view = *static_cast<TextArea*>(area);
  QScrollBar& bar = lines ? *view.verticalScrollBar() : *view.horizontalScrollBar();
  double slowest = 0;
  for (int step = 0; step <= 50; ++step) {
    slowest = std::max(slowest, application->TimeOf([&] {
      bar.setValue(static_cast<int>(static_cast<qint64>(bar.maximum()) * ((step * 37) % 51) / 50));
    }));
  }
  Print(kind + ": scrolling, the slowest of 51", slowest, 50, "ms");
  bool found = false;
  Print(kind + ": looking for what is not there",
        application->TimeOf([&] { found = view.Find("no such words", true, false); }), 1000, "ms");
  if (found) Print("found what is not there", 1, 0, "");
  UserEvent([] { UnloadForm(frmView); });
  application->TimeOf([] {});
}

// --- All of it

int Main() {
  std::string pattern = (std::filesystem::temp_directory_path() / "tarnvik-window-XXXXXX").string();
  if (!mkdtemp(pattern.data())) return 1;
  folder = pattern;
  ChangeFolder(folder);
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ShownText(folder));
  qputenv("XDG_CONFIG_HOME", ShownText(folder).toUtf8());  // of the program when it is started
  QCoreApplication::setOrganizationName("Tarnvik");
  QCoreApplication::setApplicationName("Tarnvik");
  WriteLargeCase(folder);
  WriteLargeResults(folder);
  std::printf("%-44s %8s %8s\n", "", "seen", "wanted");
  MeasureStart();
  Pages pages;
  for (int round = 0; round < kRounds; ++round) {
    BenchDesktop host(folder);
    StartProgram(host);
    {
      MainWindow window(host);
      window.show();
      window.OpenCase(ShownText(JoinPath(folder, "large.ctl")));
      if (DatFileOpen != kTrue || !ScanLarge()) {
        std::fprintf(stderr, "the large case cannot be opened: %s\n", host.last_message.c_str());
        return 1;
      }
      application->TimeOf([] {});
      for (FormSlot* slot : std::initializer_list<FormSlot*>{&frmInput, &frmPin, &frmOutputData, &frmSTD,
                                                             &frmOutput, &frmPlotInput}) {
        TurnPages(*slot, pages);
      }
      if (round == kRounds - 1) {
        PrintWorst("turning to a page for the first time", pages, &Turned::first);
        PrintWorst("turning to a page again", pages, &Turned::again);
        MeasureFilling(window);
        MeasureText(window, true);
        MeasureText(window, false);
      }
    }
    EndProgram();
    application->TimeOf([] {});
  }
  std::filesystem::remove_all(folder);
  return missed == 0 ? 0 : 1;
}

}  // namespace
}  // namespace tarnvik

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  tarnvik::PaintedApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  tarnvik::application = &application;
  return tarnvik::Main();
}
