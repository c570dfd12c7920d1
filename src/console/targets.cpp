#include "console/targets.h"

#include "console/outcome.h"
#include "console/words.h"
#include "core/frmmain.h"

namespace tarnvik {

const char* KindText(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label:
      return "a label";
    case ControlKind::CommandButton:
      return "a button";
    case ControlKind::Frame:
      return "a frame";
    case ControlKind::TextBox:
      return "a text box";
    case ControlKind::CheckBox:
      return "a check box";
    case ControlKind::OptionButton:
      return "an option button";
    case ControlKind::ComboBox:
      return "a combo box";
    case ControlKind::ListBox:
      return "a list box";
    case ControlKind::TabStrip:
      return "a tab control";
    case ControlKind::Grid:
      return "a grid";
    case ControlKind::Chart:
      return "a chart";
    case ControlKind::RichText:
      return "a text viewer";
    case ControlKind::MenuItem:
      return "a menu entry";
    case ControlKind::StatusBar:
      return "a status bar";
  }
  return "a control";
}

std::string ControlName(const Control& control) {
  if (control.Kind() == ControlKind::MenuItem) return control.FullName();
  return control.Owner().Name() + "." + control.FullName();
}

namespace {

FormSlot& KnownForm(std::string_view name) {
  FormSlot* slot = FindForm(name);
  if (!slot) StopWithError("no form " + std::string(name));
  return *slot;
}

// A name taken apart: its form and what stands behind the point. A menu entry may stand alone.
struct ControlWord {
  FormSlot& slot;
  std::string_view control;
  bool alone;
};

ControlWord TakeWordApart(std::string_view name) {
  const std::size_t point = name.find('.');
  if (point == std::string_view::npos) return {frmMain, name, true};
  return {KnownForm(name.substr(0, point)), name.substr(point + 1), false};
}

Control& ControlOf(const ControlWord& word, std::string_view name) {
  Control* control = nullptr;
  const auto indexed = ReadIndexedName(word.control);
  if (indexed && indexed->at.size() <= 1) {
    control = word.slot.Record()->Find(indexed->name, indexed->at.empty() ? -1 : indexed->at[0]);
  }
  if (!control || (word.alone && control->Kind() != ControlKind::MenuItem)) {
    StopWithError("no control " + std::string(name));
  }
  return *control;
}

std::string NotLoaded(const FormSlot& slot) { return slot.Name() + " is not loaded"; }

}  // namespace

FormSlot& LoadedForm(std::string_view name) {
  FormSlot& slot = KnownForm(name);
  if (!slot.Loaded()) StopWithError(NotLoaded(slot));
  return slot;
}

Control& LookUp(std::string_view name) {
  const ControlWord word = TakeWordApart(name);
  if (!word.slot.Loaded()) StopWithError(NotLoaded(word.slot));
  return ControlOf(word, name);
}

void CheckKind(const Control& control, std::initializer_list<ControlKind> wanted) {
  std::string kinds;
  for (const ControlKind kind : wanted) {
    if (control.Kind() == kind) return;
    if (!kinds.empty()) kinds += " or ";
    kinds += KindText(kind);
  }
  StopWithError(ControlName(control) + " is " + KindText(control.Kind()) + ", not " + kinds);
}

// --- What keeps a user from a control

namespace {

const char* OwnObstacle(const Control& control) {
  if (!control.Visible()) return "is hidden";
  if (!control.Enabled()) return "is disabled";
  return nullptr;
}

// What a control lies in: its container, or the menu in which the entry stands.
const Control* Surrounding(const Control& control) {
  if (control.Kind() == ControlKind::MenuItem) return static_cast<const MenuItem&>(control).Parent;
  return control.Container();
}

bool OnDisabledPage(const Control& control) {
  if (!control.Container() || control.Container()->Kind() != ControlKind::TabStrip) return false;
  const auto& tabs = static_cast<const TabStrip&>(*control.Container());
  return control.Page() >= 0 && control.Page() < tabs.Tabs() && !tabs.TabEnabled(control.Page());
}

void RefuseIfOutOfReach(const Control& control) {
  const std::string name = ControlName(control);
  if (const char* obstacle = OwnObstacle(control)) Refuse(name + " " + obstacle);
  for (const Control* inner = &control; inner; inner = Surrounding(*inner)) {
    if (OnDisabledPage(*inner)) {
      Refuse(name + " lies on page " + std::to_string(inner->Page()) + " of " +
             inner->Container()->FullName() + ", which is disabled");
    }
    const Control* outer = Surrounding(*inner);
    const char* obstacle = outer ? OwnObstacle(*outer) : nullptr;
    if (obstacle) Refuse(name + " lies in " + outer->FullName() + ", which " + obstacle);
  }
}

void RefuseIfOutOfReach(const ConsoleHost& host, const FormSlot& slot) {
  if (!slot.Loaded()) Refuse(NotLoaded(slot));
  const FormSlot* modal = host.ModalForm();
  if (modal && modal != &slot) Refuse(slot.Name() + " is behind " + modal->Name());
}

}  // namespace

FormSlot& ReachForm(const ConsoleHost& host, std::string_view name) {
  FormSlot& slot = KnownForm(name);
  RefuseIfOutOfReach(host, slot);
  return slot;
}

Control& Reach(const ConsoleHost& host, std::string_view name, std::initializer_list<ControlKind> wanted) {
  const ControlWord word = TakeWordApart(name);
  if (!word.slot.Loaded()) Refuse(NotLoaded(word.slot));
  Control& control = ControlOf(word, name);
  CheckKind(control, wanted);
  RefuseIfOutOfReach(host, word.slot);
  RefuseIfOutOfReach(control);
  return control;
}

}  // namespace tarnvik
