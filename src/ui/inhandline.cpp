#include "ui/inhandline.h"

#include <QHBoxLayout>
#include <QMap>
#include <algorithm>

#include "canvas/description.h"
#include "canvas/screens.h"
#include "canvas/sections.h"
#include "editing/inspection.h"
#include "painting/hittest.h"
#include "ui/colourmenu.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kChip = 16;  // device-independent pixels
constexpr Property kColours[] = {Property::ForeColor, Property::BackColor, Property::GradientColor};

// "menu.ini 12 to 20": the lines of each file from the first to the last.
QStringList placesOf(const RecordPlaces& places, const Element& element) {
  QMap<QString, std::pair<int, int>> files;
  for (const RecordPlace& place : places.of(element)) {
    auto& [first, last] = files[place.file];
    first = first == 0 ? place.line : std::min(first, place.line);
    last = std::max(last, place.line);
  }
  QStringList texts;
  for (auto it = files.begin(); it != files.end(); ++it)
    texts.append(it->first == it->second
                     ? QStringLiteral("%1 %2").arg(it.key()).arg(it->first)
                     : UiTexts::tr("%1 %2 to %3").arg(it.key()).arg(it->first).arg(it->second));
  return texts;
}

QString textOf(Operator& hands, const Element& element) {
  State& state = hands.state();
  QStringList parts{describe(state, element, hands.screen())};
  if (const QString title = elementTitle(state, element); title != shortName(element)) parts.prepend(title);
  if (const QString font = fontText(element); !font.isEmpty()) parts.append(font);
  return (parts + placesOf(hands.places(), element)).join(QStringLiteral("   "));
}

}  // namespace

InHandLine::InHandLine(const Ui& ui)
    : hands_(ui.hands),
      watching_(ui.hands.state().board.watch([this](const Change&) { telling_.start(); })),
      what_(new ElidedLine),
      elsewhere_(new QLabel(UiTexts::tr("on another screen"))),
      goThere_(new QPushButton(UiTexts::tr("&Go there"))) {
  setObjectName(QStringLiteral("inHandLine"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 2, 6, 2);
  row->addWidget(what_, 1);
  for (std::size_t i = 0; i < std::size(kColours); ++i) {
    chips_.append(new QLabel);
    row->addWidget(chips_.last());
  }
  row->addWidget(elsewhere_);
  row->addWidget(goThere_);
  // What comes and goes in the line doesn't move the canvas.
  setFixedHeight(goThere_->sizeHint().height() + 4);
  goThere_->setToolTip(UiTexts::tr("Show the screen of the element in hand"));
  telling_.setSingleShot(true);
  telling_.setInterval(0);
  telling_.callOnTimeout(this, &InHandLine::tell);
  connect(&hands_, &Operator::acted, &telling_, qOverload<>(&QTimer::start));
  connect(goThere_, &QPushButton::clicked, this, [this] {
    const Element* element = currentElement(hands_.state());
    const int entry = element ? entryHolding(hands_.state(), *element) : -1;
    if (entry >= 0) hands_.choose(*hands_.state().form6.Combo6, entry);
  });
  tell();
}

void InHandLine::tell() {
  State& state = hands_.state();
  const Element* element = currentElement(state);
  const bool isOnCanvas = element && &element->window() == &state.form1;
  const QString text =
      element ? textOf(hands_, *element) : UiTexts::tr("Click an element to take it in hand");
  what_->setLine(text);
  what_->setAccessibleName(UiTexts::tr("In hand: %1").arg(text));
  showColours(element);
  const int entry = isOnCanvas ? entryHolding(state, *element) : -1;
  const bool isElsewhere = entry >= 0 && !isShown(screenOf(state, entry));
  elsewhere_->setVisible(isElsewhere);
  goThere_->setVisible(isElsewhere);
}

void InHandLine::showColours(const Element* element) {
  for (qsizetype i = 0; i < chips_.size(); ++i) {
    const Property property = kColours[i];
    const bool has = element && element->has(property);
    chips_[i]->setVisible(has);
    if (!has) continue;
    const Colour colour = element->as<Colour>(property);
    const QString tip = propertyTitle(property) + u' ' + valueText(colour);
    if (chips_[i]->toolTip() == tip) continue;
    chips_[i]->setPixmap(colourChip(colour.toQColor(), kChip));
    chips_[i]->setToolTip(tip);
    chips_[i]->setAccessibleName(tip);
  }
}

}  // namespace veneerer
