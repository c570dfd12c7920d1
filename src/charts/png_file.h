// Pictures as the bytes of a PNG file.
#pragma once

#include <QImage>
#include <string>

namespace tarnvik {

// True colours without transparency, nothing lost. Made for charts, where most pixels are those above and to
// the left: it looks for nothing else, and so takes a tenth of the time of a general compressor. The picture
// must not be empty.
std::string PngBytes(const QImage& picture);

}  // namespace tarnvik
