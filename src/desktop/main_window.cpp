#include "desktop/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "charts/text.h"
#include "core/frmmain.h"
#include "desktop/desktop_host.h"
#include "desktop/forms/events.h"
#include "desktop/forms/form_window.h"
#include "desktop/guide_window.h"
#include "desktop/menu_view.h"
#include "desktop/recent_cases.h"
#include "inputedit/frminput.h"
#include "inputedit/frmpin.h"
#include "platform/flag_scope.h"
#include "program/program.h"
#include "results/frmoutput.h"
#include "results/frmoutputdata.h"
#include "results/frmstd.h"

namespace tarnvik {

// A form that is shown modally.
class FormDialog : public QDialog {
 public:
  FormDialog(FormSlot& slot, QWidget* parent)
      : QDialog(parent), slot_(slot), view_(new FormView(*slot.Record(), this)) {
    setObjectName(ShownText(slot.Name()));
    setWindowTitle(ShownText(slot.Record()->Caption()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
  }
  void LetGo() {
    view_->LetGo();
    done(0);
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    reject();
  }
  // The user closes the window: the logic decides.
  void reject() override {
    UserEvent([this] {
      if (view_->Shown()) UnloadForm(slot_, UnloadMode::ByUser);
    });
  }

 private:
  FormSlot& slot_;
  FormView* view_;
};

namespace {

// Windows that stand from the moment in which their forms are loaded, since the user has no other way to
// them. Other forms get theirs when the logic shows them.
FormSlot* const kStanding[] = {&frmInput, &frmPin, &frmOutputData, &frmSTD, &frmOutput};

class StatusBarView : public ControlView {
 public:
  StatusBarView(StatusBar& bar, QLabel* message) : ControlView(bar), message_(message) { Refresh(); }
  QWidget* Widget() const override { return message_; }
  void Refresh() override {
    if (Shown()) message_->setText(ShownText(static_cast<StatusBar*>(Shown())->Panel(kMessagePanel)));
  }

 private:
  QLabel* message_;
};

FormSlot* SlotOf(const Form& form) { return FindForm(form.Name()); }

QString DroppedCase(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    if (url.toLocalFile().endsWith(".ctl", Qt::CaseInsensitive)) return url.toLocalFile();
  }
  return {};
}

}  // namespace

MainWindow::MainWindow(DesktopHost& host)
    : host_(host), area_(new QMdiArea(this)), date_(new QLabel(this)), time_(new QLabel(this)) {
  setObjectName("frmMain");
  setAcceptDrops(true);
  setCentralWidget(area_);
  area_->setTabsClosable(true);
  area_->setTabsMovable(true);
  area_->setDocumentMode(true);
  connect(area_, &QMdiArea::subWindowActivated, this,
          [this](QMdiSubWindow* window) { Activated(static_cast<FormWindow*>(window)); });
  for (const bool forward : {true, false}) {
    for (const char* keys :
         {forward ? "Ctrl+Tab" : "Ctrl+Shift+Tab", forward ? "Ctrl+F6" : "Ctrl+Shift+F6"}) {
      auto* shortcut = new QShortcut(QKeySequence(keys), this);
      connect(shortcut, &QShortcut::activated, this, [this, forward] { TurnToNext(forward); });
    }
  }

  views_ = FillMenuBar(*menuBar(), *frmMain, window_menu_);
  connect(window_menu_, &QMenu::aboutToShow, this, [this] { FillWindowMenu(); });
  recent_menu_ = new QMenu(tr("Open &Recent"), this);
  connect(recent_menu_, &QMenu::aboutToShow, this, [this] { FillRecentMenu(); });
  if (auto* open = menuBar()->findChild<QAction*>("mnuFileOpen")) {
    auto* file = static_cast<QMenu*>(open->parent());
    const auto entries = file->actions();
    file->insertMenu(entries[entries.indexOf(open) + 1], recent_menu_);
  }

  auto* message = new QLabel(this);
  message->setAccessibleName(tr("Message"));
  statusBar()->addWidget(message, 1);
  statusBar()->addPermanentWidget(date_);
  statusBar()->addPermanentWidget(time_);
  views_.push_back(std::make_unique<StatusBarView>(frmMain->StatusBar1, message));
  auto* clock = new QTimer(this);
  connect(clock, &QTimer::timeout, this, [this] { ShowClock(); });
  clock->start(1000);
  ShowClock();

  qApp->installEventFilter(this);
  RestorePlaces();
  host_.window = this;
  AfterEvent = [this] { Settle(); };
  Settle();
}

MainWindow::~MainWindow() {
  // The child windows go last, one after the other, and each that comes to the front by that would be told
  // of.
  disconnect(area_, nullptr, this, nullptr);
  AfterEvent = nullptr;
  host_.window = nullptr;
}

// --- Windows of forms

FormWindow* MainWindow::WindowOf(const FormSlot& slot) const {
  for (QMdiSubWindow* window : area_->subWindowList()) {
    auto* shown = static_cast<FormWindow*>(window);
    if (slot.Record() && shown->Shows(*slot.Record())) return shown;
  }
  return nullptr;
}

FormWindow& MainWindow::WindowFor(FormSlot& slot) {
  if (FormWindow* window = WindowOf(slot)) return *window;
  const FlagScope arranging(arranging_);
  QMdiSubWindow* active = area_->activeSubWindow();
  auto* window = new FormWindow(slot);
  area_->addSubWindow(window);
  const QVariant place = QSettings().value("places/" + ShownText(slot.Name()));
  window->show();
  if (area_->viewMode() == QMdiArea::SubWindowView && place.isValid()) window->setGeometry(place.toRect());
  if (active) area_->setActiveSubWindow(active);
  return *window;
}

void MainWindow::BringToFront(Form& form) {
  FormSlot* slot = SlotOf(form);
  if (!slot || slot == &frmMain) return;
  FormWindow& window = WindowFor(*slot);
  const FlagScope arranging(arranging_);
  if (window.isMinimized()) window.showNormal();
  area_->setActiveSubWindow(&window);
}

void MainWindow::ShowModal(FormSlot& slot) {
  if (!slot.Loaded()) return;
  FormDialog dialog(slot, this);
  dialogs_.emplace_back(slot.Record(), &dialog);
  dialog.exec();
  dialogs_.pop_back();
}

void MainWindow::FormUnloaded(Form& form) {
  if (&form == frmMain.Record()) {
    for (auto& view : views_) view->LetGo();
    return;
  }
  for (auto& [shown, dialog] : dialogs_) {
    if (shown == &form) dialog->LetGo();
  }
  const FlagScope arranging(arranging_);
  for (QMdiSubWindow* window : area_->subWindowList()) {
    auto* shown = static_cast<FormWindow*>(window);
    if (!shown->Shows(form)) continue;
    if (area_->viewMode() == QMdiArea::SubWindowView && !shown->isMaximized() && !shown->isMinimized()) {
      QSettings().setValue("places/" + shown->objectName(), shown->geometry());
    }
    shown->LetGo();
    area_->removeSubWindow(shown);
    shown->hide();
    shown->deleteLater();
  }
}

// Child windows also come to the front by themselves: when they appear, when another goes, when the program
// does. The user's own way is the mouse; keys and menus say so themselves.
void MainWindow::Activated(FormWindow* window) {
  constexpr qint64 kClick = 1000;  // milliseconds in which a press has turned to its window
  if (arranging_ || !window) return;
  const bool pressed = press_.isValid() && press_.elapsed() < kClick;
  press_.invalidate();
  if (pressed) TurnTo(*window);
  PutFrontFormInFront();
}

bool MainWindow::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    const auto* widget = qobject_cast<QWidget*>(object);
    if (widget && area_->isAncestorOf(widget)) press_.start();
  }
  return QMainWindow::eventFilter(object, event);
}

