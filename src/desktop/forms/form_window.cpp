#include "desktop/forms/form_window.h"

#include <QCloseEvent>

#include "charts/text.h"
#include "desktop/forms/events.h"

namespace tarnvik {

FormWindow::FormWindow(FormSlot& slot) : slot_(slot), form_(slot.Record()) {
  setAttribute(Qt::WA_DeleteOnClose, false);
  setObjectName(ShownText(slot.Name()));
  TakeTitle();
}

FormView& FormWindow::Contents() {
  if (!view_) {
    view_ = new FormView(*form_, this);
    setWidget(view_);
  }
  return *view_;
}

void FormWindow::TakeTitle() {
  if (!form_) return;
  const QString title = ShownText(form_->Caption());
  if (windowTitle() != title) setWindowTitle(title);
}

void FormWindow::LetGo() {
  form_ = nullptr;
  if (view_) view_->LetGo();
}

void FormWindow::showEvent(QShowEvent* event) {
  if (form_) Contents();
  QMdiSubWindow::showEvent(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (!form_) {
    QMdiSubWindow::closeEvent(event);
    return;
  }
  event->ignore();
  CommitPendingEdits();
  UserEvent([this] {
    if (form_) UnloadForm(slot_, UnloadMode::ByUser);
  });
}

}  // namespace tarnvik
