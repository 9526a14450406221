#include "ui/statusline.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>

#include "ui/bindings.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kReadingTime = 8000;  // milliseconds
constexpr int kInset = 6;           // as in the line of the element in hand, pixels

bool isNextAction(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
      return true;
    default:
      return false;
  }
}

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setContentsMargins(kInset, 0, 0, 0);
  // However long the line is, the window needn't be as wide.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  for (QTimer* timer : {&fresh_, &reading_}) timer->setSingleShot(true);
  reading_.callOnTimeout(this, &StatusLine::endNote);
}

void StatusLine::show(const QString& text, bool isNote) {
  QFont weighted = font();
  weighted.setBold(isNote);
  setFont(weighted);
  setText(text);
  setToolTip(isNote ? plainToolTip(text) : QString());
  setAccessibleName(isNote ? UiTexts::tr("Note: %1").arg(text) : QString());
}

void StatusLine::describe(const QString& text) {
  description_ = text;
  if (notes_.isEmpty()) setText(text);
}

void StatusLine::tell(const QString& note) {
  if (!fresh_.isActive()) notes_.clear();
  if (!notes_.contains(note)) notes_.append(note);
  show(notes_.join(QStringLiteral("   ")), true);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
  fresh_.start(0);
  reading_.start(kReadingTime);
  qApp->installEventFilter(this);
}

void StatusLine::endNote() {
  qApp->removeEventFilter(this);
  reading_.stop();
  notes_.clear();
  show(description_, false);
}

// The press that leads to a note may still be on its way through the widgets when the note is said.
bool StatusLine::eventFilter(QObject*, QEvent* event) {
  if (!fresh_.isActive() && isNextAction(*event)) endNote();
  return false;
}

}  // namespace veneerer
