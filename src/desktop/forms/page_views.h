// Views of what holds other controls: frames, and tab controls with their pages.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "desktop/forms/field_views.h"

class QGroupBox;
class QListWidget;
class QStackedWidget;
class QTabBar;

namespace tarnvik {

class FrameView : public FieldView<Frame, QGroupBox> {
 public:
  FrameView(Frame& frame, QWidget* parent);
  void Refresh() override;
};

// A tab control: a row of tabs, or, of many pages, a list of them at the left. A page is filled when it is
// first seen.
class PagesView : public FieldView<TabStrip, QWidget> {
 public:
  using Fill = std::function<void(int page, QWidget& place)>;
  PagesView(TabStrip& tabs, QWidget* parent);
  // How pages are filled; nothing is shown before.
  void SetFill(Fill fill) { fill_ = std::move(fill); }
  void Refresh() override;
  // Fills a page if that has not been done yet.
  void FillPage(int page);
  // The Tab key goes from the tabs through the widgets of the views made since the first of them.
  void OrderTabs(const std::vector<std::unique_ptr<ControlView>>& views, std::size_t first) const;
  // The row or list of the tabs.
  QWidget* Turner() const;

 private:
  void Turn(int page);
  void ShowTabs();
  void ShowList();
  Fill fill_;
  std::vector<bool> filled_;
  QStackedWidget* pages_;
  QTabBar* bar_ = nullptr;
  QListWidget* list_ = nullptr;  // either this or the bar
};

}  // namespace tarnvik
