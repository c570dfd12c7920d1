// tarnvik-pictures FOLDER CASE.ctl [--dark] [--size WIDTHxHEIGHT]: writes a picture of every page of every
// form, with the case open and its results scanned, as a user would see them. All happens in a copy of the
// case, which is run first unless its results lie beside it.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPalette>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTextStream>
#include <deque>
#include <functional>

#include "charts/text.h"
#include "core/frmmain.h"
#include "desktop/forms/events.h"
#include "desktop/forms/form_view.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "platform/paths.h"
#include "platform/process.h"
#include "plots/frmplotcollect.h"
#include "plots/frmplotinput.h"
#include "program/frmabout.h"
#include "program/program.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "results/frmview.h"
#include "vpaimport/frmvpaindices.h"

namespace {

using namespace tarnvik;

// Says yes to every question and lets a modal form be photographed.
class PictureHost : public Host {
 public:
  Answer ShowMessage(const std::string& text, Icon, Buttons buttons, Answer) override {
    QTextStream(stderr) << "box: " << ShownText(text) << "\n";
    return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes;
  }
  std::optional<std::string> ShowFileDialog(const FileDialog&) override {
    if (files.empty()) return std::nullopt;
    const std::string path = files.front();
    files.pop_front();
    return path;
  }
  void BringToFront(Form&) override {}
  void ShowModal(FormSlot& slot) override { modal(slot); }
  void FormUnloaded(Form&) override {}
  void PopUpMenu(Control&) override {}
  void ProcessEvents() override {}
  void SetPointer(Pointer) override {}
  void SetClipboard(std::string) override {}
  void ExportChart(const Chart&, const std::string&) override {}
  std::int32_t CreateConsoleProcess(const std::string& command) override {
    return RunConsoleProcess(command);
  }
  void StartProgram(const std::string&) override {}
  int OpenDocument(const std::string&) override { return 0; }
  DateTime Now() override { return {2026, 11, 16, 1, 5}; }
  std::string ProgramFolder() override { return TypedText(QCoreApplication::applicationDirPath()); }

  std::deque<std::string> files;
  std::function<void(FormSlot&)> modal;
};

struct Camera {
  QDir folder;
  QSize size;

  void Take(FormView& view, const QString& name) const {
    QElapsedTimer timer;
    timer.start();
    RefreshViews();
    QApplication::processEvents();
    QTextStream(stdout) << name << " " << timer.elapsed() << " ms\n";
    view.grab().save(folder.filePath(name + ".png"));
  }

  // Turns the pages of a tab control, and those of the tab controls on them.
  void TurnPages(FormView& view, const Control* container, int page, const QString& name) const {
    for (Control* control : view.Shown()->Controls()) {
      if (control->Kind() != ControlKind::TabStrip || control->Container() != container) continue;
      if (container && control->Page() != page) continue;
      auto& tabs = static_cast<TabStrip&>(*control);
      for (int tab = 0; tab < tabs.Tabs(); ++tab) {
        tabs.SetTab(tab);
        TurnPages(view, &tabs, tab, name + QString("-%1").arg(tab, 2, 10, QChar('0')));
      }
      return;
    }
    Take(view, name);
  }

