#include "desktop/forms/captions.h"

#include <QVariant>
#include <QWidget>

#include "charts/text.h"

namespace tarnvik {

namespace {

constexpr const char* kLetter = "altLetter";
constexpr const char* kSpokenName = "spokenName";

bool StartsWord(const QString& text, qsizetype at) { return at == 0 || !text[at - 1].isLetterOrNumber(); }

// The place of a letter in a text, at the start of a word if there is one; -1 when it has none.
qsizetype PlaceOf(const QString& text, QChar letter) {
  qsizetype place = -1;
  for (qsizetype at = text.size() - 1; at >= 0; --at) {
    if (text[at].toUpper() != letter) continue;
    if (StartsWord(text, at)) return at;
    place = at;
  }
  return place;
}

}  // namespace

void AltLetters::GiveTo(QWidget& widget, const std::string& caption) {
  const QString text = ShownText(caption);
  for (const bool word_starts_only : {true, false}) {
    for (qsizetype at = 0; at < text.size(); ++at) {
      const QChar letter = text[at].toUpper();
      const bool usable = letter.unicode() < 128 && letter.isLetter() && !taken_.contains(letter);
      if (!usable || (word_starts_only && !StartsWord(text, at))) continue;
      taken_ += letter;
      widget.setProperty(kLetter, letter);
      return;
    }
  }
}

QString MarkedCaption(const QWidget& widget, const std::string& caption) {
  const QString text = ShownText(caption);
  const QChar letter = widget.property(kLetter).toChar();
  const qsizetype marked = letter.isNull() ? -1 : PlaceOf(text, letter);
  QString shown;
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (at == marked || text[at] == '&') shown += '&';
    shown += text[at];
  }
  return shown;
}

void GiveSpokenName(QWidget& widget, const QString& name) {
  widget.setProperty(kSpokenName, name);
  widget.setAccessibleName(name);
  QWidget* inner = widget.focusProxy();
  if (inner && inner->accessibleName().isEmpty()) inner->setAccessibleName(name);
}

QString SpokenName(const QWidget& widget) { return widget.property(kSpokenName).toString(); }

}  // namespace tarnvik
