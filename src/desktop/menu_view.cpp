#include "desktop/menu_view.h"

#include <QKeySequence>
#include <unordered_map>

#include "charts/text.h"
#include "desktop/forms/events.h"
#include "platform/form.h"

namespace tarnvik {

namespace {

// What users of desktop programs try, beside the shortcuts of the table.
constexpr struct {
  const char* entry;
  const char* keys;
} kShortcuts[] = {{"mnuFileCreateAll", "Ctrl+N"},
                  {"mnuFileOpen", "Ctrl+O"},
                  {"mnuFileSaveAll", "Ctrl+S"},
                  {"mnuFileExit", "Ctrl+Q"},
                  {"mnuFileSaveAllAs", "Ctrl+Shift+S"},
                  {"mnuModelRun", "F5"},
                  {"mnuHelpUsing", "F1"}};

QKeySequence ShortcutOf(const MenuItem& entry) {
  for (const auto& row : kShortcuts) {
    if (entry.Name() == row.entry) return QKeySequence(row.keys);
  }
  return {};
}

// Letters to press with Alt: the first letter of each word that no entry of the same menu has yet.
QString WithMnemonic(const QString& caption, QString& taken) {
  for (qsizetype at = 0; at < caption.size(); ++at) {
    const QChar letter = caption[at].toLower();
    const bool begins_word = at == 0 || caption[at - 1] == ' ';
    if (!begins_word || !letter.isLetter() || taken.contains(letter)) continue;
    taken += letter;
    return QString(caption).insert(at, '&');
  }
  return caption;
}

void Choose(Control* entry) {
  if (!entry || !entry->OnClick) return;
  CommitPendingEdits();
  // What was being edited may have taken the entry away.
  if (entry->Reachable()) UserEvent([entry] { entry->UserClick(); });
}

}  // namespace

MenuEntryView::MenuEntryView(MenuItem& entry, QAction* action) : ControlView(entry), action_(action) {
  QObject::connect(action, &QAction::triggered, action, [this] {
    Refresh();  // a checkable action checks itself; the logic has the last word
    Choose(Shown());
    Refresh();
  });
  Refresh();
}

void MenuEntryView::Refresh() {
  if (!Shown()) return;
  const MenuItem& entry = static_cast<const MenuItem&>(*Shown());
  action_->setEnabled(entry.Enabled());
  action_->setVisible(entry.Visible());
  action_->setCheckable(entry.Checked());
  action_->setChecked(entry.Checked());
}

std::vector<std::unique_ptr<ControlView>> FillMenuBar(QMenuBar& bar, Form& form, QMenu*& window_menu) {
  std::vector<std::unique_ptr<ControlView>> views;
  std::unordered_map<const MenuItem*, bool> has_children;
  for (Control* control : form.Controls()) {
    if (control->Kind() != ControlKind::MenuItem) continue;
    if (const MenuItem* parent = static_cast<MenuItem*>(control)->Parent) has_children[parent] = true;
  }
  std::unordered_map<const MenuItem*, QMenu*> menus;
  std::unordered_map<const MenuItem*, QString> taken;
  for (Control* control : form.Controls()) {
    if (control->Kind() != ControlKind::MenuItem) continue;
    MenuItem& entry = static_cast<MenuItem&>(*control);
    QMenu* parent = entry.Parent ? menus[entry.Parent] : nullptr;
    if (entry.IsSeparator()) {
      parent->addSeparator();
      continue;
    }
    const QString caption = WithMnemonic(ShownText(entry.Caption()), taken[entry.Parent]);
    QAction* action = nullptr;
    if (has_children[&entry] || !parent) {
      QMenu* menu = parent ? parent->addMenu(caption) : bar.addMenu(caption);
      menus[&entry] = menu;
      action = menu->menuAction();
      if (entry.Name() == "mnuWindow") window_menu = menu;
    } else {
      action = parent->addAction(caption);
      action->setShortcut(ShortcutOf(entry));
    }
    action->setObjectName(ShownText(entry.Name()));
    views.push_back(std::make_unique<MenuEntryView>(entry, action));
  }
  return views;
}

void AddEntry(QMenu& menu, MenuItem& entry) {
  if (entry.IsSeparator()) {
    menu.addSeparator();
    return;
  }
  QAction* action = menu.addAction(ShownText(entry.Caption() + "\t" + entry.Shortcut));
  action->setEnabled(entry.Enabled());
  action->setVisible(entry.Visible());
  QObject::connect(action, &QAction::triggered, action, [&entry] { Choose(&entry); });
}

}  // namespace tarnvik
