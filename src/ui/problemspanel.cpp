#include "ui/problemspanel.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QMenu>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "elements/printable.h"
#include "ui/canvaselement.h"
#include "ui/diskfollower.h"
#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

enum Column { Text, Where, Remedied };
constexpr int kColumns = Remedied + 1;

constexpr int kPatience = 8;           // milliseconds of judging in one go
constexpr int kAtOnce = 4;             // elements that are judged wholly between two looks at the clock
constexpr qsizetype kMostRows = 1000;  // nobody reads more

// How long the hidden panel leaves the operator alone, and pauses between two goes; milliseconds.
constexpr int kRest = 400;
constexpr int kPause = 20;

QIcon iconOf(const QStyle& style, FindingKind kind) {
  switch (kind) {
    case FindingKind::Error:
      return style.standardIcon(QStyle::SP_MessageBoxCritical);
    case FindingKind::Warning:
      return style.standardIcon(QStyle::SP_MessageBoxWarning);
    case FindingKind::Hint:
      return style.standardIcon(QStyle::SP_MessageBoxInformation);
  }
  return {};
}

QString placeOf(const Finding& finding) {
  return finding.line > 0 ? QStringLiteral("%1:%2").arg(finding.file).arg(finding.line) : finding.file;
}

QTreeWidgetItem* rowOf(const QStyle& style, const Finding& finding) {
  auto* row = new QTreeWidgetItem({shownText(finding.text), shownText(placeOf(finding))});
  row->setIcon(Text, iconOf(style, finding.kind));
  if (!finding.remedies.isEmpty()) row->setText(Remedied, UiTexts::tr("Yes"));
  for (const int column : {Text, Where}) row->setToolTip(column, plainToolTip(row->text(column)));
  return row;
}

}  // namespace

ProblemsPanel::ProblemsPanel(const Ui& ui)
    : hands_(ui.hands),
      rows_(new QTreeWidget),
      remedies_(new RemedyButtons([this](const Remedy& remedy) { apply(remedy); })),
      watching_(ui.hands.state().board.watch([this](const Change& change) { changed(change); })) {
  setWindowTitle(tr("Problems"));
  rows_->setColumnCount(kColumns);
  rows_->setHeaderLabels({tr("Problem"), tr("Where"), tr("Remedy")});
  rows_->setRootIsDecorated(false);
  rows_->setUniformRowHeights(true);
  rows_->setAccessibleName(windowTitle());
  rows_->setToolTip(tr("Click a problem to go to its screen and select its element"));
  rows_->header()->setStretchLastSection(false);
  rows_->header()->setSectionResizeMode(Text, QHeaderView::Stretch);
  rows_->setContextMenuPolicy(Qt::CustomContextMenu);
  auto* column = compact(new QVBoxLayout(this));
  column->addWidget(rows_, 1);
  column->addWidget(remedies_);
  idle_.callOnTimeout(this, &ProblemsPanel::work);
  connect(rows_, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* row) { goTo(row); });
  connect(rows_, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* row) { goTo(row); });
  connect(rows_, &QTreeWidget::currentItemChanged, this, &ProblemsPanel::offerRemedies);
  connect(rows_, &QTreeWidget::customContextMenuRequested, this, &ProblemsPanel::openMenu);
  connect(&ui.disk, &DiskFollower::filesChanged, this, &ProblemsPanel::filesChanged);
  // A save mends what only the files have.
  connect(&hands_.history().stack(), &QUndoStack::cleanChanged, this, [this](bool isClean) {
    if (isClean) begin();
  });
}

ProblemsWatch::Depth ProblemsPanel::depth() const {
  return isVisible() ? ProblemsWatch::Depth::Hints : ProblemsWatch::Depth::Warnings;
}

void ProblemsPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  idle_.start(0);
}

void ProblemsPanel::schedule() {
  isBusy_ = true;
  if (!idle_.isActive() || isVisible()) idle_.start(isVisible() ? 0 : kRest);
}

// What was found stays in sight until there is more to tell.
void ProblemsPanel::begin() {
  watch_.reset();
  changed_.clear();
  schedule();
}

