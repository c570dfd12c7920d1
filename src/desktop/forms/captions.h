// Captions on the screen: the letter that is reached with Alt, and what a screen reader says.
#pragma once

#include <QString>
#include <string>

class QWidget;

namespace tarnvik {

// The letters of one page: each is given once.
class AltLetters {
 public:
  explicit AltLetters(QString taken = QString()) : taken_(std::move(taken)) {}
  // Gives the widget a letter of the caption that no other has: the first of a word if possible. Without one
  // left the widget has none.
  void GiveTo(QWidget& widget, const std::string& caption);
  const QString& Taken() const { return taken_; }

 private:
  QString taken_;
};

// The caption for a widget that takes "&" as the mark of its letter.
QString MarkedCaption(const QWidget& widget, const std::string& caption);

// The name that a screen reader says; it stays, whatever the caption turns into.
void GiveSpokenName(QWidget& widget, const QString& name);
QString SpokenName(const QWidget& widget);

}  // namespace tarnvik
