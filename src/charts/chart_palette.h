// The colours and markers of charts. The series colours are those of Okabe and Ito, which readers with any
// kind of colour blindness tell apart; their yellow is too light for lines on white and left out.
#pragma once

#include <QColor>

namespace tarnvik {

inline constexpr QRgb kSeriesColours[] = {0xff0072b2, 0xffd55e00, 0xff009e73, 0xffcc79a7,
                                          0xffe69f00, 0xff56b4e9, 0xff000000};
inline constexpr QRgb kFrameColour = 0xff404040;
inline constexpr QRgb kGridColour = 0xffe2e2e2;
inline constexpr QRgb kTextColour = 0xff000000;

inline QColor SeriesColour(std::size_t series) {
  return QColor(kSeriesColours[series % std::size(kSeriesColours)]);
}

// Curves that lie over each other are shades of one colour: the first, on top, is the darkest.
inline QColor ShadeColour(std::size_t series, std::size_t count) {
  constexpr QRgb kDark = 0xff08519c;
  constexpr QRgb kLight = 0xffc6dbef;
  const double share = count > 1 ? static_cast<double>(series) / static_cast<double>(count - 1) : 0.4;
  const auto mix = [share](int dark, int light) {
    return dark + static_cast<int>(share * static_cast<double>(light - dark));
  };
  return {mix(qRed(kDark), qRed(kLight)), mix(qGreen(kDark), qGreen(kLight)),
          mix(qBlue(kDark), qBlue(kLight))};
}

}  // namespace tarnvik