void ProblemsPanel::changed(const Change& change) {
  if (&change.element == &*hands_.state().form4.Combo3) watch_.reset();
  if (watch_) changed_.insert(&change.element);
  if (!idle_.isActive() || !isBusy_) schedule();
}

void ProblemsPanel::filesChanged(const QSet<QString>& paths) {
  if (watch_) watch_->filesChanged(paths.values());
  schedule();
}

void ProblemsPanel::work() {
  if (std::exchange(isBusy_, false) && !isVisible()) return idle_.setInterval(kRest);
  if (hands_.state().form4.Combo3->text().isEmpty()) return idle_.stop();
  if (!watch_ || watch_->depth() != depth()) {
    changed_.clear();
    watch_ = std::make_unique<ProblemsWatch>(hands_.state(), hands_.skinFolder(), hands_.screen(), QString(),
                                             kTouchPixels, depth());
  }
  if (judgeSome()) return idle_.setInterval(isVisible() ? 0 : kPause);
  idle_.stop();
  list();
}

/// True while there is more to judge.
bool ProblemsPanel::judgeSome() {
  QElapsedTimer time;
  time.start();
  for (auto it = changed_.begin(); it != changed_.end() && !time.hasExpired(kPatience);) {
    watch_->judge(**it);
    it = changed_.erase(it);
  }
  bool hasMore = true;
  while (hasMore && !time.hasExpired(kPatience)) hasMore = watch_->work(kAtOnce);
  return hasMore || !changed_.isEmpty();
}

void ProblemsPanel::list() {
  const Findings findings = watch_->findings();
  const auto isProblem = [](const Finding& finding) { return finding.kind != FindingKind::Hint; };
  Q_EMIT counted(static_cast<int>(std::ranges::count_if(findings, isProblem)));
  if (!isVisible() || findings == listed_) return;
  listed_ = findings;
  fill();
}

// The row that was chosen stays so as long as it is there.
void ProblemsPanel::fill() {
  const QTreeWidgetItem* current = rows_->currentItem();
  const QString chosen = current ? current->text(Text) : QString();
  rows_->clear();
  QList<QTreeWidgetItem*> rows;
  for (const Finding& finding : listed_.first(std::min(listed_.size(), kMostRows)))
    rows.append(rowOf(*style(), finding));
  rows_->addTopLevelItems(rows);
  for (const int column : {Where, Remedied}) rows_->resizeColumnToContents(column);
  for (QTreeWidgetItem* row : rows)
    if (current && row->text(Text) == chosen) return rows_->setCurrentItem(row);
}

const Finding* ProblemsPanel::findingOf(const QTreeWidgetItem* row) const {
  const int place = rows_->indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(row));
  return place >= 0 ? &listed_.at(place) : nullptr;
}

Element* ProblemsPanel::elementOf(const QTreeWidgetItem* row) const {
  const Finding* finding = findingOf(row);
  return finding ? canvasElement(hands_.state(), finding->element) : nullptr;
}

void ProblemsPanel::goTo(const QTreeWidgetItem* row) {
  if (Element* element = elementOf(row)) goToElement(hands_, *element);
}

void ProblemsPanel::offerRemedies() {
  const Finding* finding = findingOf(rows_->currentItem());
  remedies_->show(finding ? finding->remedies : Remedies());
}

void ProblemsPanel::openMenu(QPoint place) {
  const QTreeWidgetItem* row = rows_->itemAt(place);
  const Finding* finding = findingOf(row);
  if (!finding) return;
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* go = menu->addAction(tr("Go to the Element"), this, [this] { goTo(rows_->currentItem()); });
  go->setEnabled(elementOf(row));
  for (const Remedy& remedy : finding->remedies)
    menu->addAction(plainMenuText(remedy.text), this, [this, remedy] { apply(remedy); });
  menu->popup(rows_->viewport()->mapToGlobal(place));
}

// What it wrote changes what is found in the folder.
void ProblemsPanel::apply(const Remedy& remedy) {
  hands_.apply(remedy);
  if (remedy.writes()) begin();
}

}  // namespace veneerer
