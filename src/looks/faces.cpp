#include "looks/faces.h"

#include "design/composer.h"
#include "looks/icons.h"

namespace veneerer::looks {

QSize sizeOf(const Element& element) {
  const design::Box box = design::boxOf(element);
  return {box.w, box.h};
}

QStringList linesOf(const Button& button) {
  return button.caption().split(QStringLiteral("||"));
}

QImage drawMenuFace(const Artist& artist, const Button& button, int index) {
  return artist.menuFace(sizeOf(button), kMenuIcons[index], linesOf(button), button.foreColor().toQColor());
}

QImage drawTransportFace(const Artist& artist, const Button& button, int index) {
  return artist.iconFace(sizeOf(button), kTransportIcons[index], button.foreColor().toQColor());
}

}  // namespace veneerer::looks
