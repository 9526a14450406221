#include "ui/colourmenu.h"

#include <QPainter>
#include <QWidgetAction>

#include "ui/palettegrid.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr std::size_t kMostColours = 48;

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
  addSection(UiTexts::tr("Colours of this Skin"));
  addPalette(hands.state());
  addSeparator();
  // Behind the menu: it takes the mouse as long as it is open.
  connect(
      addAction(UiTexts::tr("&Pick from the Canvas")), &QAction::triggered, &hands,
      [&hands, act = chosen_] { hands.pickColour(act); }, Qt::QueuedConnection);
  connect(
      addAction(UiTexts::tr("&Choose...")), &QAction::triggered, &hands,
      [&hands, initial, act = chosen_] {
        if (const auto colour = hands.dialogs().chooseColour(initial.plain())) act(*colour);
      },
      Qt::QueuedConnection);
}

void ColourMenu::addPalette(const State& state) {
  std::vector<ColourUse> uses = coloursInUse(state);
  if (uses.empty()) return;
  if (uses.size() > kMostColours) uses.erase(uses.begin() + kMostColours, uses.end());
  auto* action = new QWidgetAction(this);
  action->setDefaultWidget(new PaletteGrid(uses, [this](Colour colour) {
    close();
    chosen_(colour);
  }));
  addAction(action);
}

}  // namespace veneerer
