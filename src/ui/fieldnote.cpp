#include "ui/fieldnote.h"

#include <QAccessible>
#include <QEvent>
#include <QToolTip>

#include "elements/printable.h"
#include "problems/typedcaption.h"

namespace veneerer {

namespace {

constexpr int kMargin = 4;       // pixels
constexpr int kNarrowest = 220;  // pixels; a cell of a table may be narrower

}  // namespace

FieldNote::FieldNote(QLineEdit& field) : QLabel(&field), field_(field) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setMargin(kMargin);
  setFrameShape(QFrame::Box);
  setAutoFillBackground(true);
  setPalette(QToolTip::palette());
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
  field.installEventFilter(this);
  connect(&field, &QLineEdit::textEdited, this, &FieldNote::tell);
  connect(&field, &QObject::destroyed, this, &QObject::deleteLater);
}

void FieldNote::tell(const QString& caption) {
  setText(shownText(typedCaptionDamage(caption)));
  field_.setAccessibleDescription(text());
  if (text().isEmpty()) return hide();
  placeBelow();
  QAccessibleEvent alert(&field_, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&alert);
}

// Within the window, over what is there.
void FieldNote::placeBelow() {
  QWidget* window = field_.window();
  setParent(window);
  const int width = std::min(std::max(field_.width(), kNarrowest), window->width());
  resize(width, heightForWidth(width));
  QPoint place = field_.mapTo(window, QPoint(0, field_.height() + 1));
  place.setX(std::max(0, std::min(place.x(), window->width() - width)));
  if (place.y() + height() > window->height()) place.setY(place.y() - field_.height() - height() - 2);
  move(place);
  show();
  raise();
}

bool FieldNote::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide) hide();
  return false;
}

}  // namespace veneerer
