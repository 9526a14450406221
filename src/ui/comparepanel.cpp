#include "ui/comparepanel.h"

#include <QHeaderView>
#include <QSet>
#include <QVBoxLayout>

#include "comparison/differencewords.h"
#include "elements/printable.h"
#include "records/recorderror.h"
#include "ui/canvaselement.h"
#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

QString countedIn(const Differences& differences) {
  QSet<QString> files;
  for (const Difference& difference : differences) files.insert(difference.file);
  const QString found = differences.size() == 1 ? UiTexts::tr("1 difference")
                                                : UiTexts::tr("%1 differences").arg(differences.size());
  return files.size() == 1 ? UiTexts::tr("%1 in 1 file").arg(found)
                           : UiTexts::tr("%1 in %2 files").arg(found).arg(files.size());
}

QString nameOf(const SkinFolder& folder) {
  return shownText(folder.path().section(u'/', -1));
}

}  // namespace

ComparePanel::ComparePanel(const Ui& ui)
    : hands_(ui.hands),
      model_(ui.hands.state()),
      other_(new QComboBox),
      compare_(new TightButton),
      rows_(new QTreeView),
      told_(new QLabel),
      pictures_(new QWidget),
      before_(new SmallPicture(ui, UiTexts::tr("The picture on the first side"))),
      after_(new SmallPicture(ui, UiTexts::tr("The picture on the second side"))),
      folders_{SkinFolder(QString()), SkinFolder(QString())} {
  setWindowTitle(UiTexts::tr("Compare"));
  auto* column = compact(new QVBoxLayout(this));
  addTop(column);
  addRows(column);
  addPictures(column);
  clear();
  new Watch(*hands_.state().form4.Combo3, this, [this] {
    listSkins();
    if (hands_.skinFolder().path() != folders_[0].path()) clear();
  });
}

void ComparePanel::addTop(QVBoxLayout* column) {
  other_->setAccessibleName(UiTexts::tr("Compare with"));
  other_->setToolTip(UiTexts::tr("What the Skin in hand is compared with"));
  other_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  compare_->setText(UiTexts::tr("&Compare"));
  compare_->setToolTip(UiTexts::tr("List what differs; nothing is changed"));
  connect(compare_, &QPushButton::clicked, this, &ComparePanel::compare);
  auto* row = new QHBoxLayout;
  row->addWidget(other_, 1);
  row->addWidget(compare_);
  column->addLayout(row);
}

void ComparePanel::addRows(QVBoxLayout* column) {
  rows_->setModel(&model_);
  rows_->setRootIsDecorated(false);
  rows_->setUniformRowHeights(true);
  rows_->setAllColumnsShowFocus(true);
  rows_->setAccessibleName(UiTexts::tr("Differences"));
  rows_->setToolTip(UiTexts::tr("Click a difference to go to its screen and select its element"));
  rows_->header()->setDefaultSectionSize(fontMetrics().horizontalAdvance(QStringLiteral("TRACK 10 (10)  ")));
  connect(rows_, &QTreeView::clicked, this, &ComparePanel::goTo);
  connect(rows_, &QTreeView::activated, this, &ComparePanel::goTo);
  told_->setTextFormat(Qt::PlainText);
  told_->setWordWrap(true);
  column->addWidget(rows_, 1);
  column->addWidget(told_);
}

void ComparePanel::addPictures(QVBoxLayout* column) {
  auto* row = new QHBoxLayout(pictures_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(before_, 1);
  row->addWidget(after_, 1);
  column->addWidget(pictures_);
}

void ComparePanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  listSkins();
}

void ComparePanel::listSkins() {
  if (!isVisible()) return;
  const QString chosen = otherSkin();
  const QString inHand = hands_.skinFolder().path().section(u'/', -1);
  other_->clear();
  other_->addItem(UiTexts::tr("The disk: what a save would change"));
  for (const QString& skin : SkinsRoot(hands_.platform().folder).skins())
    if (skin != inHand) other_->addItem(shownText(skin), skin);
  if (!chosen.isEmpty()) other_->setCurrentIndex(std::max(0, other_->findData(chosen)));
}

void ComparePanel::compare() {
  if (hands_.isActing()) return;
  clear();
  folders_[0] = hands_.skinFolder();
  folders_[1] = otherSkin().isEmpty() ? folders_[0] : SkinFolder(hands_.platform().folder, otherSkin());
  const QString first = otherSkin().isEmpty() ? UiTexts::tr("On the Disk") : nameOf(folders_[0]);
  const QString second = otherSkin().isEmpty() ? UiTexts::tr("After a Save") : nameOf(folders_[1]);
  try {
    const Differences found = differences();
    model_.show(found, first, second);
    tell(found);
  } catch (const RecordError& error) {
    told_->setText(UiTexts::tr("Nothing is compared. %1").arg(error.message()));
  }
}

// What touches the elements in hand is quick; two whole Skins with their pictures may be gigabytes.
Differences ComparePanel::differences() {
  Differences found;
  hands_.run([&] {
    if (otherSkin().isEmpty())
      found = savedDifferences(hands_.state(), folders_[0]);
    else
      hands_.platform().runAside(
          [&, first = SkinFolder(folders_[0].path()), second = SkinFolder(folders_[1].path())] {
            found = skinDifferences(first, second, hands_.screen());
          });
  });
  return found;
}

void ComparePanel::tell(const Differences& differences) {
  if (otherSkin().isEmpty())
    return told_->setText(differences.isEmpty()
                              ? UiTexts::tr("A save would change nothing.")
                              : UiTexts::tr("A save would change it: %1.").arg(countedIn(differences)));
  const QString unsaved =
      hands_.history().isModified() ? UiTexts::tr(" What isn't saved isn't compared.") : QString();
  told_->setText((differences.isEmpty() ? UiTexts::tr("Nothing differs") : countedIn(differences)) + u'.' +
                 unsaved);
}

Element* ComparePanel::elementOf(const QModelIndex& index) const {
  return index.isValid() ? canvasElement(hands_.state(), model_.at(index.row()).element) : nullptr;
}

void ComparePanel::goTo(const QModelIndex& index) {
  if (Element* element = elementOf(index)) goToElement(hands_, *element);
  showPictures(model_.at(index.row()));
}

void ComparePanel::showPictures(const Difference& difference) {
  const bool hasBefore = before_->show(picturePath(difference, difference.before, folders_[0]));
  const bool hasAfter = after_->show(picturePath(difference, difference.after, folders_[1]));
  pictures_->setVisible(hasBefore || hasAfter);
}

void ComparePanel::clear() {
  model_.show({}, UiTexts::tr("Before"), UiTexts::tr("After"));
  told_->clear();
  pictures_->hide();
}

}  // namespace veneerer
