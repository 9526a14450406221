#include "ui/remedybuttons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "elements/printable.h"
#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

RemedyButtons::RemedyButtons(std::function<void(const Remedy&)> apply) : apply_(std::move(apply)) {
  auto* rows = compact(new QVBoxLayout(this));
  rows->setContentsMargins(0, 0, 0, 0);
  hide();
}

void RemedyButtons::show(const Remedies& remedies) {
  while (QLayoutItem* item = layout()->takeAt(0)) {
    // A button that is being clicked goes when the click has ended.
    item->widget()->hide();
    item->widget()->deleteLater();
    delete item;
  }
  for (const Remedy& remedy : remedies) layout()->addWidget(makeRow(remedy));
  setVisible(!remedies.isEmpty());
}

QWidget* RemedyButtons::makeRow(const Remedy& remedy) {
  auto* row = new QWidget;
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  auto* text = new QLabel(shownText(remedy.text));
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  // A path has no blanks to be broken at.
  text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* button = new QPushButton(UiTexts::tr("Do It"));
  button->setAccessibleName(text->text());
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, remedy] { apply_(remedy); });
  line->addWidget(text, 1);
  line->addWidget(button);
  return row;
}

}  // namespace veneerer
