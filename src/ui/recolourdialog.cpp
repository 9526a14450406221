#include "ui/recolourdialog.h"

#include <QDialogButtonBox>
#include <QPointer>
#include <algorithm>

#include "canvas/description.h"
#include "elements/printable.h"
#include "problems/contrast.h"
#include "ui/canvaselement.h"
#include "ui/colourmenu.h"
#include "ui/exchangecommands.h"
#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr std::size_t kMostRows = 100;  // of captions that can't be read
constexpr QSize kSize(400, 600);        // device-independent pixels

QString titleText() {
  return UiTexts::tr("Recolour");
}

QString faintText(const State& state, const FaintCaption& faint) {
  return UiTexts::tr("%1, %2: %3, was %4")
      .arg(elementTitle(state, *faint.element), screenName(state, *faint.element), contrastText(faint.after),
           contrastText(faint.before));
}

QString countText(std::size_t count) {
  if (count == 0) return UiTexts::tr("All captions can be read as well as before.");
  return count == 1 ? UiTexts::tr("1 &caption falls below a contrast of 4.5, or 3 if large:")
                    : UiTexts::tr("%1 &captions fall below a contrast of 4.5, or 3 if large:").arg(count);
}

QString placesText(std::size_t count) {
  return count == 1 ? UiTexts::tr("1 place has another colour now.")
                    : UiTexts::tr("%1 places have other colours now.").arg(count);
}

QString keptText(const NotRecoloured& kept) {
  if (kept.pictures.isEmpty()) return {};
  return UiTexts::tr(" Pictures copied as they are: %1, the first is %2, %3.")
      .arg(kept.pictures.size())
      .arg(kept.pictures.first().name, kept.pictures.first().reason);
}

template <class B>
B* makeChoice(const QString& text, const QString& tip) {
  auto* choice = new B(text);
  choice->setToolTip(tip);
  return choice;
}

/// Enter on a row is the row's own: no button takes it.
QPushButton* makeButton(const QString& text, const QString& tip) {
  auto* button = makeChoice<QPushButton>(text, tip);
  button->setAutoDefault(false);
  return button;
}

/// At the right side of the other window, where the panels are.
void placeBeside(QWidget& dialog, const QWidget& owner) {
  const QRect room = roomForDialog(owner);
  QRect place(QPoint(), dialog.size().boundedTo(room.size()));
  place.moveCenter(owner.geometry().center());
  place.moveRight(std::min(owner.geometry().right(), room.right()));
  place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - place.height()));
  dialog.setGeometry(place);
}

}  // namespace

RecolourDialog::RecolourDialog(const Ui& ui, CanvasWidget& canvas, QWidget& owner)
    : QDialog(&owner),
      hands_(ui.hands),
      owner_(owner),
      skin_(ui.hands.skinFolder().path()),
      preview_(ui, canvas),
      colours_(new ColourList(ui.hands.state())),
      sliders_(new TurnSliders) {
  setObjectName(QStringLiteral("recolour"));
  setWindowTitle(titleText());
  setAttribute(Qt::WA_DeleteOnClose);
  auto* column = compact(new QVBoxLayout(this));
  column->addLayout(makeColours(), 3);
  column->addWidget(sliders_);
  column->addLayout(makeScope());
  column->addLayout(makeFaint(), 2);
  column->addLayout(makeButtons());
  connect(sliders_, &TurnSliders::turned, this, &RecolourDialog::mapChanged);
  connect(&preview_, &RecolourPreview::judged, this, &RecolourDialog::tellFaint);
  connect(&preview_, &RecolourPreview::placesChanged, this, [this] {
    if (hands_.skinFolder().path() != skin_) return close();
    colours_->show(preview_.places(), map_);
    return true;
  });
  colours_->show(preview_.places(), map_);
  enableKeys();
  resize(kSize);
  placeBeside(*this, owner);
}

