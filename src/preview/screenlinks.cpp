#include "preview/screenlinks.h"

#include "canvas/destinations.h"
#include "canvas/screens.h"
#include "elements/printable.h"
#include "painting/canvassize.h"

namespace veneerer {

namespace {

constexpr int kLongestCaption = 60;  // code points

/// What its containers and the canvas leave of an element; twips of the window.
QRectF seenPart(const Element& element, const QRectF& canvas) {
  QRectF part = windowRect(element);
  for (const Element* e = element.container(); e && e->container(); e = e->container())
    part &= windowRect(*e);
  return part & canvas;
}

/// Whether a click somewhere in the middle of that part reaches the button: shapes leave their corners free,
/// and another element may stand in front.
bool isReached(const Button& button, const QRectF& part, const Stage& stage, const HitTest& hits) {
  for (const double down : {0.5, 0.25, 0.75})
    for (const double across : {0.5, 0.25, 0.75}) {
      const QPointF at = part.topLeft() + QPointF(part.width() * across, part.height() * down);
      if (hits.elementAt(stage, static_cast<float>(at.x()), static_cast<float>(at.y())) == &button)
        return true;
    }
  return false;
}

// The mark of a new line is for the canvas alone.
QString plainCaption(const Button& button) {
  const QString caption = QString(button.caption()).replace(QStringLiteral("||"), QStringLiteral(" "));
  return excerpt(caption.simplified(), kLongestCaption);
}

QRectF inPartsOf(const QRectF& whole, const QRectF& part) {
  return {part.x() / whole.width(), part.y() / whole.height(), part.width() / whole.width(),
          part.height() / whole.height()};
}

}  // namespace

std::vector<ScreenLink> screenLinks(State& state, const Screen& screen, int entry) {
  const QSize pixels = canvasSize(state.form1, screen).pixels;
  const QRectF canvas(0, 0, pixels.width() * screen.twipsPerPixelX(),
                      pixels.height() * screen.twipsPerPixelY());
  CutOuts cutOuts;
  const HitTest hits(cutOuts, {1 / screen.twipsPerPixelX(), 1 / screen.twipsPerPixelY()});
  const Stage stage = stageOf(state, entry);
  std::vector<ScreenLink> links;
  for (const Exit& exit : exitsOf(state, entry)) {
    const QRectF part = seenPart(*exit.button, canvas);
    if (!part.isEmpty() && isReached(*exit.button, part, stage, hits))
      links.push_back({inPartsOf(canvas, part), plainCaption(*exit.button), exit.entry});
  }
  return links;
}

}  // namespace veneerer
