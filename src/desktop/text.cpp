#include "desktop/text.h"

#include <QStringDecoder>

namespace tarnvik {

namespace {

// The characters of Windows-1252 from 0x80 to 0x9F; the others are those of Latin-1.
constexpr char16_t kWindows1252[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                       0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

QString ShownText(std::string_view bytes) {
  QStringDecoder utf8(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
  const QString text = utf8(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  if (!utf8.hasError()) return text;
  QString latin;
  latin.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    latin += QChar(code >= 0x80 && code < 0xA0 ? kWindows1252[code - 0x80] : char16_t{code});
  }
  return latin;
}

std::string TypedText(const QString& text) { return text.toStdString(); }

}  // namespace tarnvik
