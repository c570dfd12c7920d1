#include "desktop/forms/look.h"

#include <QWidget>

#include "charts/text.h"
#include "desktop/forms/captions.h"
#include "desktop/forms/control_view.h"

namespace tarnvik {

QColor ShownColor(Color color, const QPalette& palette) {
  if (color == kWindowBackground) return palette.color(QPalette::Base);
  if (color == kButtonFace) return palette.color(QPalette::Button);
  if (color == kBlack || color == kNearBlack) return palette.color(QPalette::WindowText);
  const QColor hue = QColor::fromRgb(static_cast<QRgb>(color.value) | 0xff000000u);
  const bool dark = palette.color(QPalette::Window).lightness() < 128;
  constexpr int kOnDark = 200;
  constexpr int kOnLight = 105;
  return QColor::fromHsl(hue.hslHue(), hue.hslSaturation(), dark ? kOnDark : kOnLight);
}

namespace {

Color BackgroundOf(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label:
    case ControlKind::CommandButton:
    case ControlKind::Frame:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::TabStrip:
      return kButtonFace;
    default:
      return kWindowBackground;
  }
}

// Only the colours that differ from what the kind has anyway; a disabled control looks disabled.
QPalette PaletteOf(const Control& control, const QWidget& widget) {
  QPalette palette;
  const QPalette surroundings = widget.parentWidget() ? widget.parentWidget()->palette() : widget.palette();
  const auto put = [&palette](QPalette::ColorRole role, const QColor& color) {
    palette.setColor(QPalette::Active, role, color);
    palette.setColor(QPalette::Inactive, role, color);
  };
  if (control.ForeColor() != kBlack) {
    const QColor fore = ShownColor(control.ForeColor(), surroundings);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) put(role, fore);
  }
  if (control.BackColor() != BackgroundOf(control.Kind())) {
    const QColor back = ShownColor(control.BackColor(), surroundings);
    put(QPalette::Base, back);
    put(QPalette::Window, back);
    palette.setColor(QPalette::Disabled, QPalette::Base, back);
  }
  return palette;
}

}  // namespace

void ShowCommon(const Control& control, QWidget& widget) {
  widget.setEnabled(control.Enabled());
  widget.setVisible(control.Visible());
  widget.setToolTip(ShownText(control.Tip()));
  if (SpokenName(widget).isEmpty() && !control.Caption().empty()) {
    widget.setAccessibleName(ShownText(control.Caption()).simplified());
  }
  const QPalette palette = PaletteOf(control, widget);
  if (palette.resolveMask() != 0 || widget.testAttribute(Qt::WA_SetPalette)) widget.setPalette(palette);
}

}  // namespace tarnvik
