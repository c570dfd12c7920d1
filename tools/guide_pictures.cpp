// tarnvik-guide-pictures FOLDER CASE.ctl VPA.dat: walks a case through the windows as the user guide does and
// writes the guide's pictures. The case is changed: give a copy of the example.
#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QIcon>
#include <QItemSelectionModel>
#include <QMdiArea>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTextStream>
#include <QTimer>
#include <clocale>
#include <functional>

#include "charts/text.h"
#include "core/frmmain.h"
#include "desktop/desktop_host.h"
#include "desktop/forms/events.h"
#include "desktop/forms/form_window.h"
#include "desktop/main_window.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "platform/process.h"
#include "plots/frmplotcollect.h"
#include "plots/frmplotinput.h"
#include "program/program.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"
#include "vpaimport/frmvpaindices.h"

namespace {

using namespace tarnvik;

// The clock stands still: pictures of the same windows are the same files.
class PictureHost : public DesktopHost {
 public:
  using DesktopHost::DesktopHost;
  DateTime Now() override { return {2026, 11, 16, 10, 30}; }
};

class Walk {
 public:
  Walk(PictureHost& host, MainWindow& window, const QDir& folder)
      : host_(host), window_(window), folder_(folder) {
    QObject::connect(&watch_, &QTimer::timeout, [this] { MeetDialog(); });
    watch_.start(20);
  }

  void ThroughTheGuide(const QString& ctl, const QString& vpa) {
    window_.OpenCase(ctl);
    Take("main-window");
    TakeInput(kTabFisheryAge, "fishery-age-data");
    TakeInput(kTabFisherySelectivity, "fishery-selectivity");
    TakeInput(kTabSurveyData, "survey-data");
    TakeInput(kTabFittingOptions, "fitting-options");
    Do([] { ActivateForm(frmPin); });
    Take("parameter-values");
    TakeTable();
    TakeFault();
    Do([] { frmMain->mnuDataPlotInput.UserClick(); });
    Do([] { frmPlotInput->SSTab1.SetTab(kInputCatchWeight); });
    Take("input-plots");
    Do([] { frmMain->mnuModelRun.UserClick(); });
    TakeResults();
    dialogs_["frmPlotCollect"] = {"plot-collection", [] { frmPlotCollect->cmdCancel.UserClick(); }};
    Do([] { frmMain->mnuViewPlotCollect.UserClick(); });
    TakeTiles();
    host_.files = {TypedText(vpa)};
    dialogs_["frmVPAIndices"] = {"vpa-import", [] { frmVPAIndices->cmdCancel.UserClick(); }};
    Do([] { frmMain->mnuFileImportVPA.UserClick(); });
  }

 private:
  void Do(const std::function<void()>& act) {
    UserEvent(act);
    QApplication::processEvents();
  }

  // --- Pages

  void TakeInput(int page, const char* name) {
    Do([page] {
      ActivateForm(frmInput);
      frmInput->SSTab1.SetTab(page);
    });
    Take(name);
  }

  void TakeTable() {
    TakeInput(kTabMaturity, nullptr);
    auto* table =
        window_.WindowOf(frmInput)->Contents().WidgetOf(frmInput->ORVFlexGrid(7))->findChild<QTableView*>();
    if (!table) return;
    const QAbstractItemModel& cells = *table->model();
    table->setFocus();
    table->selectionModel()->select({cells.index(4, 0), cells.index(9, 3)},
                                    QItemSelectionModel::ClearAndSelect);
    const QPoint place = table->visualRect(cells.index(9, 3)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, table->viewport()->mapToGlobal(place));
    QApplication::sendEvent(table->viewport(), &event);
    QApplication::processEvents();
    QWidget* menu = QApplication::activePopupWidget();
    Save("table", menu ? WithOver(*menu, window_.mapFromGlobal(menu->pos())) : window_.grab());
    if (menu) menu->close();
  }

  // A value is missing; saving finds it.
  void TakeFault() {
    constexpr int kRow = 25;
    Grid& weights = frmInput->ORVFlexGrid(6);
    const std::string value = weights.TextMatrix(kRow, 3);
    boxes_["Missing Value"] = "fault";
    Do([&] {
      weights.SetTopRow(kRow - 5);
      weights.SetTextMatrix(kRow, 3, "");
    });
    Do([] { frmMain->mnuFileSaveAll.UserClick(); });
    Do([&] { weights.SetTextMatrix(kRow, 3, value); });
    boxes_.clear();
  }

