#include "platform/lists.h"

#include <algorithm>

namespace tarnvik {

const std::string& ListControl::List(int item) const {
  if (item < 0 || item >= ListCount()) throw RunTimeError(kErrInvalidProperty);
  return items_[static_cast<std::size_t>(item)];
}

void ListControl::SetList(int item, std::string_view text) {
  if (item < 0 || item >= ListCount()) throw RunTimeError(kErrInvalidProperty);
  items_[static_cast<std::size_t>(item)] = text;
  MarkChanged();
}

void ListControl::PutListIndex(int item) {
  if (item < -1 || item >= ListCount()) throw RunTimeError(kErrInvalidProperty);
  list_index_ = item;
  MarkChanged();
}

void ListControl::SetListIndex(int item) {
  PutListIndex(item);
  RunClickByCode();
}

void ListControl::UserPoint(int item) { PutListIndex(item); }

void ListControl::UserSelect(int item) {
  PutListIndex(item);
  RunClick();
}

void ComboBox::Clear() {
  items_.clear();
  list_index_ = -1;
  MarkChanged();
}

void ComboBox::AddItem(std::string_view text) {
  items_.emplace_back(text);
  MarkChanged();
}

void ComboBox::FillNumbers(int first, int last) {
  Clear();
  for (int number = first; number <= last; ++number) items_.push_back(std::to_string(number));
}

const std::string& ComboBox::Text() const {
  static const std::string none;
  return list_index_ < 0 ? none : items_[static_cast<std::size_t>(list_index_)];
}

void ListBox::Clear() {
  items_.clear();
  selected_.clear();
  list_index_ = -1;
  MarkChanged();
}

void ListBox::AddItem(std::string_view text, bool selected) {
  items_.emplace_back(text);
  selected_.push_back(selected ? 1 : 0);
  MarkChanged();
}

void ListBox::Check(int item) const {
  if (item < 0 || item >= ListCount()) throw RunTimeError(kErrInvalidProperty);
}

void ListBox::InsertItem(int item, std::string_view text) {
  if (item != ListCount()) Check(item);
  items_.emplace(items_.begin() + item, text);
  selected_.insert(selected_.begin() + item, 0);
  if (list_index_ >= item) ++list_index_;
  MarkChanged();
}

void ListBox::RemoveItem(int item) {
  Check(item);
  items_.erase(items_.begin() + item);
  selected_.erase(selected_.begin() + item);
  if (list_index_ == item) {
    list_index_ = -1;
  } else if (list_index_ > item) {
    --list_index_;
  }
  MarkChanged();
}

bool ListBox::Selected(int item) const {
  Check(item);
  return selected_[static_cast<std::size_t>(item)] != 0;
}

void ListBox::SetSelected(int item, bool selected) {
  Check(item);
  selected_[static_cast<std::size_t>(item)] = selected ? 1 : 0;
  MarkChanged();
  RunClickByCode();
}

void ListBox::UserMark(int item, bool selected) {
  Check(item);
  selected_[static_cast<std::size_t>(item)] = selected ? 1 : 0;
  PutListIndex(item);
  RunClick();
}

bool ListBox::AnySelected() const {
  return std::any_of(selected_.begin(), selected_.end(), [](char s) { return s != 0; });
}

}  // namespace tarnvik
