// How controls look: colours on any palette, and the few shapes that a record cannot tell.
#pragma once

#include <QColor>
#include <QPalette>

#include "platform/control.h"

namespace tarnvik {

// A colour of the logic on a palette: the roles and black are the palette's own; other hues stay, but light
// enough on a dark background and dark enough on a light one to be read.
QColor ShownColor(Color color, const QPalette& palette);

// Room at the end of a caption: the mark under its letter parts letters that else stand closer together.
inline constexpr int kMarkRoom = 3;

}  // namespace tarnvik
