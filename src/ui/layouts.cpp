#include "ui/layouts.h"

#include <QAbstractButton>
#include <QSet>

namespace veneerer {

namespace {

// Where a text could take its mnemonic: first letters of words before all others.
QList<int> candidates(const QString& text) {
  QList<int> starts;
  QList<int> others;
  for (int i = 0; i < text.size(); ++i) {
    if (!text[i].isLetterOrNumber()) continue;
    const bool startsWord = i == 0 || text[i - 1].isSpace();
    (startsWord ? starts : others).append(i);
  }
  return starts + others;
}

QString withMnemonic(const QString& text, QSet<QChar>& taken) {
  for (int at : candidates(text)) {
    const QChar letter = text[at].toUpper();
    if (taken.contains(letter)) continue;
    taken.insert(letter);
    return QString(text).insert(at, u'&');
  }
  return text;
}

// "&&" is an ampersand, not a mnemonic.
bool hasMnemonic(QString text) {
  return text.remove(QStringLiteral("&&")).contains(u'&');
}

template <class W>
void assignTo(W* widget, QSet<QChar>& taken) {
  if (!widget->text().isEmpty() && !hasMnemonic(widget->text()))
    widget->setText(withMnemonic(widget->text(), taken));
}

}  // namespace

QGroupBox* makeFrame(const QString& title, QLayout* content) {
  auto* frame = new QGroupBox(title);
  frame->setLayout(content);
  return frame;
}

QLabel* makeLabel(const QString& text, QWidget* control) {
  auto* label = new QLabel(text);
  label->setBuddy(control);
  return label;
}

void addField(QGridLayout* grid, int row, int column, const QString& label, QWidget* control) {
  grid->addWidget(makeLabel(label, control), row, column);
  grid->addWidget(control, row, column + 1);
}

void assignMnemonics(QWidget& window) {
  QSet<QChar> taken;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    auto* label = qobject_cast<QLabel*>(widget);
    if (label && label->buddy()) assignTo(label, taken);
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (button) assignTo(button, taken);
  }
}

}  // namespace veneerer
