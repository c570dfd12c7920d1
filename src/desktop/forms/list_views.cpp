// Combo boxes, check lists and plain lists.
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <algorithm>

#include "charts/text.h"
#include "desktop/forms/field_views.h"
#include "desktop/forms/layouts.h"

namespace tarnvik {

namespace {

// --- Combo boxes

// The wheel scrolls the page: turned over a combo box it must not change the case.
class Combo : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

class ComboView : public FieldView<ComboBox, Combo> {
 public:
  ComboView(ComboBox& combo, QWidget* parent) : FieldView(combo, new Combo(parent)) {
    constexpr int kShownEntries = 20;
    widget_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    widget_->setMaxVisibleItems(kShownEntries);
    widget_->setMinimumWidth(widget_->fontMetrics().horizontalAdvance(QString(12, '0')));
    widget_->setMaximumWidth(widget_->fontMetrics().horizontalAdvance(QString(48, '0')));
    QObject::connect(widget_, &QComboBox::activated, widget_,
                     [this](int entry) { Act([entry](ComboBox& its) { its.UserSelect(entry); }); });
    Refresh();
  }
  void Refresh() override {
    if (!ShowsEntries()) {
      QStringList entries;
      for (int i = 0; i < Its()->ListCount(); ++i) entries += ShownText(Its()->List(i));
      widget_->clear();
      widget_->addItems(entries);
    }
    widget_->setCurrentIndex(Its()->ListIndex());  // `activated` is the user's alone
    ShowCommon(*Shown(), *widget_);
  }

 private:
  bool ShowsEntries() const {
    if (widget_->count() != Its()->ListCount()) return false;
    for (int i = 0; i < widget_->count(); ++i) {
      if (widget_->itemText(i) != ShownText(Its()->List(i))) return false;
    }
    return true;
  }
};

// --- Lists

// What both kinds of list show alike.
void ShowEntries(const ListBox& list, QListWidget& widget) {
  while (widget.count() > list.ListCount()) delete widget.takeItem(widget.count() - 1);
  while (widget.count() < list.ListCount()) widget.addItem(QString());
  for (int i = 0; i < list.ListCount(); ++i) {
    const QString text = ShownText(list.List(i));
    if (widget.item(i)->text() != text) widget.item(i)->setText(text);
  }
  if (widget.currentRow() != list.ListIndex()) widget.setCurrentRow(list.ListIndex());
}

class CheckListView : public FieldView<ListBox, QListWidget> {
 public:
  CheckListView(ListBox& list, QWidget* parent) : FieldView(list, new QListWidget(parent)) {
    QObject::connect(widget_, &QListWidget::itemChanged, widget_, [this](QListWidgetItem* item) {
      const int entry = widget_->row(item);
      const bool marked = item->checkState() == Qt::Checked;
      Act([=](ListBox& its) {
        if (entry < its.ListCount()) its.UserMark(entry, marked);
      });
    });
    Refresh();
  }
  void Refresh() override {
    const QSignalBlocker quiet(widget_);
    ShowEntries(*Its(), *widget_);
    for (int i = 0; i < Its()->ListCount(); ++i) {
      QListWidgetItem& item = *widget_->item(i);
      item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
      item.setCheckState(Its()->Selected(i) ? Qt::Checked : Qt::Unchecked);
    }
    ShowCommon(*Shown(), *widget_);
  }
};

// A list whose entries are clicked, double-clicked, and dragged within it. With the keys: the arrows move the
// current entry, Space clicks, Enter double-clicks, Ctrl+Up and Ctrl+Down drag.
class PlainListView : public FieldView<ListBox, QListWidget>, public QObject {
 public:
  PlainListView(ListBox& list, QWidget* parent) : FieldView(list, new QListWidget(parent)) {
    widget_->installEventFilter(this);
    widget_->viewport()->installEventFilter(this);
    QObject::connect(widget_, &QListWidget::currentRowChanged, widget_, [this](int row) {
      if (Shown() && pressed_ < 0 && row >= 0 && row < Its()->ListCount()) Its()->UserPoint(row);
    });
    Refresh();
  }
  void Refresh() override {
    const QSignalBlocker quiet(widget_);
    ShowEntries(*Its(), *widget_);
    ShowCommon(*Shown(), *widget_);
  }

 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    if (!Shown()) return false;
    if (target == widget_) {
      return event->type() == QEvent::KeyPress && Key(static_cast<QKeyEvent&>(*event));
    }
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease ||
        event->type() == QEvent::MouseButtonDblClick) {
      return Mouse(static_cast<QMouseEvent&>(*event));
    }
    return false;
  }

 private:
  // The widget sees presses and moves too: its mark follows the pointer while the button is held.
  bool Mouse(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return false;
    const int entry = widget_->row(widget_->itemAt(event.position().toPoint()));
    switch (event.type()) {
      case QEvent::MouseButtonPress:
        pressed_ = entry;
        if (entry >= 0) Down(entry);
        return false;
      case QEvent::MouseButtonDblClick:
        pressed_ = -1;
        if (entry >= 0) DoubleClick(entry);
        return true;
      default: {
        const int from = std::exchange(pressed_, -1);
        if (from < 0) return false;
        const int to = entry >= 0 ? entry : widget_->currentRow();
        if (to < 0) return false;
        Up(to);
        if (to == from) Click(to);
        return false;
      }
    }
  }
  bool Key(const QKeyEvent& event) {
    const int entry = widget_->currentRow();
    if (entry < 0) return false;
    switch (event.key()) {
      case Qt::Key_Space:
        Click(entry);
        return true;
      case Qt::Key_Return:
      case Qt::Key_Enter:
        if (!Its()->OnDblClick) return false;
        DoubleClick(entry);
        return true;
      case Qt::Key_Up:
      case Qt::Key_Down: {
        if (!(event.modifiers() & Qt::ControlModifier) || !Its()->OnMouseUp) return false;
        const int to = entry + (event.key() == Qt::Key_Up ? -1 : 1);
        if (to < 0 || to >= Its()->ListCount()) return true;
        Down(entry);
        Up(to);
        return true;
      }
      default:
        return false;
    }
  }
  void Down(int entry) {
    Act([entry](ListBox& its) {
      its.UserPoint(entry);
      if (its.OnMouseDown) its.OnMouseDown(entry);
    });
  }
  void Up(int entry) {
    Act([entry](ListBox& its) {
      if (entry >= its.ListCount()) return;
      its.UserPoint(entry);
      if (its.OnMouseUp) its.OnMouseUp(entry);
    });
  }
  void Click(int entry) {
    Act([entry](ListBox& its) {
      if (entry < its.ListCount()) its.UserSelect(entry);
    });
  }
  void DoubleClick(int entry) {
    Act([entry](ListBox& its) {
      if (entry >= its.ListCount()) return;
      its.UserPoint(entry);
      if (its.OnDblClick) its.OnDblClick(std::max(its.Index(), 0));
    });
  }
  int pressed_ = -1;
};

}  // namespace

std::unique_ptr<ControlView> MakeComboView(ComboBox& combo, QWidget* parent) {
  return std::make_unique<ComboView>(combo, parent);
}

std::unique_ptr<ControlView> MakeListView(ListBox& list, QWidget* parent) {
  if (LookOf(list) == Look::CheckList) return std::make_unique<CheckListView>(list, parent);
  return std::make_unique<PlainListView>(list, parent);
}

}  // namespace tarnvik
