#include "desktop/forms/page_views.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>

#include "charts/text.h"
#include "desktop/forms/captions.h"
#include "desktop/forms/layouts.h"

namespace tarnvik {

// --- Frames

FrameView::FrameView(Frame& frame, QWidget* parent) : FieldView(frame, new QGroupBox(parent)) { Refresh(); }

void FrameView::Refresh() {
  widget_->setTitle(MarkedCaption(*widget_, Shown()->Caption()));
  ShowCommon(*Shown(), *widget_);
}

// --- Tab controls

namespace {

// Captions of pages come with blanks that once widened their tabs.
QString PageCaption(const TabStrip& tabs, int page) { return ShownText(tabs.TabCaption(page)).simplified(); }

// A page larger than the window scrolls.
QScrollArea* MakePage(QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(new QWidget(area));
  return area;
}

QListWidget* MakeList(QWidget* parent) {
  auto* list = new QListWidget(parent);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  list->setSpacing(2);
  return list;
}

QTabBar* MakeBar(QWidget* parent) {
  auto* bar = new QTabBar(parent);
  bar->setDrawBase(true);
  bar->setExpanding(false);
  bar->setUsesScrollButtons(true);
  return bar;
}

}  // namespace

PagesView::PagesView(TabStrip& tabs, QWidget* parent)
    : FieldView(tabs, new QWidget(parent)), filled_(static_cast<std::size_t>(tabs.Tabs()), false) {
  const bool as_list = tabs.Tabs() > kMostTabsInARow;
  auto* layout = new QBoxLayout(as_list ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, widget_);
  layout->setContentsMargins(0, 0, 0, 0);
  if (as_list) {
    list_ = MakeList(widget_);
    for (int page = 0; page < tabs.Tabs(); ++page) list_->addItem(QString());
    QObject::connect(list_, &QListWidget::currentRowChanged, widget_, [this](int page) { Turn(page); });
  } else {
    bar_ = MakeBar(widget_);
    for (int page = 0; page < tabs.Tabs(); ++page) bar_->addTab(QString());
    QObject::connect(bar_, &QTabBar::currentChanged, widget_, [this](int page) { Turn(page); });
    layout->setSpacing(0);
  }
  Turner()->setAccessibleName("Pages");
  layout->addWidget(Turner());
  pages_ = new QStackedWidget(widget_);
  layout->addWidget(pages_, 1);
  for (int page = 0; page < tabs.Tabs(); ++page) pages_->addWidget(MakePage(pages_));
  if (tabs.Container()) return;  // the keys turn the pages of the outermost
  Turner()->setToolTip("Ctrl+Page Down and Ctrl+Page Up turn the pages");
  for (const int step : {1, -1}) {
    auto* key = new QShortcut(step > 0 ? Qt::CTRL | Qt::Key_PageDown : Qt::CTRL | Qt::Key_PageUp, widget_);
    key->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(key, &QShortcut::activated, widget_, [this, step] {
      if (!Shown()) return;
      int page = Its()->Tab() + step;
      while (page >= 0 && page < Its()->Tabs() && !Its()->TabEnabled(page)) page += step;
      if (page >= 0 && page < Its()->Tabs()) Turn(page);
    });
  }
}

QWidget* PagesView::Turner() const { return bar_ ? static_cast<QWidget*>(bar_) : list_; }

void PagesView::Turn(int page) {
  if (!Shown() || page < 0 || page == Its()->Tab()) return;
  Act([page](TabStrip& its) {
    its.SetTab(page);
    its.UserClick();
  });
}

void PagesView::FillPage(int page) {
  const auto at = static_cast<std::size_t>(page);
  if (filled_[at]) return;
  filled_[at] = true;
  fill_(page, *static_cast<QScrollArea*>(pages_->widget(page))->widget());
}

void PagesView::OrderTabs(const std::vector<std::unique_ptr<ControlView>>& views, std::size_t first) const {
  QWidget* before = Turner();
  for (std::size_t at = first; at < views.size(); ++at) {
    const auto* inner = dynamic_cast<const PagesView*>(views[at].get());
    QWidget* widget = inner ? inner->Turner() : views[at]->Widget();
    if (widget->focusProxy()) widget = widget->focusProxy();
    if (!(widget->focusPolicy() & Qt::TabFocus)) continue;
    QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

void PagesView::ShowTabs() {
  const QSignalBlocker quiet(bar_);
  for (int page = 0; page < Its()->Tabs(); ++page) {
    bar_->setTabText(page, PageCaption(*Its(), page).replace('&', "&&"));
    bar_->setTabEnabled(page, Its()->TabEnabled(page));
  }
  bar_->setCurrentIndex(Its()->Tab());
}

void PagesView::ShowList() {
  const QSignalBlocker quiet(list_);
  for (int page = 0; page < Its()->Tabs(); ++page) {
    QListWidgetItem& item = *list_->item(page);
    item.setText(PageCaption(*Its(), page));
    item.setFlags(Its()->TabEnabled(page) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
  }
  list_->setCurrentRow(Its()->Tab());
  list_->setFixedWidth(list_->sizeHintForColumn(0) + 2 * (list_->frameWidth() + list_->spacing()) +
                       list_->verticalScrollBar()->sizeHint().width());
}

void PagesView::Refresh() {
  if (bar_) {
    ShowTabs();
  } else {
    ShowList();
  }
  FillPage(Its()->Tab());
  pages_->setCurrentIndex(Its()->Tab());
  ShowCommon(*Shown(), *widget_);
}

}  // namespace tarnvik
