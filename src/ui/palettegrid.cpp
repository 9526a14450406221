#include "ui/palettegrid.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <cstdlib>

#include "editing/inspection.h"
#include "ui/frames.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kColumns = 8;
constexpr QSize kChip(26, 26);  // device-independent pixels

class Chip : public QAbstractButton {
public:
  explicit Chip(const ColourUse& use) : colour_(use.colour.toQColor()) {
    const QString name = valueText(use.colour);
    setToolTip(UiTexts::tr("%1, %2 times").arg(name).arg(use.count));
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
  }
  QSize sizeHint() const override { return kChip; }

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect().adjusted(3, 3, -3, -3), colour_);
    paintFrame(painter, *this);
  }

private:
  QColor colour_;
};

// How many squares an arrow key goes on; 0 for any other key.
int stepOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return -1;
    case Qt::Key_Right:
      return 1;
    case Qt::Key_Up:
      return -kColumns;
    case Qt::Key_Down:
      return kColumns;
    default:
      return 0;
  }
}

}  // namespace

PaletteGrid::PaletteGrid(const std::vector<ColourUse>& uses, const std::function<void(Colour)>& chosen) {
  auto* grid = new QGridLayout(this);
  grid->setSpacing(2);
  for (const ColourUse& use : uses) {
    auto* chip = new Chip(use);
    chip->installEventFilter(this);
    connect(chip, &QAbstractButton::clicked, this, [chosen, colour = use.colour] { chosen(colour); });
    const auto at = static_cast<int>(chips_.size());
    grid->addWidget(chip, at / kColumns, at % kColumns);
    chips_.append(chip);
  }
  // A menu gives the keys to an entry that asks for them.
  setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(chips_.first());
}

bool PaletteGrid::eventFilter(QObject* chip, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  return key(chips_.indexOf(static_cast<QAbstractButton*>(chip)), *static_cast<QKeyEvent*>(event));
}

bool PaletteGrid::key(qsizetype at, QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
    chips_[at]->click();
    return true;
  }
  const int step = stepOf(event.key());
  if (step == 0) return false;
  const qsizetype to = at + step;
  const bool isOff = to < 0 || to >= chips_.size();
  if (!isOff) chips_[to]->setFocus(Qt::TabFocusReason);
  if (isOff && std::abs(step) > 1) {
    parentWidget()->setFocus();
    QCoreApplication::sendEvent(parentWidget(), &event);
  }
  return true;
}

}  // namespace veneerer