  void TakeResults() {
    Do([] {
      ActivateForm(frmOutputData);
      frmOutputData->SSTab1.SetTab(kPageBiomassTotals);
      frmOutputData->SSTab3.SetTab(1);
    });
    Take("output-data");
    Do([] {
      ActivateForm(frmOutput);
      frmOutput->SSTab1.SetTab(kPlotSurveyIndex);
    });
    Take("survey-index");
    Do([] {
      frmOutput->SSTab1.SetTab(kPlotBiomassTotals);
      frmOutput->Option6(1).SetValue(true);
      frmOutput->txtSTDplus(0).SetText("1.96");
      frmOutput->txtSTDminus(0).SetText("1.96");
      frmOutput->cmdPlot6.UserClick();
    });
    Take("spawning-biomass");
  }

  void TakeTiles() {
    Do([] {
      UnloadForm(frmPlotInput);
      frmInput->SSTab1.SetTab(kTabCatch);
    });
    auto* area = window_.findChild<QMdiArea*>();
    area->setViewMode(QMdiArea::SubWindowView);
    area->tileSubWindows();
    Take("tile");
    area->setViewMode(QMdiArea::TabbedView);
  }

  // --- Dialogs: photographed where the guide shows them, and answered

  void MeetDialog() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible()) return;
    if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
      MeetBox(*box);
    } else if (auto* output = dialog->findChild<QPlainTextEdit*>()) {
      if (!output->toPlainText().isEmpty()) Save("run", WithOver(*dialog, Middle(*dialog)));
    } else if (const auto found = dialogs_.find(dialog->objectName()); found != dialogs_.end()) {
      const Meeting meeting = found->second;
      dialogs_.erase(found);
      if (frmVPAIndices.Loaded()) {
        dialog->resize(1000, 420);
        AssignIndices();
      }
      QApplication::processEvents();
      Save(meeting.picture, WithOver(*dialog, Middle(*dialog)));
      UserEvent(meeting.answer);
    }
  }

  void MeetBox(QMessageBox& box) {
    QTextStream(stdout) << "box: " << box.text().replace('\n', ' ') << "\n" << Qt::flush;
    for (const auto& [words, picture] : boxes_) {
      if (box.text().contains(words)) Save(picture, WithOver(box, Middle(box)));
    }
    for (const auto button : {QMessageBox::Ok, QMessageBox::Yes}) {
      if (QAbstractButton* found = box.button(button)) return found->click();
    }
  }

  // Two surveys; the first five indices are with the first of them.
  void AssignIndices() {
    UserEvent([] { frmVPAIndices->cmbNSurv.UserSelect(1); });
    for (int index = 0; index < 5; ++index) {
      UserEvent([] { frmVPAIndices->lstVPA.UserSelect(0); });
      UserEvent([index] { frmVPAIndices->lstTARNVIK.UserSelect(index); });
    }
  }

  // --- Pictures

  QPoint Middle(const QWidget& dialog) const {
    return QPoint(window_.width() - dialog.width(), window_.height() - dialog.height()) / 2;
  }

  QPixmap WithOver(QWidget& over, QPoint place) const {
    QPixmap picture = window_.grab();
    QPainter painter(&picture);
    painter.drawPixmap(place, over.grab());
    painter.setPen(QColor(90, 90, 90));
    painter.drawRect(QRect(place, over.size()).adjusted(-1, -1, 0, 0));
    return picture;
  }

  void Take(const char* name) {
    QApplication::processEvents();
    if (name) Save(name, window_.grab());
  }

  void Save(const QString& name, const QPixmap& picture) const {
    picture.toImage().convertToFormat(QImage::Format_RGB888).save(folder_.filePath(name + ".png"), "PNG", 0);
  }

  struct Meeting {
    QString picture;
    std::function<void()> answer;
  };

  PictureHost& host_;
  MainWindow& window_;
  QDir folder_;
  QTimer watch_;
  std::map<QString, QString> boxes_;    // words of a box, its picture
  std::map<QString, Meeting> dialogs_;  // by the name of the form
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QLocale::setDefault(QLocale::c());
  QApplication::setOrganizationName("Tarnvik");
  QApplication::setApplicationName("Tarnvik");
  QApplication::setWindowIcon(QIcon(":/icon/tarnvik-48.png"));
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) {
    QTextStream(stderr) << "usage: tarnvik-guide-pictures FOLDER CASE.ctl VPA.dat\n";
    return 2;
  }
  PictureHost host(ExecutableFolder());
  StartProgram(host);
  {
    MainWindow window(host);
    window.resize(1280, 800);
    window.show();
    Walk(host, window, QDir(arguments[1])).ThroughTheGuide(arguments[2], arguments[3]);
  }
  EndProgram();
  return 0;
}
