// Texts of the logic are bytes; the window shows characters.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tarnvik {

// Bytes read as UTF-8; each byte that is not of valid UTF-8 stands for its character of Windows-1252.
QString ShownText(std::string_view bytes);
// What a user typed, as UTF-8.
std::string TypedText(const QString& text);

}  // namespace tarnvik
