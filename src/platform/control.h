// Controls as data: what every control has, control arrays, and the kinds that hold one value.
//
// A control belongs to a form, registers there under its name, and marks itself when something that a
// view shows has changed. It never draws.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/runtime_error.h"

namespace tarnvik {

class Form;

// A colour is an RGB value or the role of a system colour, which the window maps to the desktop's own.
struct Color {
  std::int32_t value;
  friend bool operator==(Color, Color) = default;
};
constexpr Color Rgb(int red, int green, int blue) { return Color{(red << 16) | (green << 8) | blue}; }
inline constexpr Color kRed = Rgb(255, 0, 0);
inline constexpr Color kBlue = Rgb(0, 0, 255);
inline constexpr Color kBlack = Rgb(0, 0, 0);
inline constexpr Color kNearBlack = Rgb(1, 1, 1);
inline constexpr Color kWindowBackground{-1};
inline constexpr Color kButtonFace{-2};
// "#rrggbb", or the name of the role.
std::string ColorText(Color color);

enum class ControlKind {
  Label,
  CommandButton,
  Frame,
  TextBox,
  CheckBox,
  OptionButton,
  ComboBox,
  ListBox,
  TabStrip,
  Grid,
  Chart,
  RichText,
  MenuItem,
  StatusBar
};

// A handler gets the index of the control in its array, 0 for a control that stands alone.
using Handler = void (*)(int index);

class Control {
 public:
  // index is -1 for a control that is not in an array.
  Control(Form* owner, ControlKind kind, std::string name, int index);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  std::string FullName() const;  // "txtEstimate(5)"
  ControlKind Kind() const { return kind_; }
  Form& Owner() const { return *owner_; }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  const std::string& Tip() const { return tip_; }
  void SetTip(std::string_view tip);
  Color ForeColor() const { return fore_; }
  void SetForeColor(Color color);
  Color BackColor() const { return back_; }
  void SetBackColor(Color color);

  // The frame or tab control in which this one lies (null: the form itself), and the page of a tab control.
  Control* Container() const { return container_; }
  int Page() const { return page_; }
  void SetContainer(Control* container, int page = 0);
  // Whether a user could act on it: it and all its containers are enabled and visible.
  bool Reachable() const;

  Handler OnClick = nullptr;

  // Runs the handler of a user's click. Clicks made by code rest while the form says so (see Form).
  void UserClick() { RunClick(); }

  // The one change notification: marks the control once until a view has taken note of it.
  bool Changed() const { return changed_; }
  void ClearChanged() { changed_ = false; }

 protected:
  void MarkChanged();
  void RunClick();        // the click handler, if any, in an event of its own
  void RunClickByCode();  // the same, unless the owner lets clicks by code rest
  int HandlerIndex() const { return index_ < 0 ? 0 : index_; }

 private:
  Form* owner_;
  ControlKind kind_;
  int index_;
  bool enabled_ = true;
  bool visible_ = true;
  bool changed_ = false;
  int page_ = 0;
  Color fore_ = kBlack;
  Color back_ = kWindowBackground;
  Control* container_ = nullptr;
  std::string name_;
  std::string caption_;
  std::string tip_;
};

// A view sets this to learn of the first change of a control since its ClearChanged. It must not draw there.
extern void (*OnControlChanged)(Control& control);

// Controls of one name, told apart by their index; the numbering may have gaps.
template <class T>
class ControlArray {
 public:
  ControlArray(Form* owner, const char* name, std::initializer_list<int> indices) : name_(name) {
    for (int index : indices) {
      const auto at = static_cast<std::size_t>(index);
      if (items_.size() <= at) items_.resize(at + 1);
      items_[at] = std::make_unique<T>(owner, name, index);
      if constexpr (requires(T & t) { t.SetGroup(this); }) items_[at]->SetGroup(this);
    }
  }
  // Raises run-time error 340 for an index that the array does not have.
  T& operator()(int index) const {
    if (!Has(index)) {
      throw RunTimeError(kErrNoControlElement,
                         "Control array element '" + std::to_string(index) + "' doesn't exist");
    }
    return *items_[static_cast<std::size_t>(index)];
  }
  bool Has(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < items_.size() &&
           items_[static_cast<std::size_t>(index)];
  }
  // Calls f for each element in ascending order of the index.
  template <class F>
  void ForEach(F&& f) const {
    for (const auto& item : items_) {
      if (item) f(*item);
    }
  }
  void SetHandler(Handler T::*event, Handler handler) {
    ForEach([&](T& item) { item.*event = handler; });
  }

