#include "platform/control.h"

#include <algorithm>
#include <utility>

#include "platform/form.h"

namespace tarnvik {

void (*OnControlChanged)(Control& control) = nullptr;

std::string ColorText(Color color) {
  if (color == kWindowBackground) return "WindowBackground";
  if (color == kButtonFace) return "ButtonFace";
  static const char* digits = "0123456789abcdef";
  std::string text = "#000000";
  for (int i = 0; i < 6; ++i) {
    text[static_cast<std::size_t>(6 - i)] = digits[(color.value >> (4 * i)) & 15];
  }
  return text;
}

Control::Control(Form* owner, ControlKind kind, std::string name, int index)
    : owner_(owner), kind_(kind), index_(index), name_(std::move(name)) {
  owner_->Register(this);
}

std::string Control::FullName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::MarkChanged() {
  if (changed_) return;
  changed_ = true;
  if (OnControlChanged) OnControlChanged(*this);
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  MarkChanged();
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  MarkChanged();
}

void Control::SetCaption(std::string_view caption) {
  caption_ = caption;
  MarkChanged();
}

void Control::SetTip(std::string_view tip) {
  tip_ = tip;
  MarkChanged();
}

void Control::SetForeColor(Color color) {
  fore_ = color;
  MarkChanged();
}

void Control::SetBackColor(Color color) {
  back_ = color;
  MarkChanged();
}

void Control::SetContainer(Control* container, int page) {
  container_ = container;
  page_ = page;
}

bool Control::Reachable() const {
  for (const Control* c = this; c; c = c->container_) {
    if (!c->enabled_ || !c->visible_) return false;
  }
  return true;
}

void Control::RunClick() {
  if (!OnClick) return;
  EventScope event;
  OnClick(HandlerIndex());
}

void Control::RunClickByCode() {
  if (OnClick && !owner_->CodeClicksRest()) RunClick();
}

void TextBox::SetText(std::string_view text) {
  text_ = text;
  MarkChanged();
}

void CheckBox::SetValue(int value) {
  value_ = value;
  MarkChanged();
  RunClickByCode();
}

void CheckBox::UserCheck(int value) {
  value_ = value;
  MarkChanged();
  RunClick();
}

void OptionButton::Put(bool value) {
  value_ = value;
  MarkChanged();
  if (value && group_) {
    group_->ForEach([this](OptionButton& other) {
      if (&other != this && other.value_) other.Put(false);
    });
  }
}

void OptionButton::SetValue(bool value) {
  Put(value);
  if (value) RunClickByCode();
}

void OptionButton::UserChoose() {
  Put(true);
  RunClick();
}

void TabStrip::SetPages(std::initializer_list<const char*> captions) {
  pages_.clear();
  for (const char* caption : captions) pages_.push_back(PageState{caption, true});
  tab_ = 0;
  MarkChanged();
}

const TabStrip::PageState& TabStrip::At(int tab) const {
  if (tab < 0 || tab >= Tabs()) throw RunTimeError(kErrInvalidProperty);
  return pages_[static_cast<std::size_t>(tab)];
}

void TabStrip::SetTab(int tab) {
  At(tab);
  tab_ = tab;
  MarkChanged();
}

void TabStrip::SetTabCaption(int tab, std::string_view caption) {
  At(tab);
  pages_[static_cast<std::size_t>(tab)].caption = caption;
  MarkChanged();
}

void TabStrip::SetTabEnabled(int tab, bool enabled) {
  At(tab);
  pages_[static_cast<std::size_t>(tab)].enabled = enabled;
  MarkChanged();
}

void RichText::SetText(std::string text) {
  text_ = std::move(text);
  ++edition_;
  sel_start_ = sel_length_ = 0;
  MarkChanged();
}

void RichText::Select(std::size_t start, std::size_t length) {
  sel_start_ = std::min(start, text_.size());
  sel_length_ = std::min(length, text_.size() - sel_start_);
  MarkChanged();
}

void MenuItem::SetChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  MarkChanged();
}

const std::string& StatusBar::Panel(int panel) const {
  if (panel < 1 || panel > Panels()) throw RunTimeError(kErrInvalidProperty);
  return panels_[static_cast<std::size_t>(panel - 1)];
}

void StatusBar::SetPanel(int panel, std::string_view text) {
  if (panel < 1 || panel > Panels()) throw RunTimeError(kErrInvalidProperty);
  panels_[static_cast<std::size_t>(panel - 1)] = text;
  MarkChanged();
}

}  // namespace tarnvik
