#include "ui/colourmenu.h"

#include <QGridLayout>
#include <QPainter>
#include <QToolButton>
#include <QWidgetAction>

#include "editing/coloursinuse.h"
#include "editing/inspection.h"

namespace veneerer {

namespace {

constexpr int kColumns = 8;
constexpr std::size_t kMostColours = 48;
constexpr int kChip = 20;  // device-independent pixels

}  // namespace

QPixmap colourChip(const QColor& colour, int size) {
  QPixmap chip(size, size);
  chip.fill(colour);
  QPainter painter(&chip);
  // A line that shows on any ground.
  painter.setPen(QColor(128, 128, 128));
  painter.drawRect(0, 0, size - 1, size - 1);
  return chip;
}

ColourMenu::ColourMenu(Operator& hands, Colour initial, std::function<void(Colour)> chosen, QWidget* parent)
    : QMenu(parent), chosen_(std::move(chosen)) {
  setAttribute(Qt::WA_DeleteOnClose);
  addSection(QStringLiteral("Colours of this Skin"));
  addPalette(hands.state());
  addSeparator();
  // Behind the menu: it takes the mouse as long as it is open.
  connect(
      addAction(QStringLiteral("&Pick from the Canvas")), &QAction::triggered, &hands,
      [&hands, act = chosen_] { hands.pickColour(act); }, Qt::QueuedConnection);
  connect(
      addAction(QStringLiteral("&Choose...")), &QAction::triggered, &hands,
      [&hands, initial, act = chosen_] {
        if (const auto colour = hands.dialogs().chooseColour(initial.plain())) act(*colour);
      },
      Qt::QueuedConnection);
}

void ColourMenu::addPalette(const State& state) {
  auto* chips = new QWidget;
  auto* grid = new QGridLayout(chips);
  grid->setSpacing(2);
  const std::vector<ColourUse> uses = coloursInUse(state);
  for (std::size_t i = 0; i < std::min(uses.size(), kMostColours); ++i) {
    const Colour colour = uses[i].colour;
    auto* chip = new QToolButton;
    chip->setIcon(colourChip(colour.toQColor(), kChip));
    chip->setIconSize(QSize(kChip, kChip));
    chip->setAutoRaise(true);
    chip->setToolTip(QStringLiteral("%1, %2 times").arg(valueText(colour)).arg(uses[i].count));
    chip->setAccessibleName(valueText(colour));
    connect(chip, &QToolButton::clicked, this, [this, colour] {
      close();
      chosen_(colour);
    });
    grid->addWidget(chip, int(i) / kColumns, int(i) % kColumns);
  }
  auto* action = new QWidgetAction(this);
  action->setDefaultWidget(chips);
  addAction(action);
}

}  // namespace veneerer
