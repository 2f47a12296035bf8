#include "ui/widgets/appearance.h"

namespace kickwell {

QColor FaintText(const QPalette& palette) {
  constexpr float Strength = 0.7F;
  const QColor text = palette.color(QPalette::Text);
  const QColor ground = palette.color(QPalette::Base);
  const auto mix = [](float of, float with) { return of * Strength + with * (1 - Strength); };
  return QColor::fromRgbF(mix(text.redF(), ground.redF()), mix(text.greenF(), ground.greenF()),
                          mix(text.blueF(), ground.blueF()));
}

void SetColours(QWidget* widget, const QColor& ground, const QColor& text) {
  QPalette palette = widget->palette();
  if (palette.color(QPalette::Window) == ground && palette.color(QPalette::WindowText) == text) return;
  palette.setColor(QPalette::Window, ground);
  palette.setColor(QPalette::WindowText, text);
  widget->setPalette(palette);
}

QPen Chalk(const QPainter& painter, int alpha, int width) {
  QPen chalk(QColor(255, 255, 255, alpha), width * painter.device()->devicePixelRatio());
  chalk.setCosmetic(true);
  return chalk;
}

int Twips(const QWidget* widget, int twips) {
  return twips * widget->logicalDpiX() / 1440;
}

}  // namespace kickwell
