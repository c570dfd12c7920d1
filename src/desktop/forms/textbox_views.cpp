// Text boxes and labels.
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <algorithm>

#include "charts/text.h"
#include "desktop/forms/captions.h"
#include "desktop/forms/field_views.h"
#include "desktop/forms/layouts.h"
#include "desktop/forms/look.h"

namespace tarnvik {

namespace {

// --- Text boxes

class LineEdit : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;
  std::function<void()> entered;
  std::function<void(Qt::FocusReason)> left;
  std::function<bool(int)> pressed;  // whether the key is used up

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    entered();
  }
  void focusOutEvent(QFocusEvent* event) override {
    QLineEdit::focusOutEvent(event);
    left(event->reason());
  }
  void keyPressEvent(QKeyEvent* event) override {
    constexpr int kEnter = 13;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const int code = enter ? kEnter : event->text().isEmpty() ? 0 : event->text()[0].unicode();
    if (code != 0 && pressed(code) && enter) return event->accept();
    QLineEdit::keyPressEvent(event);
  }
};

// The control holds what is being typed, key by key; that the box has been left is told when it is.
class TextBoxView : public FieldView<TextBox, LineEdit> {
 public:
  TextBoxView(TextBox& box, QWidget* parent) : FieldView(box, new LineEdit(parent)) {
    widget_->entered = [this] { told_ = false; };
    widget_->left = [this](Qt::FocusReason reason) { Left(reason); };
    widget_->pressed = [this](int code) { return Pressed(code); };
    QObject::connect(widget_, &QLineEdit::textEdited, widget_, [this](const QString& text) {
      if (!Shown()) return;
      edited_ = true;
      told_ = false;
      Its()->SetText(TypedText(text));
    });
    QObject::connect(widget_, &QLineEdit::returnPressed, widget_, [this] {
      if (edited_) TellLeft();
    });
    if (LookOf(box) != Look::Wide) {
      constexpr int kCharacters = 11;
      widget_->setFixedWidth(widget_->fontMetrics().horizontalAdvance(QString(kCharacters, '0')));
    }
    Refresh();
  }
  void Refresh() override {
    const QString text = ShownText(Its()->Text());
    if (widget_->text() != text) {
      widget_->setText(text);
      widget_->setCursorPosition(0);
      edited_ = false;
    }
    ShowCommon(*Shown(), *widget_);
    if (Its()->SelLength > 0 && !marked_) {
      widget_->setFocus(Qt::OtherFocusReason);
      widget_->setSelection(Its()->SelStart, Its()->SelLength);
    }
    marked_ = Its()->SelLength > 0;
  }

 private:
  // A window or menu that comes in front is no leaving, but what was typed counts from then on.
  void Left(Qt::FocusReason reason) {
    if (reason == Qt::PopupFocusReason) return;
    if (edited_ || (!told_ && reason != Qt::ActiveWindowFocusReason)) TellLeft();
  }
  void TellLeft() {
    edited_ = false;
    told_ = true;
    if (!Shown() || !Its()->OnLostFocus) return;
    UserEvent([this] { Its()->OnLostFocus(std::max(Its()->Index(), 0)); });
  }
  bool Pressed(int code) {
    if (!Shown() || !Its()->OnKeyPress) return false;
    UserEvent([this, code] { Its()->OnKeyPress(code); });
    return true;
  }
  bool edited_ = false;  // since the handler was told last
  bool told_ = false;    // since the box was entered or edited
  bool marked_ = false;
};

// --- Labels

// A text that is cut in the middle where it does not fit, a path for example.
class PathLabel : public QLabel {
 public:
  using QLabel::QLabel;
  void ShowPath(const QString& path) {
    setText(path);
    setAccessibleDescription(path);
  }
  QSize minimumSizeHint() const override {
    return {fontMetrics().averageCharWidth() * 12, QLabel::minimumSizeHint().height()};
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (hasSelectedText() || fontMetrics().horizontalAdvance(text()) <= contentsRect().width()) {
      QLabel::paintEvent(event);
      return;
    }
    QPainter painter(this);
    const QString cut = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), Qt::AlignVCenter, palette(), isEnabled(), cut,
                          foregroundRole());
  }
};

// A text that does something when it is clicked.
class ClickLabel : public QLabel {
 public:
  explicit ClickLabel(QWidget* parent) : QLabel(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setMargin(2);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    setForegroundRole(QPalette::Link);
  }
  std::function<void()> clicked;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) clicked();
  }
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter) {
      return QLabel::keyPressEvent(event);
    }
    event->accept();
    clicked();
  }
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
  }
};

QLabel* MakeLabelWidget(const Label& label, QWidget* parent) {
  if (label.OnClick) return new ClickLabel(parent);
  const Look look = LookOf(label);
  QLabel* widget = look == Look::Path ? new PathLabel(parent) : new QLabel(parent);
  if (look == Look::Heading) {
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    widget->setFont(font);
  }
  widget->setContentsMargins(0, 0, kMarkRoom, 0);
  if (look == Look::Note) widget->setWordWrap(true);
  if (look == Look::Value || look == Look::Path) {
    widget->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  if (look == Look::Value) {
    constexpr int kCharacters = 12;
    widget->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    widget->setMinimumWidth(widget->fontMetrics().horizontalAdvance(QString(kCharacters, '0')));
  }
  return widget;
}

class LabelView : public FieldView<Label, QLabel> {
 public:
  LabelView(Label& label, QWidget* parent) : FieldView(label, MakeLabelWidget(label, parent)) {
    if (auto* click = dynamic_cast<ClickLabel*>(widget_)) {
      click->clicked = [this] { Act([](Label& its) { its.UserClick(); }); };
    }
    Refresh();
  }
  void Refresh() override {
    const QString text = ShownText(Shown()->Caption());
    auto* path = dynamic_cast<PathLabel*>(widget_);
    if (path) {
      path->ShowPath(text);
    } else {
      // With a buddy the caption carries the letter that leads there; without one "&" stands for itself.
      widget_->setTextFormat(Qt::PlainText);
      widget_->setText(widget_->buddy() ? MarkedCaption(*widget_, Shown()->Caption()) : text);
    }
    ShowCommon(*Shown(), *widget_);
    if (path) widget_->setToolTip(text);
  }
};

}  // namespace

std::unique_ptr<ControlView> MakeTextBoxView(TextBox& box, QWidget* parent) {
  return std::make_unique<TextBoxView>(box, parent);
}
std::unique_ptr<ControlView> MakeLabelView(Label& label, QWidget* parent) {
  return std::make_unique<LabelView>(label, parent);
}

}  // namespace tarnvik
