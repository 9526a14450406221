#include "ui/turnsliders.h"

#include <QSpinBox>

#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

struct Part {
  const char* name;
  const char* label;
  const char* tip;
  int most;
  const char* unit;
};

constexpr Part kParts[] = {
    {"hue", QT_TRANSLATE_NOOP("Ui", "&Hue:"),
     QT_TRANSLATE_NOOP("Ui", "Turns the hue of all other colours; greys have none"), 180, "°"},
    {"saturation", QT_TRANSLATE_NOOP("Ui", "&Saturation:"),
     QT_TRANSLATE_NOOP("Ui", "Makes all other colours duller or richer; greys stay"), 100, " %"},
    {"lightness", QT_TRANSLATE_NOOP("Ui", "&Lightness:"),
     QT_TRANSLATE_NOOP("Ui", "Makes all other colours darker or lighter"), 100, " %"}};

QSlider* makeSlider(const Part& part) {
  auto* slider = new QSlider(Qt::Horizontal);
  slider->setObjectName(QString::fromLatin1(part.name));
  slider->setRange(-part.most, part.most);
  slider->setPageStep(10);
  slider->setToolTip(UiTexts::tr(part.tip));
  return slider;
}

/// Shows what the slider tells, and the other way round.
QSpinBox* makeNumber(const Part& part, QSlider& slider) {
  auto* number = new QSpinBox;
  number->setRange(-part.most, part.most);
  number->setSuffix(QString::fromUtf8(part.unit));
  number->setToolTip(slider.toolTip());
  number->setAccessibleName(UiTexts::tr(part.label).remove(u'&').remove(u':'));
  QObject::connect(&slider, &QSlider::valueChanged, number, &QSpinBox::setValue);
  QObject::connect(number, &QSpinBox::valueChanged, &slider, &QSlider::setValue);
  return number;
}

}  // namespace

TurnSliders::TurnSliders() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setColumnStretch(1, 1);
  for (int i = 0; i < 3; ++i) {
    QSlider* slider = makeSlider(kParts[i]);
    sliders_[static_cast<std::size_t>(i)] = slider;
    addField(grid, i, 0, UiTexts::tr(kParts[i].label), slider);
    grid->addWidget(makeNumber(kParts[i], *slider), i, 2);
    connect(slider, &QSlider::valueChanged, this, &TurnSliders::turned);
  }
}

ColourTurn TurnSliders::turn() const {
  return {sliders_[0]->value(), sliders_[1]->value(), sliders_[2]->value()};
}

void TurnSliders::reset() {
  for (QSlider* slider : sliders_) slider->setValue(0);
}

}  // namespace veneerer
