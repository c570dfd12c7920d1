// The view of a box for long texts: the viewer and a bar for finding.

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "charts/text.h"
#include "desktop/forms/control_view.h"
#include "desktop/forms/text_area.h"

namespace tarnvik {

namespace {

class FindBar : public QWidget {
 public:
  FindBar(TextArea& area, QWidget* parent)
      : QWidget(parent),
        area_(area),
        words_(new QLineEdit(this)),
        match_case_(new QCheckBox(tr("&Match case"), this)),
        answer_(new QLabel(this)) {
    auto* label = new QLabel(tr("&Find:"), this);
    label->setBuddy(words_);
    auto* next = new QPushButton(tr("&Next"), this);
    auto* previous = new QPushButton(tr("&Previous"), this);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{label, words_, next, previous, match_case_, answer_}) {
      row->addWidget(widget);
    }
    connect(words_, &QLineEdit::returnPressed, this, [this] { Look(true); });
    connect(next, &QPushButton::clicked, this, [this] { Look(true); });
    connect(previous, &QPushButton::clicked, this, [this] { Look(false); });
  }

  void Look(bool forward) {
    const bool found = area_.Find(TypedText(words_->text()), forward, match_case_->isChecked());
    answer_->setText(found || words_->text().isEmpty() ? QString() : tr("Not found"));
  }

  void Begin() {
    words_->setFocus();
    words_->selectAll();
  }

 private:
  TextArea& area_;
  QLineEdit* words_;
  QCheckBox* match_case_;
  QLabel* answer_;
};

class TextView : public ControlView {
 public:
  TextView(RichText& text, QWidget* parent)
      : ControlView(text), widget_(new QWidget(parent)), area_(new TextArea(widget_)) {
    auto* bar = new FindBar(*area_, widget_);
    auto* column = new QVBoxLayout(widget_);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(area_, 1);
    column->addWidget(bar);
    widget_->setFocusProxy(area_);
    area_->setAccessibleName(QObject::tr("Text"));
    area_->on_selection = [this] {
      if (Shown()) Box().Select(area_->SelectionStart(), area_->SelectionEnd() - area_->SelectionStart());
    };
    const auto key = [&](QKeySequence keys, auto act) {
      auto* shortcut = new QShortcut(keys, widget_);
      shortcut->setContext(Qt::WidgetWithChildrenShortcut);
      QObject::connect(shortcut, &QShortcut::activated, bar, act);
    };
    key(QKeySequence::Find, [bar] { bar->Begin(); });
    key(QKeySequence::FindNext, [bar] { bar->Look(true); });
    key(QKeySequence::FindPrevious, [bar] { bar->Look(false); });
    Refresh();
  }

  QWidget* Widget() const override { return widget_; }

  void Refresh() override {
    if (!Shown()) return;
    if (Box().Edition() == edition_) return;
    edition_ = Box().Edition();
    area_->SetText(Box().Text());
  }

 protected:
  void Leave() override { area_->ForgetText(); }

 private:
  RichText& Box() const { return static_cast<RichText&>(*Shown()); }
  QWidget* widget_;
  TextArea* area_;
  int edition_ = -1;
};

}  // namespace

std::unique_ptr<ControlView> MakeTextView(RichText& text, QWidget* parent) {
  return std::make_unique<TextView>(text, parent);
}

}  // namespace tarnvik