 private:
  std::string name_;
  std::vector<std::unique_ptr<T>> items_;
};

class Label : public Control {
 public:
  Label(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::Label, std::move(name), index) {
    SetBackColor(kButtonFace);
  }
};

class CommandButton : public Control {
 public:
  CommandButton(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::CommandButton, std::move(name), index) {
    SetBackColor(kButtonFace);
  }
};

class Frame : public Control {
 public:
  Frame(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::Frame, std::move(name), index) {
    SetBackColor(kButtonFace);
  }
};

class TextBox : public Control {
 public:
  TextBox(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::TextBox, std::move(name), index) {}
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  // The marked part of the text, from 0.
  int SelStart = 0;
  int SelLength = 0;
  Handler OnLostFocus = nullptr;           // raised by the front end only
  void (*OnKeyPress)(int code) = nullptr;  // raised by the front end only, with the key's code

 private:
  std::string text_;
};

class CheckBox : public Control {
 public:
  CheckBox(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::CheckBox, std::move(name), index) {
    SetBackColor(kButtonFace);
  }
  int Value() const { return value_; }  // 0 or 1
  bool IsChecked() const { return value_ == 1; }
  void SetValue(int value);   // by code: runs the click handler, also when the value stays the same
  void UserCheck(int value);  // by the user
 private:
  int value_ = 0;
};

// One of a group; setting one clears the others of its array.
class OptionButton : public Control {
 public:
  OptionButton(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::OptionButton, std::move(name), index) {
    SetBackColor(kButtonFace);
  }
  bool Value() const { return value_; }
  // True by code: clears the rest of the group and runs the click handler, also when it was set already.
  // False only takes the mark away.
  void SetValue(bool value);
  void UserChoose();
  void SetGroup(const ControlArray<OptionButton>* group) { group_ = group; }

 private:
  void Put(bool value);
  bool value_ = false;
  const ControlArray<OptionButton>* group_ = nullptr;
};

// A tab control: pages with captions, one in front. Pages count from 0.
class TabStrip : public Control {
 public:
  TabStrip(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::TabStrip, std::move(name), index) {
    SetBackColor(kButtonFace);
  }
  void SetPages(std::initializer_list<const char*> captions);  // all enabled, the first in front
  int Tabs() const { return static_cast<int>(pages_.size()); }
  int Tab() const { return tab_; }
  void SetTab(int tab);  // raises 380 for a page that is not there
  const std::string& TabCaption(int tab) const { return At(tab).caption; }
  void SetTabCaption(int tab, std::string_view caption);
  bool TabEnabled(int tab) const { return At(tab).enabled; }
  void SetTabEnabled(int tab, bool enabled);

 private:
  struct PageState {
    std::string caption;
    bool enabled = true;
  };
  const PageState& At(int tab) const;
  std::vector<PageState> pages_;
  int tab_ = 0;
};

// A box for viewing long plain texts, of which the user may mark a part.
class RichText : public Control {
 public:
  RichText(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::RichText, std::move(name), index) {}
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  void Select(std::size_t start, std::size_t length);  // bytes; cut to the text
  std::string SelText() const { return text_.substr(sel_start_, sel_length_); }
  int Edition() const { return edition_; }  // counts the texts set
  // The width at which lines wrap, in widths of the control.
  double RightMargin = 1.0;

 private:
  std::string text_;
  int edition_ = 0;
  std::size_t sel_start_ = 0;
  std::size_t sel_length_ = 0;
};

class MenuItem : public Control {
 public:
  MenuItem(Form* owner, std::string name, int index = -1)
      : Control(owner, ControlKind::MenuItem, std::move(name), index) {}
  bool Checked() const { return checked_; }
  void SetChecked(bool checked);
  bool IsSeparator() const { return Caption() == "-"; }
  // Design values, set once from the menu table.
  MenuItem* Parent = nullptr;
  std::string Shortcut;
  int HelpId = 0;

 private:
  bool checked_ = false;
};

// Panels count from 1.
class StatusBar : public Control {
 public:
  StatusBar(Form* owner, std::string name, int panels)
      : Control(owner, ControlKind::StatusBar, std::move(name), -1),
        panels_(static_cast<std::size_t>(panels)) {}
  int Panels() const { return static_cast<int>(panels_.size()); }
  const std::string& Panel(int panel) const;
  void SetPanel(int panel, std::string_view text);

 private:
  std::vector<std::string> panels_;
};

}  // namespace tarnvik
