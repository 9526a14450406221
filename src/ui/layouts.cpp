#include "ui/layouts.h"

#include <QAbstractButton>
#include <QScreen>
#include <QScrollArea>
#include <QSet>

#include "ui/keys.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

// What a dialog's frame takes, about; the real one is known only when it is too late. Pixels.
constexpr QMargins kDialogFrame(6, 32, 6, 8);

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

// The letter behind a single ampersand; null without one. "&&" is an ampersand.
QChar mnemonicOf(QString text) {
  const qsizetype at = text.remove(QStringLiteral("&&")).indexOf(u'&');
  return at < 0 || at + 1 >= text.size() ? QChar() : text[at + 1].toUpper();
}

// Asks for all the room that its content would like, and sees no background of its own: its window paints it.
class ContentArea : public QScrollArea {
public:
  explicit ContentArea(QLayout* layout) {
    auto* content = new QWidget;
    content->setLayout(layout);
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
  }
  QSize sizeHint() const override { return widget()->sizeHint(); }
};

template <class W>
void assignTo(const QList<W*>& widgets, QSet<QChar>& taken) {
  for (W* widget : widgets)
    if (mnemonicOf(widget->text()).isNull()) widget->setText(withMnemonic(widget->text(), taken));
}

template <class W>
void collect(const QList<W*>& widgets, QSet<QChar>& taken) {
  for (const W* widget : widgets) taken.insert(mnemonicOf(widget->text()));
}

}  // namespace

QGroupBox* makeFrame(const QString& title, QLayout* content, const QString& name) {
  auto* frame = new QGroupBox(title);
  frame->setObjectName(name.isEmpty() ? title : name);
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

QColor hintInk(const QPalette& colours) {
  constexpr int kStrength = 170;  // of 255
  QColor ink = colours.color(QPalette::Text);
  ink.setAlpha(kStrength);
  return ink;
}

QRect roomForDialog(const QWidget& owner) {
  return owner.screen()->availableGeometry().marginsRemoved(kDialogFrame);
}

void setContent(QWidget& window, QLayout* content) {
  content->setContentsMargins(8, 8, 8, 8);
  auto* whole = new QVBoxLayout(&window);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(new ContentArea(content));
}

void assignMnemonics(QWidget& window) {
  const QList<QAbstractButton*> buttons = window.findChildren<QAbstractButton*>();
  QList<QLabel*> labels = window.findChildren<QLabel*>();
  labels.removeIf([](const QLabel* label) { return !label->buddy(); });
  QSet<QChar> taken;
  for (const char* menu : kMenus) taken.insert(mnemonicOf(UiTexts::tr(menu)));
  collect(labels, taken);
  collect(buttons, taken);
  assignTo(labels, taken);
  assignTo(buttons, taken);
}

}  // namespace veneerer