void MainWindow::TurnTo(FormWindow& window) {
  if (FrontForm() == &window.Slot() || !window.Slot().Loaded()) return;
  UserEvent([&window] { ActivateForm(window.Slot()); });
}

void MainWindow::TurnToNext(bool forward) {
  CommitPendingEdits();
  {
    const FlagScope arranging(arranging_);
    if (forward) {
      area_->activateNextSubWindow();
    } else {
      area_->activatePreviousSubWindow();
    }
  }
  if (auto* window = static_cast<FormWindow*>(area_->activeSubWindow())) TurnTo(*window);
}

void MainWindow::PutFrontFormInFront() {
  FormSlot* front = FrontForm();
  FormWindow* window = front ? WindowOf(*front) : nullptr;
  const FlagScope arranging(arranging_);
  if (!window) return;
  if (area_->activeSubWindow() != window) area_->setActiveSubWindow(window);
  window->raise();  // one that was active all along may have another that has appeared above it
}

void MainWindow::Settle() {
  if (!ProgramRunning()) {
    close();
    return;
  }
  for (FormSlot* slot : kStanding) {
    if (slot->Loaded()) WindowFor(*slot);
  }
  for (QMdiSubWindow* window : area_->subWindowList()) static_cast<FormWindow*>(window)->TakeTitle();
  if (dialogs_.empty()) PutFrontFormInFront();
  const QString path = OpenCasePath();
  if (path != noted_case_) NoteRecentCase(path);
  noted_case_ = path;
  setWindowTitle(path.isEmpty() ? "Tarnvik" : QFileInfo(path).fileName() + " - Tarnvik");
}

