// Combo boxes and list boxes as data.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/control.h"

namespace tarnvik {

// What both have: texts, numbered from 0, of which one or none (-1) is the current one.
class ListControl : public Control {
 public:
  int ListCount() const { return static_cast<int>(items_.size()); }
  const std::string& List(int item) const;  // raises 380 outside the list
  void SetList(int item, std::string_view text);
  int ListIndex() const { return list_index_; }
  // By code: makes an entry the current one, -1 for none, and runs the click handler, also when it stays the
  // same. Raises 380 "Invalid property value" outside the list; nothing has changed then.
  void SetListIndex(int item);
  void UserSelect(int item);  // by the user; the same, but the handler is always reached
  // By the user, with the mouse button still held, or by code: no click comes of it.
  void UserPoint(int item);

 protected:
  ListControl(Form* owner, ControlKind kind, std::string name, int index)
      : Control(owner, kind, std::move(name), index) {}
  void PutListIndex(int item);
  std::vector<std::string> items_;
  int list_index_ = -1;
};

class ComboBox : public ListControl {
 public:
  ComboBox(Form* owner, std::string name, int index = -1)
      : ListControl(owner, ControlKind::ComboBox, std::move(name), index) {}
  void Clear();  // empties the list; no entry is current; no handler runs
  void AddItem(std::string_view text);
  void FillNumbers(int first, int last);  // empties the list and adds the whole numbers from first to last
  // The text of the current entry, "" when there is none.
  const std::string& Text() const;
};

// A list of which several entries may be marked: a check list.
class ListBox : public ListControl {
 public:
  ListBox(Form* owner, std::string name, int index = -1)
      : ListControl(owner, ControlKind::ListBox, std::move(name), index) {}
  void Clear();
  void AddItem(std::string_view text, bool selected = false);
  void InsertItem(int item, std::string_view text);  // before that entry, at the end for ListCount()
  void RemoveItem(int item);
  bool Selected(int item) const;              // raises 380 outside the list
  void SetSelected(int item, bool selected);  // by code: runs the click handler like a click
  void UserMark(int item, bool selected);     // by the user: makes the entry the current one too
  bool AnySelected() const;
  Handler OnDblClick = nullptr;
  void (*OnMouseDown)(int item) = nullptr;
  void (*OnMouseUp)(int item) = nullptr;

 private:
  void Check(int item) const;
  std::vector<char> selected_;
};

}  // namespace tarnvik
