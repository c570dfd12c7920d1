// The field in which a cell of a grid is edited.
#pragma once

#include <QLineEdit>
#include <functional>

#include "desktop/grids/grid_cells.h"

namespace tarnvik {

// How an edit ends: the text is kept, unless it is abandoned, and the current cell moves on.
enum class EditEnd { Stay, Abandon, Enter, EnterBack, Tab, TabBack, Up, Down, Left, Right };

// What a key types; the number pad gives the decimal point of numbers whatever the keyboard's language.
QString TypedBy(const QKeyEvent& event);

class CellEditor : public QLineEdit {
 public:
  // `typed` is what began the edit: it replaces the text, and the arrows lead on to other cells. Null: the
  // cell's text is edited, and the left and right arrows move within it.
  CellEditor(CellAt at, const QString& text, const QString* typed, QWidget* parent);
  CellAt At() const { return at_; }
  // Called once at most; the editor is no longer needed then.
  std::function<void(EditEnd)> Ended;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void End(EditEnd how);
  CellAt at_;
  bool begun_by_typing_;
  bool in_menu_ = false;
};

}  // namespace tarnvik
