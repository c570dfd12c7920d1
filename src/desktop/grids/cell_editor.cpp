#include "desktop/grids/cell_editor.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <memory>
#include <optional>
#include <utility>

namespace tarnvik {

namespace {

std::optional<EditEnd> EndOf(const QKeyEvent& event, bool begun_by_typing) {
  const bool back = event.modifiers().testFlag(Qt::ShiftModifier);
  switch (event.key()) {
    case Qt::Key_Escape:
      return EditEnd::Abandon;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return back ? EditEnd::EnterBack : EditEnd::Enter;
    case Qt::Key_Tab:
      return EditEnd::Tab;
    case Qt::Key_Backtab:
      return EditEnd::TabBack;
    default:
      break;
  }
  if (event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier)) return std::nullopt;
  if (event.key() == Qt::Key_Up) return EditEnd::Up;
  if (event.key() == Qt::Key_Down) return EditEnd::Down;
  if (begun_by_typing && event.key() == Qt::Key_Left) return EditEnd::Left;
  if (begun_by_typing && event.key() == Qt::Key_Right) return EditEnd::Right;
  return std::nullopt;
}

}  // namespace

QString TypedBy(const QKeyEvent& event) {
  const bool pad = event.modifiers().testFlag(Qt::KeypadModifier);
  return pad && event.text() == u"," ? QStringLiteral(".") : event.text();
}

CellEditor::CellEditor(CellAt at, const QString& text, const QString* typed, QWidget* parent)
    : QLineEdit(text, parent), at_(at), begun_by_typing_(typed != nullptr) {
  setFrame(false);
  setAutoFillBackground(true);
  if (!typed) return;
  // As a change of the old text, so that Ctrl+Z in the field brings that back.
  selectAll();
  insert(*typed);
}

// Tab would be taken for leaving the field, Escape and F keys for shortcuts of the window.
bool CellEditor::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride &&
      EndOf(static_cast<const QKeyEvent&>(*event), begun_by_typing_)) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    if (const auto end = EndOf(static_cast<const QKeyEvent&>(*event), begun_by_typing_)) {
      End(*end);
      return true;
    }
  }
  return QLineEdit::event(event);
}

void CellEditor::keyPressEvent(QKeyEvent* event) {
  if (event->text() == u"," && TypedBy(*event) != u",") {
    insert(TypedBy(*event));
  } else {
    QLineEdit::keyPressEvent(event);
  }
  // What the field has no use for is not for the table either while it is open.
  event->accept();
}

void CellEditor::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (!in_menu_) End(EditEnd::Stay);
}

void CellEditor::contextMenuEvent(QContextMenuEvent* event) {
  in_menu_ = true;
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  menu->exec(event->globalPos());
  in_menu_ = false;
  setFocus();
}

void CellEditor::End(EditEnd how) {
  if (const auto ended = std::exchange(Ended, nullptr)) ended(how);
}

}  // namespace tarnvik
