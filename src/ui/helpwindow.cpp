#include "ui/helpwindow.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScreen>
#include <QToolButton>

#include "ui/layouts.h"

namespace veneerer {

namespace {

constexpr QSize kSize(940, 700);  // pixels; smaller where the screen is
constexpr int kSideWidth = 230;   // pixels

constexpr int kPage = Qt::UserRole;

QTreeWidgetItem* addPage(const QString& title, const QString& page) {
  auto* row = new QTreeWidgetItem({title});
  row->setData(0, kPage, page);
  return row;
}

QToolButton* makeButton(const QString& text, const QString& tip) {
  auto* button = new QToolButton;
  button->setText(text);
  button->setToolTip(tip);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* owner)
    : QDialog(owner, Qt::Window), words_(new QLineEdit), list_(new QTreeWidget), browser_(new HelpBrowser) {
  setObjectName(QStringLiteral("help"));
  auto* row = compact(new QHBoxLayout(this));
  row->addLayout(makeSide());
  row->addLayout(makePage(), 1);
  connect(browser_, &QTextBrowser::historyChanged, this, &HelpWindow::pageChanged);
  listContents();
  makeHintReadable();
  resize(kSize.boundedTo(screen()->availableSize() * 9 / 10));
}

QLayout* HelpWindow::makeSide() {
  words_->setObjectName(QStringLiteral("words"));
  words_->setPlaceholderText(tr("Search"));
  words_->setAccessibleName(tr("Search"));
  words_->setToolTip(tr("List the pages that all these words are found in"));
  words_->setClearButtonEnabled(true);
  words_->setFixedWidth(kSideWidth);
  list_->setObjectName(QStringLiteral("contents"));
  list_->setAccessibleName(tr("Contents"));
  list_->setToolTip(tr("The pages of the manual; a click or Enter opens one"));
  list_->header()->hide();
  list_->setRootIsDecorated(false);
  list_->setItemsExpandable(false);
  list_->setWordWrap(true);
  list_->setFixedWidth(kSideWidth);
  connect(words_, &QLineEdit::textChanged, this, &HelpWindow::search);
  connect(words_, &QLineEdit::returnPressed, this, [this] { choose(list_->topLevelItem(0)); });
  connect(list_, &QTreeWidget::itemClicked, this, &HelpWindow::choose);
  connect(list_, &QTreeWidget::itemActivated, this, &HelpWindow::choose);
  auto* column = new QVBoxLayout;
  column->addWidget(words_);
  column->addWidget(list_, 1);
  return column;
}

QLayout* HelpWindow::makePage() {
  browser_->setAccessibleName(tr("Page"));
  browser_->setToolTip(tr("A page of the manual; Tab goes from link to link, Enter follows one"));
  auto* column = new QVBoxLayout;
  column->addLayout(makeWays());
  column->addWidget(browser_, 1);
  return column;
}

QLayout* HelpWindow::makeWays() {
  QToolButton* back = makeButton(tr("&Back"), tr("Go to the page before (Alt+Left)"));
  QToolButton* forward = makeButton(tr("&Forward"), tr("Go to the page that Back came from (Alt+Right)"));
  QToolButton* contents = makeButton(tr("&Contents"), tr("Go to the list of all pages"));
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(back, &QToolButton::clicked, browser_, &QTextBrowser::backward);
  connect(forward, &QToolButton::clicked, browser_, &QTextBrowser::forward);
  connect(contents, &QToolButton::clicked, this, [this] { browser_->showPage(kManualIndex); });
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
  auto* row = new QHBoxLayout;
  for (QToolButton* button : {back, forward, contents}) row->addWidget(button);
  row->addStretch(1);
  return row;
}

void HelpWindow::listContents() {
  QTreeWidgetItem* group = nullptr;
  for (const ManualEntry& entry : manual_.contents()) {
    if (!group || group->text(0) != entry.group) {
      group = new QTreeWidgetItem(list_, {entry.group});
      QFont font = list_->font();
      font.setBold(true);
      group->setFont(0, font);
      group->setFlags(Qt::ItemIsEnabled);
    }
    group->addChild(addPage(entry.title, entry.page));
  }
  list_->expandAll();
  pageChanged();
}

void HelpWindow::listHits(const QString& words) {
  const QList<ManualHit> hits = manual_.search(words);
  for (const ManualHit& hit : hits) {
    QTreeWidgetItem* row = addPage(hit.title, hit.page);
    list_->addTopLevelItem(row);
    auto* excerpt = addPage(hit.excerpt, hit.page);
    excerpt->setForeground(0, hintInk(palette()));
    row->addChild(excerpt);
  }
  if (hits.isEmpty()) list_->addTopLevelItem(new QTreeWidgetItem({tr("Nothing is found")}));
  list_->expandAll();
}

void HelpWindow::search(const QString& words) {
  list_->clear();
  if (words.simplified().isEmpty())
    listContents();
  else
    listHits(words);
}

void HelpWindow::choose(const QTreeWidgetItem* row) {
  const QString page = row ? row->data(0, kPage).toString() : QString();
  if (page.isEmpty()) return;
  browser_->showPage(page);
  browser_->mark(words_->text().split(u' ', Qt::SkipEmptyParts));
}

// What is shown is marked in the contents; found pages keep the row that was chosen.
void HelpWindow::pageChanged() {
  setWindowTitle(tr("Manual: %1").arg(manual_.title(browser_->page())));
  if (!words_->text().isEmpty()) return;
  list_->setCurrentItem(nullptr);
  for (QTreeWidgetItemIterator row(list_); *row; ++row)
    if ((*row)->data(0, kPage).toString() == browser_->page()) list_->setCurrentItem(*row);
}

void HelpWindow::openPage(const QString& page) {
  browser_->showPage(page);
  browser_->setFocus();
  come();
}

void HelpWindow::openSearch() {
  if (browser_->page().isEmpty()) browser_->showPage(kManualIndex);
  words_->setFocus();
  words_->selectAll();
  come();
}

void HelpWindow::come() {
  show();
  raise();
  activateWindow();
}

void HelpWindow::makeHintReadable() {
  QPalette own;
  own.setColor(QPalette::PlaceholderText, hintInk(palette()));
  words_->setPalette(own);
}

void HelpWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) makeHintReadable();
}

void HelpWindow::belongTo(QWidget& owner) {
  if (parentWidget() == &owner) return;
  const bool wasShown = isVisible();
  const QRect place = geometry();
  setParent(&owner, windowFlags());
  if (!wasShown) return;
  setGeometry(place);
  show();
}

}  // namespace veneerer