QLayout* RecolourDialog::makeColours() {
  colours_->setAccessibleName(UiTexts::tr("Colours"));
  colours_->setToolTip(UiTexts::tr("The colours that the Skin stores; Enter gives another one"));
  replace_ =
      makeButton(UiTexts::tr("&Replace..."), UiTexts::tr("Give another colour to all places of this one"));
  keep_ = makeButton(UiTexts::tr("&Keep"), UiTexts::tr("Leave this colour to the sliders again"));
  connect(replace_, &QPushButton::clicked, this, &RecolourDialog::replaceChosen);
  connect(keep_, &QPushButton::clicked, this, &RecolourDialog::keepChosen);
  connect(colours_, &QTreeWidget::itemActivated, this, &RecolourDialog::replaceChosen);
  connect(colours_, &QTreeWidget::currentItemChanged, this, &RecolourDialog::enableKeys);
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(replace_);
  row->addWidget(keep_);
  auto* column = new QVBoxLayout;
  column->addWidget(makeLabel(UiTexts::tr("Colou&rs of the Skin:"), colours_));
  column->addWidget(colours_, 1);
  column->addLayout(row);
  return column;
}

QLayout* RecolourDialog::makeScope() {
  wholeSkin_ = makeChoice<QRadioButton>(UiTexts::tr("&Whole Skin"), UiTexts::tr("Recolour every screen"));
  thisScreen_ = makeChoice<QRadioButton>(UiTexts::tr("&This Screen"),
                                         UiTexts::tr("Recolour the screen that is shown alone"));
  pictures_ =
      makeChoice<QCheckBox>(UiTexts::tr("&Pictures too (as a new Skin)"),
                            UiTexts::tr("Turn the pictures as well, in a copy of the Skin; this one stays"));
  wholeSkin_->setChecked(true);
  connect(wholeSkin_, &QRadioButton::toggled, this, &RecolourDialog::mapChanged);
  connect(pictures_, &QCheckBox::toggled, this, &RecolourDialog::picturesTicked);
  auto* row = new QHBoxLayout;
  row->addWidget(wholeSkin_);
  row->addWidget(thisScreen_);
  row->addStretch(1);
  auto* column = new QVBoxLayout;
  column->addLayout(row);
  column->addWidget(pictures_);
  return column;
}

QLayout* RecolourDialog::makeFaint() {
  faint_ = new QListWidget;
  faint_->setAccessibleName(UiTexts::tr("Captions that can't be read any more"));
  faint_->setToolTip(UiTexts::tr("Click a caption to go to its screen and select it"));
  faint_->setUniformItemSizes(true);
  connect(faint_, &QListWidget::itemClicked, this, &RecolourDialog::goTo);
  connect(faint_, &QListWidget::itemActivated, this, &RecolourDialog::goTo);
  told_ = makeLabel(countText(0), faint_);
  auto* column = new QVBoxLayout;
  column->addWidget(told_);
  column->addWidget(faint_, 1);
  return column;
}

QLayout* RecolourDialog::makeButtons() {
  QPushButton* reset = makeButton(UiTexts::tr("R&eset"), UiTexts::tr("Leave all colours as they are"));
  ok_ = makeButton(UiTexts::tr("&OK"), UiTexts::tr("Recolour the Skin, as one step"));
  QPushButton* cancel = makeButton(UiTexts::tr("Cancel"), UiTexts::tr("Leave the Skin as it is"));
  connect(reset, &QPushButton::clicked, this, &RecolourDialog::reset);
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* row = new QHBoxLayout;
  row->addWidget(reset);
  row->addStretch(1);
  row->addWidget(ok_);
  row->addWidget(cancel);
  return row;
}

// The colour may be picked from the canvas, long after the dialog was closed.
void RecolourDialog::replaceChosen() {
  const std::optional<Colour> colour = colours_->chosen();
  if (!colour) return;
  const QPointer<RecolourDialog> dialog(this);
  auto* menu = new ColourMenu(
      hands_, map_.of(*colour),
      [dialog, from = *colour](Colour to) {
        if (!dialog) return;
        dialog->map_.replaced.insert(from.number(), to.plain());
        dialog->mapChanged();
      },
      this);
  menu->popup(replace_->mapToGlobal(QPoint(0, replace_->height())));
}