// --- Menus of the window's own

void MainWindow::FillWindowMenu() {
  window_menu_->clear();
  const struct {
    QString caption;
    std::function<void()> arrange;
  } arrangements[] = {
      {tr("&Tabs"), [this] { area_->setViewMode(QMdiArea::TabbedView); }},
      {tr("&Cascade"),
       [this] {
         area_->setViewMode(QMdiArea::SubWindowView);
         area_->cascadeSubWindows();
       }},
      {tr("T&ile"),
       [this] {
         area_->setViewMode(QMdiArea::SubWindowView);
         area_->tileSubWindows();
       }},
  };
  for (const auto& row : arrangements) {
    connect(window_menu_->addAction(row.caption), &QAction::triggered, this, [this, arrange = row.arrange] {
      const FlagScope arranging(arranging_);
      arrange();
    });
  }
  window_menu_->addSeparator();
  int number = 0;
  for (QMdiSubWindow* window : area_->subWindowList()) {
    QAction* action = window_menu_->addAction(QString("&%1 %2").arg(++number).arg(window->windowTitle()));
    action->setCheckable(true);
    action->setChecked(window == area_->activeSubWindow());
    connect(action, &QAction::triggered, window, [this, window] {
      CommitPendingEdits();
      TurnTo(*static_cast<FormWindow*>(window));
    });
  }
}

void MainWindow::FillRecentMenu() {
  recent_menu_->clear();
  for (const QString& path : RecentCases()) {
    connect(recent_menu_->addAction(path), &QAction::triggered, this, [this, path] { OpenCase(path); });
  }
  if (recent_menu_->isEmpty()) recent_menu_->addAction(tr("None"))->setEnabled(false);
}

void MainWindow::OpenCase(const QString& path) {
  CommitPendingEdits();
  if (!QFileInfo(path).isFile()) {
    ForgetRecentCase(path);
    UserEvent(
        [&] { ShowMessage(TypedText(path) + kLineBreak + "is Not There Any More", Icon::Exclamation); });
    return;
  }
  UserEvent([&] {
    host_.files = {TypedText(path)};
    frmMain->mnuFileOpen.UserClick();
    host_.files.clear();
  });
}

void MainWindow::ShowGuide() { OpenGuide(ShownText(host_.ProgramFolder()), this); }

void MainWindow::ShowClock() {
  const DateTime now = host_.Now();
  const QLocale locale;
  date_->setText(locale.toString(QDate(now.year, now.month, now.day), QLocale::ShortFormat));
  time_->setText(locale.toString(QTime(now.hour, now.minute), QLocale::ShortFormat));
}

// --- The window itself

// A child that appears takes the front by itself; which one has it the logic says.
void MainWindow::setVisible(bool visible) {
  {
    const FlagScope arranging(arranging_);
    QMainWindow::setVisible(visible);
  }
  if (visible) Settle();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (ProgramRunning()) {
    CommitPendingEdits();
    StorePlaces();
    UserEvent([] { UnloadForm(frmMain, UnloadMode::ByUser); });
  }
  event->setAccepted(!ProgramRunning());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DroppedCase(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString path = DroppedCase(*event->mimeData());
  event->acceptProposedAction();
  // The program that the file comes from waits until the drop has ended: boxes come after it.
  QTimer::singleShot(0, this, [this, path] { OpenCase(path); });
}

void MainWindow::RestorePlaces() {
  const QSettings settings;
  resize(1280, 800);
  restoreGeometry(settings.value("window").toByteArray());
  const bool tabs = settings.value("tabs", true).toBool();
  area_->setViewMode(tabs ? QMdiArea::TabbedView : QMdiArea::SubWindowView);
}

void MainWindow::StorePlaces() const {
  QSettings settings;
  settings.setValue("window", saveGeometry());
  settings.setValue("tabs", area_->viewMode() == QMdiArea::TabbedView);
}

}  // namespace tarnvik