  void TakeForm(Form& form) const {
    QElapsedTimer timer;
    timer.start();
    FormView view(form);
    view.resize(form.Modal ? view.sizeHint() : size.isValid() ? size : view.sizeHint());
    view.show();
    QApplication::processEvents();
    QTextStream(stdout) << ShownText(form.Name()) << " built in " << timer.elapsed() << " ms\n";
    TurnPages(view, nullptr, 0, ShownText(form.Name()));
  }
};

void UseDarkPalette() {
  QPalette dark(QColor(53, 53, 53));
  dark.setColor(QPalette::Base, QColor(35, 35, 35));
  dark.setColor(QPalette::Link, QColor(110, 170, 255));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    dark.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  QApplication::setPalette(dark);
}

void CopyCase(const QString& ctl, const QString& folder, QString& copy) {
  const QFileInfo info(ctl);
  const QStringList endings = {"ctl", "dat", "pin", "rep", "par", "std"};
  for (const QString& ending : endings) {
    QFile::copy(info.dir().filePath(info.completeBaseName() + "." + ending),
                QDir(folder).filePath(info.fileName().chopped(3) + ending));
  }
  copy = QDir(folder).filePath(info.fileName());
}

void FillIndices() {
  for (const char* entry :
       {"Index 1:  Spring,  Ages 1-8,  Jan-1 Numbers", "Index 2:  Fall,  Ages 1-6,  Mean Weight",
        "Index 3:  Acoustic,  Ages 2-8,  Mean Numbers"}) {
    frmVPAIndices->lstVPA.AddItem(entry);
  }
  frmVPAIndices->lblVPAFile.SetCaption("/home/user/assessments/north-sea-cod/vpa/cod.dat");
  frmVPAIndices->cmbNSurv.UserSelect(2);
}

void TakeAll(PictureHost& host, const Camera& camera, const std::string& ctl) {
  host.modal = [&](FormSlot& slot) { camera.TakeForm(slot.Touch()); };
  camera.TakeForm(*frmInput);
  host.files.push_back(ctl);
  RunEvent([] { frmMain->mnuFileOpen.UserClick(); });
  const bool has_results = FileExists(ctl.substr(0, ctl.size() - 3) + "rep");
  MenuItem& results = has_results ? frmMain->mnuModelScan : frmMain->mnuModelRun;
  RunEvent([&results] { results.UserClick(); });
  RunEvent([] { frmMain->mnuDataPlotInput.UserClick(); });
  for (FormSlot* slot : {static_cast<FormSlot*>(&frmInput), static_cast<FormSlot*>(&frmPin),
                         static_cast<FormSlot*>(&frmOutputData), static_cast<FormSlot*>(&frmSTD),
                         static_cast<FormSlot*>(&frmOutput), static_cast<FormSlot*>(&frmPlotInput)}) {
    if (slot->Loaded()) camera.TakeForm(slot->Touch());
  }
  RunEvent([] { frmMain->mnuViewReport.UserClick(); });
  if (frmView.Loaded()) camera.TakeForm(*frmView);
  RunEvent([] { frmInput->cmdFillBlanks(1).UserClick(); });
  RunEvent([] { frmInput->lblSurvTitle.UserClick(); });
  RunEvent([] { frmMain->mnuOptionsGPEdit.UserClick(); });
  RunEvent([] { frmMain->mnuOptionsFileView.UserClick(); });
  RunEvent([] { frmMain->mnuViewPlotCollect.UserClick(); });
  if (frmPlotCollect.Loaded()) camera.TakeForm(*frmPlotCollect);
  RunEvent([] { frmMain->mnuHelpAbout.UserClick(); });
  RunEvent(FillIndices);
  RunEvent([] { ShowFormModal(frmVPAIndices); });
}

}  // namespace

int main(int argc, char** argv) {
  QApplication::setStyle("Fusion");
  QApplication app(argc, argv);
  const QStringList arguments = app.arguments();
  if (arguments.size() < 3) {
    QTextStream(stderr) << "tarnvik-pictures FOLDER CASE.ctl [--dark] [--size WIDTHxHEIGHT]\n";
    return 2;
  }
  if (arguments.contains("--dark")) UseDarkPalette();
  Camera camera{QDir(arguments[1]), QSize()};
  camera.folder.mkpath(".");
  camera.folder.makeAbsolute();
  if (const qsizetype at = arguments.indexOf("--size"); at > 0) {
    const QStringList parts = arguments.value(at + 1).split('x');
    camera.size = QSize(parts.value(0).toInt(), parts.value(1).toInt());
  }
  QTemporaryDir folder;
  QString copy;
  CopyCase(QDir().absoluteFilePath(arguments[2]), folder.path(), copy);
  ChangeFolder(TypedText(folder.path()));
  PictureHost host;
  StartProgram(host);
  TakeAll(host, camera, TypedText(copy));
  EndProgram();
  return 0;
}