void RecolourDialog::keepChosen() {
  if (const std::optional<Colour> colour = colours_->chosen()) map_.replaced.remove(colour->number());
  mapChanged();
}

void RecolourDialog::enableKeys() {
  const std::optional<Colour> colour = colours_->chosen();
  replace_->setEnabled(colour.has_value());
  keep_->setEnabled(colour && map_.replaced.contains(colour->number()));
}

void RecolourDialog::reset() {
  map_.replaced.clear();
  sliders_->reset();
  mapChanged();
}

void RecolourDialog::mapChanged() {
  map_.turn = sliders_->turn();
  preview_.show(
      map_, wholeSkin_->isChecked() ? RecolourPreview::Scope::WholeSkin : RecolourPreview::Scope::ThisScreen);
  colours_->showMap(map_);
  enableKeys();
}

// A picture may show on any screen.
void RecolourDialog::picturesTicked() {
  const bool isTicked = pictures_->isChecked();
  if (isTicked) wholeSkin_->setChecked(true);
  thisScreen_->setEnabled(!isTicked);
  ok_->setText(isTicked ? UiTexts::tr("Make &New Skin...") : UiTexts::tr("&OK"));
  ok_->setToolTip(isTicked ? UiTexts::tr("Make a new Skin in these colours, and go on with that")
                           : UiTexts::tr("Recolour the Skin, as one step"));
}

// While more is to come, as the sliders move, those of the screen that is shown are told first.
void RecolourDialog::tellFaint(bool isAll) {
  const std::vector<FaintCaption>& found = preview_.faint();
  told_->setText(countText(found.size()) + (isAll ? QString() : QStringLiteral(" ...")));
  const int count = static_cast<int>(std::min(found.size(), kMostRows));
  while (faint_->count() > count) delete faint_->takeItem(count);
  for (int i = 0; i < count; ++i) {
    const FaintCaption& faint = found[static_cast<std::size_t>(i)];
    QListWidgetItem* row = i < faint_->count() ? faint_->item(i) : new QListWidgetItem(faint_);
    row->setText(faintText(hands_.state(), faint));
    row->setData(Qt::UserRole, faint.element->key());
  }
}

void RecolourDialog::goTo(const QListWidgetItem* row) {
  if (Element* element = canvasElement(hands_.state(), row->data(Qt::UserRole).toString()))
    goToElement(hands_, *element);
}

void RecolourDialog::accept() {
  // Another Skin in hand ends the dialog, maybe while that is loaded.
  const QPointer<RecolourDialog> dialog(this);
  if (!pictures_->isChecked())
    recolourInHand();
  else if (!copyAsNewSkin() || !dialog)
    return;
  QDialog::accept();
}

void RecolourDialog::recolourInHand() {
  const Dress dress = preview_.dress();
  if (dress.isEmpty()) return;
  hands_.recolour(dress);
  hands_.state().notes.say(placesText(dress.colours().size()));
}

bool RecolourDialog::copyAsNewSkin() {
  const Recolouring recolouring{map_, true};
  return veneerer::copyAsNewSkin(hands_, owner_, titleText(), [&](const QString& folder, const GoOn& goOn) {
    const NotRecoloured kept =
        copyRecoloured(hands_.state(), hands_.platform(), skin_, folder, recolouring, goOn);
    return leftOutNote(kept.leftOut) + keptText(kept);
  });
}

void addRecolourCommand(QMenu& menu, const Ui& ui, CanvasWidget& canvas, QWidget& owner) {
  QAction* action = menu.addAction(UiTexts::tr("Rec&olour..."));
  action->setStatusTip(UiTexts::tr("Give the Skin other colours: replace some, or turn all of them"));
  QObject::connect(action, &QAction::triggered, &owner,
                   [ui, &canvas, &owner, open = QPointer<RecolourDialog>()]() mutable {
                     // One that was closed is yet to be deleted.
                     if (!open || !open->isVisible()) open = new RecolourDialog(ui, canvas, owner);
                     open->QWidget::show();
                     open->activateWindow();
                   });
}

}  // namespace veneerer
