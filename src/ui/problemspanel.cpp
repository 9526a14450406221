#include "ui/problemspanel.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QStyle>
#include <QVBoxLayout>

#include "canvas/description.h"
#include "elements/printable.h"
#include "ui/layouts.h"

namespace veneerer {

namespace {

enum Column { Text, Where };
constexpr int kColumns = Where + 1;

constexpr int kPatience = 8;           // milliseconds of judging in one go
constexpr int kAtOnce = 4;             // elements that are judged wholly between two looks at the clock
constexpr qsizetype kMostRows = 1000;  // nobody reads more

constexpr int kKey = Qt::UserRole;

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
  row->setData(Text, kKey, finding.element);
  for (const int column : {Text, Where}) row->setToolTip(column, plainToolTip(row->text(column)));
  return row;
}

}  // namespace

ProblemsPanel::ProblemsPanel(const Ui& ui)
    : hands_(ui.hands),
      rows_(new QTreeWidget),
      watching_(ui.hands.state().board.watch([this](const Change& change) { changed(change); })) {
  setWindowTitle(QStringLiteral("Problems"));
  rows_->setColumnCount(kColumns);
  rows_->setHeaderLabels({QStringLiteral("Problem"), QStringLiteral("Where")});
  rows_->setRootIsDecorated(false);
  rows_->setUniformRowHeights(true);
  rows_->setAccessibleName(windowTitle());
  rows_->setToolTip(QStringLiteral("Click a problem to select its element; Enter goes to its screen"));
  rows_->header()->setStretchLastSection(false);
  rows_->header()->setSectionResizeMode(Text, QHeaderView::Stretch);
  auto* column = compact(new QVBoxLayout(this));
  column->addWidget(rows_);
  idle_.setInterval(0);
  idle_.callOnTimeout(this, &ProblemsPanel::work);
  connect(rows_, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* row) { select(row); });
  connect(rows_, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* row) { goTo(row); });
  // A save mends what only the files have.
  connect(&hands_.history().stack(), &QUndoStack::cleanChanged, this, [this](bool isClean) {
    if (isClean) begin();
  });
}

void ProblemsPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (watch_)
    idle_.start();
  else
    begin();
}

// What was found stays in sight until there is more to tell.
void ProblemsPanel::begin() {
  watch_.reset();
  changed_.clear();
  if (!isVisible()) return;
  watch_ = std::make_unique<ProblemsWatch>(hands_.state(), hands_.skinFolder(), hands_.screen());
  idle_.start();
}

void ProblemsPanel::changed(const Change& change) {
  if (&change.element == &*hands_.state().form4.Combo3) watch_.reset();
  if (!watch_) {
    if (isVisible() && !idle_.isActive()) idle_.start();
    return;
  }
  changed_.insert(&change.element);
  if (isVisible()) idle_.start();
}

void ProblemsPanel::work() {
  if (!isVisible()) return idle_.stop();
  if (!watch_) return begin();
  QElapsedTimer time;
  time.start();
  for (auto it = changed_.begin(); it != changed_.end() && !time.hasExpired(kPatience);) {
    watch_->judge(**it);
    it = changed_.erase(it);
  }
  bool hasMore = true;
  while (hasMore && !time.hasExpired(kPatience)) hasMore = watch_->work(kAtOnce);
  if (hasMore || !changed_.isEmpty()) return;
  idle_.stop();
  list();
}

void ProblemsPanel::list() {
  Findings findings = watch_->findings();
  if (findings == listed_) return;
  listed_ = findings;
  rows_->clear();
  QList<QTreeWidgetItem*> rows;
  for (const Finding& finding : findings.first(std::min(findings.size(), kMostRows)))
    rows.append(rowOf(*style(), finding));
  rows_->addTopLevelItems(rows);
  rows_->resizeColumnToContents(Where);
}

Element* ProblemsPanel::elementOf(const QTreeWidgetItem* row) const {
  Element* element = hands_.state().find(row->data(Text, kKey).toString());
  return element && element->family() && &element->window() == &hands_.state().form1 ? element : nullptr;
}

void ProblemsPanel::select(const QTreeWidgetItem* row) {
  if (Element* element = elementOf(row)) hands_.overlay().select({element});
}

void ProblemsPanel::goTo(const QTreeWidgetItem* row) {
  Element* element = elementOf(row);
  if (!element) return;
  State& state = hands_.state();
  const int entry = entryHolding(state, *element);
  if (entry >= 0) hands_.choose(*state.form6.Combo6, entry);
  select(row);
}

}  // namespace veneerer
