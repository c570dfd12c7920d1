#include "charts/text.h"

#include "platform/encoding.h"

namespace tarnvik {

QString ShownText(std::string_view bytes) { return QString::fromStdString(ToUtf8(bytes)); }

std::string TypedText(const QString& text) { return text.toStdString(); }

}  // namespace tarnvik
