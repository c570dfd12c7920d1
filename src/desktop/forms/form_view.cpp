#include "desktop/forms/form_view.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <algorithm>

#include "charts/text.h"
#include "core/frmmain.h"
#include "desktop/forms/field_views.h"
#include "desktop/forms/form_layout.h"
#include "desktop/forms/layouts.h"
#include "desktop/forms/page_views.h"

namespace tarnvik {

std::unique_ptr<ControlView> MakeView(Control& control, QWidget* parent) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return MakeLabelView(static_cast<Label&>(control), parent);
    case ControlKind::CommandButton:
      return MakeButtonView(static_cast<CommandButton&>(control), parent);
    case ControlKind::TextBox:
      return MakeTextBoxView(static_cast<TextBox&>(control), parent);
    case ControlKind::CheckBox:
      return MakeCheckView(static_cast<CheckBox&>(control), parent);
    case ControlKind::OptionButton:
      return MakeOptionView(static_cast<OptionButton&>(control), parent);
    case ControlKind::ComboBox:
      return MakeComboView(static_cast<ComboBox&>(control), parent);
    case ControlKind::ListBox:
      return MakeListView(static_cast<ListBox&>(control), parent);
    case ControlKind::Grid:
      return MakeGridView(static_cast<Grid&>(control), parent);
    case ControlKind::Chart:
      return MakeChartView(static_cast<Chart&>(control), parent);
    case ControlKind::RichText:
      return MakeTextView(static_cast<RichText&>(control), parent);
    case ControlKind::Frame:
    case ControlKind::TabStrip:
    case ControlKind::MenuItem:
    case ControlKind::StatusBar:
      break;
  }
  return nullptr;
}

namespace {

// The letters that open the menus stay theirs where the menu bar is within reach.
AltLetters LettersFor(const Form& form) {
  QString taken;
  if (!form.Modal && frmMain.Loaded()) {
    for (const Control* control : frmMain->Controls()) {
      if (control->Kind() != ControlKind::MenuItem || control->Caption().empty()) continue;
      if (!static_cast<const MenuItem*>(control)->Parent) taken += ShownText(control->Caption())[0].toUpper();
    }
  }
  return AltLetters(taken);
}

// A control on a page that nobody has seen yet has no widget: fills the pages that it lies on, outermost
// first.
void BuildPageOf(FormParts& parts, const Control& control) {
  const Control* container = control.Container();
  if (!container) return;
  BuildPageOf(parts, *container);
  if (container->Kind() != ControlKind::TabStrip) return;
  if (auto* pages = static_cast<PagesView*>(parts.Find(*container))) pages->FillPage(control.Page());
}

}  // namespace

FormView::FormView(Form& form, QWidget* parent)
    : QWidget(parent), form_(&form), parts_(std::make_unique<FormParts>(FormParts{form, {}, {}})) {
  setObjectName(ShownText(form.Name()));
  setAccessibleName(ShownText(form.Caption()));
  AltLetters letters = LettersFor(form);
  LayOut(*parts_, *this, nullptr, 0, letters);
  if (const Control* control = form.Find(kDefaultButton, -1)) {
    if (auto* button = qobject_cast<QPushButton*>(WidgetOf(*control))) button->setDefault(true);
  }
}

// The widgets go before the views that they call.
FormView::~FormView() {
  LetGo();
  const QList<QObject*> all = children();
  for (QObject* child : all) {
    if (child->isWidgetType()) delete child;
  }
}

void FormView::LetGo() {
  form_ = nullptr;
  for (const auto& view : parts_->views) view->LetGo();
}

QWidget* FormView::WidgetOf(const Control& control) const {
  if (!form_) return nullptr;
  BuildPageOf(*parts_, control);
  const ControlView* view = parts_->Find(control);
  return view ? view->Widget() : nullptr;
}

QSize FormView::sizeHint() const {
  const QSize first = FirstSizeOf(objectName().toStdString());
  if (first.width() <= 0) return QWidget::sizeHint();
  const QSize least = layout()->totalMinimumSize();
  const int width = std::max(first.width(), least.width());
  if (first.height() > 0) return {width, std::max(first.height(), least.height())};
  const bool wraps = layout()->hasHeightForWidth();
  return {width, wraps ? layout()->totalHeightForWidth(width) : layout()->totalSizeHint().height()};
}

void FormView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const char* name = enter ? kDefaultButton : event->key() == Qt::Key_Escape ? kCancelButton : nullptr;
  const Control* control = name && form_ ? form_->Find(name, -1) : nullptr;
  auto* button = control && control->Reachable() ? qobject_cast<QPushButton*>(WidgetOf(*control)) : nullptr;
  if (!button) return QWidget::keyPressEvent(event);
  event->accept();
  button->click();
}

void FormView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || !form_ || !parts_) return;
  for (const auto& view : parts_->views) view->Refresh();
}

}  // namespace tarnvik
