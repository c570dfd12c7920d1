// The menu bar: an action for each entry of the menu table.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <memory>
#include <vector>

#include "desktop/forms/control_view.h"

namespace tarnvik {

// The view of one entry: its action, or the action of its menu when it has entries below it.
class MenuEntryView : public ControlView {
 public:
  MenuEntryView(MenuItem& entry, QAction* action);
  QWidget* Widget() const override { return nullptr; }
  void Refresh() override;

 private:
  QAction* action_;
};

// Fills a menu bar from the entries of a form, in the order of the record. Shortcuts that desktop programs
// have for the common entries are added to those of the table. `window_menu` gets the menu of the entry
// mnuWindow.
std::vector<std::unique_ptr<ControlView>> FillMenuBar(QMenuBar& bar, Form& form, QMenu*& window_menu);

// An entry as it stands now, for a menu that goes at once.
void AddEntry(QMenu& menu, MenuItem& entry);

}  // namespace tarnvik
