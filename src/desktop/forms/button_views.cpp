// Buttons, check boxes and option buttons.
#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "charts/text.h"
#include "desktop/forms/captions.h"
#include "desktop/forms/field_views.h"

namespace tarnvik {

namespace {

class ButtonView : public FieldView<CommandButton, QPushButton> {
 public:
  ButtonView(CommandButton& button, QWidget* parent) : FieldView(button, new QPushButton(parent)) {
    QObject::connect(widget_, &QPushButton::clicked, widget_,
                     [this] { Act([](CommandButton& its) { its.UserClick(); }); });
    Refresh();
  }
  void Refresh() override {
    widget_->setText(MarkedCaption(*widget_, Shown()->Caption()));
    ShowCommon(*Shown(), *widget_);
  }
};

class CheckView : public FieldView<CheckBox, QCheckBox> {
 public:
  CheckView(CheckBox& check, QWidget* parent) : FieldView(check, new QCheckBox(parent)) {
    QObject::connect(widget_, &QCheckBox::clicked, widget_,
                     [this](bool on) { Act([on](CheckBox& its) { its.UserCheck(on ? 1 : 0); }); });
    Refresh();
  }
  void Refresh() override {
    widget_->setText(MarkedCaption(*widget_, Shown()->Caption()));
    widget_->setChecked(Its()->IsChecked());  // `clicked` is the user's alone
    ShowCommon(*Shown(), *widget_);
  }
};

// The options of an array: the arrow keys go from one to the next.
QButtonGroup& GroupOf(const OptionButton& option, QWidget* parent) {
  const QString name = ShownText(option.Name());
  auto* group = parent->findChild<QButtonGroup*>(name, Qt::FindDirectChildrenOnly);
  if (!group) {
    group = new QButtonGroup(parent);
    group->setObjectName(name);
  }
  return *group;
}

class OptionView : public FieldView<OptionButton, QRadioButton> {
 public:
  OptionView(OptionButton& option, QWidget* parent)
      : FieldView(option, new QRadioButton(parent)), group_(GroupOf(option, parent)) {
    group_.addButton(widget_);
    QObject::connect(widget_, &QRadioButton::clicked, widget_,
                     [this] { Act([](OptionButton& its) { its.UserChoose(); }); });
    Refresh();
  }
  void Refresh() override {
    widget_->setText(MarkedCaption(*widget_, Shown()->Caption()));
    if (widget_->isChecked() != Its()->Value()) {
      group_.setExclusive(false);  // else the mark of a group's only chosen option could not be taken away
      widget_->setChecked(Its()->Value());
      group_.setExclusive(true);
    }
    ShowCommon(*Shown(), *widget_);
  }

 private:
  QButtonGroup& group_;
};

}  // namespace

std::unique_ptr<ControlView> MakeButtonView(CommandButton& button, QWidget* parent) {
  return std::make_unique<ButtonView>(button, parent);
}
std::unique_ptr<ControlView> MakeCheckView(CheckBox& check, QWidget* parent) {
  return std::make_unique<CheckView>(check, parent);
}
std::unique_ptr<ControlView> MakeOptionView(OptionButton& option, QWidget* parent) {
  return std::make_unique<OptionView>(option, parent);
}

}  // namespace tarnvik
