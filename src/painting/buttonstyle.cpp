#include "painting/buttonstyle.h"

#include <QLinearGradient>
#include <QPainterPath>

namespace veneerer {

namespace {

QColor light(int alpha) {
  return QColor(255, 255, 255, alpha);
}

QColor shadow(int alpha) {
  return QColor(0, 0, 0, alpha);
}

struct Stop {
  double at;
  QColor colour;
};

void fillDown(FaceCanvas& face, std::initializer_list<Stop> stops) {
  QLinearGradient gradient(0, 0, 0, face.size().height());
  for (const Stop& stop : stops) gradient.setColorAt(stop.at, stop.colour);
  face.fill(gradient);
}

// Light from the top left on a raised edge, from the bottom right on a sunken one.
void bevel(FaceCanvas& face, int inset, int width, bool isSunken, int lightAlpha, int shadowAlpha) {
  face.paintBand(inset, width, width, isSunken ? shadow(shadowAlpha) : light(lightAlpha));
  face.paintBand(inset, -width, -width, isSunken ? light(lightAlpha) : shadow(shadowAlpha));
}

void dim(FaceCanvas& face, const StyleState& state) {
  if (state.pressed) face.fill(shadow(48));
  if (state.hover && !state.pressed) face.fill(light(34));
}

void raisedEdge(FaceCanvas& face, const StyleState& state) {
  const int line = face.device(1);
  bevel(face, 0, line, state.pressed, 215, 205);
  bevel(face, line, line, state.pressed, 95, 100);
}

void outlinedEdge(FaceCanvas& face, const StyleState&) {
  const int line = face.device(1);
  face.paintRing(line, line, light(60));
  face.paintRing(0, line, shadow(225));
}

void hoverEdge(FaceCanvas& face, const StyleState& state) {
  if (state.pressed) bevel(face, 0, face.device(1), true, 200, 150);
}

void softShade(FaceCanvas& face, const StyleState& state) {
  if (!state.pressed) fillDown(face, {{0, light(105)}, {.45, light(25)}, {.8, shadow(0)}, {1, shadow(50)}});
  dim(face, state);
}

void softEdge(FaceCanvas& face, const StyleState& state) {
  const int line = face.device(1);
  face.paintRing(line, line, state.hover ? QColor(255, 176, 32, 210) : light(70));
  face.paintRing(0, line, shadow(150));
}

// The bright patch of a drop of gel: the upper half, a little smaller than the face.
void paintGloss(FaceCanvas& face, int alpha) {
  const double width = face.size().width();
  const double height = face.size().height();
  const double inset = height * 0.1;
  const QRectF patch(inset, height * 0.06, width - 2 * inset, height * 0.42);
  if (patch.width() <= 0) return;
  QPainterPath path;
  path.addRoundedRect(patch, patch.height() / 2, patch.height() / 2);
  QLinearGradient gloss(0, patch.top(), 0, patch.bottom());
  gloss.setColorAt(0, light(alpha));
  gloss.setColorAt(1, light(alpha / 6));
  face.fillPath(path, gloss);
}

void gelShade(FaceCanvas& face, const StyleState& state) {
  fillDown(face, {{0, shadow(60)}, {.5, shadow(30)}, {.7, light(15)}, {1, light(130)}});
  dim(face, state);
  paintGloss(face, state.pressed ? 130 : 205);
}

void gelEdge(FaceCanvas& face, const StyleState&) {
  face.paintRing(0, face.device(1), shadow(130));
}

void grooveShade(FaceCanvas& face, const StyleState& state) {
  fillDown(face, {{0, light(70)}, {1, shadow(45)}});
  dim(face, state);
}

void grooveEdge(FaceCanvas& face, const StyleState& state) {
  const int line = face.device(1);
  bevel(face, 0, line, true, 150, 130);
  bevel(face, line, line, state.pressed, 190, 130);
}

void accentEdge(FaceCanvas& face, const StyleState& state) {
  // The lower lip is what the button is pressed down on.
  if (!state.pressed) face.paintBand(0, 0, -face.device(3), shadow(95));
}

void metalShade(FaceCanvas& face, const StyleState& state) {
  fillDown(face, {{0, light(170)},
                  {.2, light(60)},
                  {.48, light(105)},
                  {.5, shadow(95)},
                  {.72, shadow(30)},
                  {1, light(90)}});
  dim(face, state);
}

void metalEdge(FaceCanvas& face, const StyleState& state) {
  const int line = face.device(1);
  bevel(face, line, line, state.pressed, 185, 90);
  face.paintRing(0, line, shadow(210));
}

// So large that the sides of any face become half circles.
constexpr double kPill = 1000;

constexpr ButtonStyle kStyles[kButtonStyleCount] = {
    {"Raised", 0, 2, dim, raisedEdge},     {"Outlined", 0, 2, dim, outlinedEdge},
    {"Hover frame", 0, 0, dim, hoverEdge}, {"Soft", 4, 2, softShade, softEdge},
    {"Gel", kPill, 1, gelShade, gelEdge},  {"Groove", 2, 2, grooveShade, grooveEdge},
    {"Accent", 7, 0, dim, accentEdge},     {"Metal", 3, 2, metalShade, metalEdge},
};

}  // namespace

const ButtonStyle& buttonStyle(int number) {
  return kStyles[number >= 0 && number < kButtonStyleCount ? number : 0];
}

void raise(FaceCanvas& face, const ButtonStyle& style) {
  const int inset = style.edgeWidth > 0 ? face.device(style.edgeWidth) : 0;
  bevel(face, inset, face.device(1), false, 200, 150);
}

}  // namespace veneerer
