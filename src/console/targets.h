// The controls and forms that commands name.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "console/console_host.h"
#include "platform/chart.h"
#include "platform/form.h"
#include "platform/grid.h"
#include "platform/lists.h"

namespace tarnvik {

template <class T>
constexpr ControlKind kKindOf = ControlKind::Label;
template <>
inline constexpr ControlKind kKindOf<CommandButton> = ControlKind::CommandButton;
template <>
inline constexpr ControlKind kKindOf<Frame> = ControlKind::Frame;
template <>
inline constexpr ControlKind kKindOf<TextBox> = ControlKind::TextBox;
template <>
inline constexpr ControlKind kKindOf<CheckBox> = ControlKind::CheckBox;
template <>
inline constexpr ControlKind kKindOf<OptionButton> = ControlKind::OptionButton;
template <>
inline constexpr ControlKind kKindOf<ComboBox> = ControlKind::ComboBox;
template <>
inline constexpr ControlKind kKindOf<ListBox> = ControlKind::ListBox;
template <>
inline constexpr ControlKind kKindOf<TabStrip> = ControlKind::TabStrip;
template <>
inline constexpr ControlKind kKindOf<Grid> = ControlKind::Grid;
template <>
inline constexpr ControlKind kKindOf<Chart> = ControlKind::Chart;
template <>
inline constexpr ControlKind kKindOf<RichText> = ControlKind::RichText;
template <>
inline constexpr ControlKind kKindOf<MenuItem> = ControlKind::MenuItem;
template <>
inline constexpr ControlKind kKindOf<StatusBar> = ControlKind::StatusBar;

// The kind in words: "a text box".
const char* KindText(ControlKind kind);
// The control as a user of the console writes it: "frmInput.txtEstimate(5)", "mnuFileOpen".
std::string ControlName(const Control& control);

// An error for a control of another kind.
void CheckKind(const Control& control, std::initializer_list<ControlKind> wanted);

// --- For questions: nothing is loaded; what is not there is an error.

FormSlot& LoadedForm(std::string_view name);
Control& LookUp(std::string_view name);

template <class T>
T& LookUp(std::string_view name) {
  Control& control = LookUp(name);
  CheckKind(control, {kKindOf<T>});
  return static_cast<T&>(control);
}

// --- For acts: refused where a user could not reach it.

// A loaded form that no modal form keeps from the user.
FormSlot& ReachForm(const ConsoleHost& host, std::string_view name);
// A control of one of these kinds on such a form that is enabled and visible, with all that it lies in.
Control& Reach(const ConsoleHost& host, std::string_view name, std::initializer_list<ControlKind> wanted);

template <class T>
T& Reach(const ConsoleHost& host, std::string_view name) {
  return static_cast<T&>(Reach(host, name, {kKindOf<T>}));
}

}  // namespace tarnvik
