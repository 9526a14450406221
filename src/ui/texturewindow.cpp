#include "ui/texturewindow.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QPainter>

#include "painting/anigif.h"
#include "painting/canvaspainter.h"
#include "ui/frames.h"
#include "ui/layouts.h"
#include "ui/texts.h"
#include "ui/thumbnail.h"

namespace veneerer {

namespace {

constexpr int kColumns = 5;
constexpr QSize kPreview(92, 69);

// The frame that the list below addresses, running.
class FramePreview : public QAbstractButton {
public:
  FramePreview(const Ui& ui, Form5& form)
      : frame_(*form.ucAniGIF1), player_(form, [this](const Element&) { showNext(); }) {
    setFixedSize(kPreview);
    painter_.setFrameSource([this](const Element& frame) { return player_.frame(frame); });
    bindPainted(ui, frame_, *this);
    setAccessibleName(UiTexts::tr("Album frame"));
  }

protected:
  void paintEvent(QPaintEvent*) override {
    player_.setWatched(true);
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter_.paintElement(painter, frame_, rect());
    paintFrame(painter, *this);
  }

private:
  // A panel behind another tab counts as visible, and is painted when it comes to the front.
  void showNext() {
    player_.setWatched(!visibleRegion().isEmpty());
    QWidget::update();
  }

  AnimatedFrame& frame_;
  CanvasPainter painter_;
  ucAniGIF player_;
};

struct Slot {
  Element* image;
  int caption;  ///< the index of Label3 under it
};

// In the order of the grid. The captions carry a numbering of their own: those of Image1(9) and Image1(10)
// are crossed, as are a few later ones.
QList<Slot> slotsOf(Form5& form) {
  QList<Slot> all;
  for (int i = 0; i < 13; ++i) all.append({&form.Image1[i], i == 9 ? 10 : i == 10 ? 9 : i});
  return all + QList<Slot>{
                   {&*form.Image2, 13},  {&*form.Image3, 14},  {&*form.Image4, 15},  {&*form.Image6, 16},
                   {&*form.Image7, 17},  {&*form.Image5, 18},  {&*form.Image8, 19},  {&*form.Image9, 20},
                   {&*form.Image10, 21}, {&*form.Image11, 22}, {&*form.Image12, 23}, {&*form.Image13, 24},
                   {&*form.Image15, 25}, {&*form.Image14, 26}, {&*form.Image17, 28}, {&*form.Image18, 29},
                   {&*form.Image19, 30}, {&*form.Image20, 31}, {&*form.Image21, 32}, {&*form.Image22, 33},
                   {&*form.Image16, 27},
               };
}

QLayout* slotLayout(const Ui& ui, Form5& form, const Slot& slot) {
  auto* column = new QVBoxLayout;
  column->setSpacing(1);
  auto* thumbnail = new Thumbnail(ui, *slot.image);
  thumbnail->setAccessibleName(form.Label3[slot.caption].caption());
  QLabel* caption = makeCaption(ui, form.Label3[slot.caption]);
  caption->setAlignment(Qt::AlignHCenter);
  // A caption of a Skin may be of any length.
  caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  QFont font = caption->font();
  font.setPointSizeF(font.pointSizeF() * 0.85);
  caption->setFont(font);
  column->addWidget(thumbnail, 1);
  column->addWidget(caption);
  return column;
}

QLayout* gridLayout(const Ui& ui, Form5& form) {
  auto* grid = new QGridLayout;
  grid->setSpacing(4);
  for (int column = 0; column < kColumns; ++column) grid->setColumnStretch(column, 1);
  int place = 0;
  for (const Slot& slot : slotsOf(form)) {
    grid->addLayout(slotLayout(ui, form, slot), place / kColumns, place % kColumns);
    ++place;
  }
  return grid;
}

QLayout* frameLayout(const Ui& ui, Form5& form) {
  auto* row = compact(new QHBoxLayout);
  auto* preview = new FramePreview(ui, form);
  TextCombo* frame = makeCombo(ui, *form.Combo1);
  row->addWidget(preview);
  row->addWidget(makeLabel(UiTexts::tr("Frame:"), frame));
  row->addWidget(frame);
  row->addWidget(makeCommand(ui, *form.Command2));
  row->addStretch();
  return row;
}

}  // namespace

TextureWindow::TextureWindow(const Ui& ui) {
  Form5& form = ui.hands.state().form5;
  setWindowTitle(QStringLiteral("Texture Viewer"));
  auto* column = new QVBoxLayout;
  column->addLayout(gridLayout(ui, form), 1);
  column->addWidget(makeFrame(QStringLiteral("Album Frame"), frameLayout(ui, form)));
  column->addWidget(makeCommand(ui, *form.Command1), 0, Qt::AlignRight);
  setContent(*this, column);
  assignMnemonics(*this);
}

}  // namespace veneerer
