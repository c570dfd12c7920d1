// Texts of the logic are bytes; the window shows characters.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tarnvik {

// Bytes read as UTF-8, or as Windows-1252 where they are not valid UTF-8.
QString ShownText(std::string_view bytes);
// What a user typed, as UTF-8.
std::string TypedText(const QString& text);

}  // namespace tarnvik
