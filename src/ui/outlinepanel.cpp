#include "ui/outlinepanel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "canvas/sections.h"
#include "ui/canvaselement.h"
#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

// A burst of changes is read anew when it is over, milliseconds.
constexpr int kRest = 300;

bool isListed(Property property) {
  return property == Property::Caption || property == Property::Visible;
}

}  // namespace

OutlinePanel::OutlinePanel(const Ui& ui)
    : hands_(ui.hands),
      model_(ui.hands.state()),
      query_(new QLineEdit),
      tree_(new QTreeView),
      watching_(ui.hands.state().board.watch([this](const Change& change) {
        if (&change.element.window() == &hands_.state().form1 && isListed(change.property))
          rereading_.start();
      })) {
  setWindowTitle(UiTexts::tr("Outline"));
  query_->setPlaceholderText(UiTexts::tr("Caption, name, Section or screen"));
  query_->setClearButtonEnabled(true);
  query_->setAccessibleName(UiTexts::tr("Search"));
  query_->setToolTip(UiTexts::tr("Show only elements that all these words are found in"));
  setFocusProxy(query_);
  makeHintReadable();
  tree_->setModel(&model_);
  tree_->setAccessibleName(UiTexts::tr("Elements"));
  tree_->setToolTip(UiTexts::tr("Click an element to go there and select it; Enter takes it in hand"));
  tree_->setUniformRowHeights(true);
  tree_->setHeaderHidden(false);
  tree_->header()->setStretchLastSection(false);
  tree_->header()->setSectionResizeMode(OutlineModel::Title, QHeaderView::Stretch);
  const auto widthOf = [this](const QString& text) {
    return tree_->fontMetrics().horizontalAdvance(text) + 16;
  };
  tree_->header()->resizeSection(OutlineModel::Key, widthOf(QStringLiteral("lvButtons_H23(88)")));
  tree_->header()->resizeSection(OutlineModel::Section, widthOf(UiTexts::tr("Section")));
  auto* column = compact(new QVBoxLayout(this));
  column->addWidget(query_);
  column->addWidget(tree_);
  rereading_.setSingleShot(true);
  rereading_.setInterval(kRest);
  rereading_.callOnTimeout(this, [this] {
    if (isVisible()) search(query_->text());
  });
  connect(query_, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_.search(text);
    if (!text.isEmpty()) tree_->expandAll();
  });
  connect(query_, &QLineEdit::returnPressed, tree_, [this] { tree_->setFocus(); });
  connect(tree_, &QTreeView::clicked, this, &OutlinePanel::select);
  // On some desktops one click would activate a row.
  connect(tree_, &QTreeView::doubleClicked, this, &OutlinePanel::click);
  tree_->installEventFilter(this);
  connect(&hands_, &Operator::acted, this, &OutlinePanel::showInHand);
}

void OutlinePanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  search(query_->text());
  showInHand();
}

void OutlinePanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) makeHintReadable();
}

void OutlinePanel::makeHintReadable() {
  QPalette own;
  own.setColor(QPalette::PlaceholderText, hintInk(palette()));
  query_->setPalette(own);
}

bool OutlinePanel::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  click(tree_->currentIndex());
  return true;
}

void OutlinePanel::search(const QString& query) {
  model_.readAnew();
  if (!query.isEmpty()) tree_->expandAll();
}

void OutlinePanel::select() {
  if (Element* element = model_.elementAt(tree_->currentIndex())) goToElement(hands_, *element);
}

void OutlinePanel::click(const QModelIndex& index) {
  if (Element* element = model_.elementAt(index)) hands_.click(*element);
}

// Only as far as it is to be seen: a search isn't disturbed by what is clicked on the canvas.
void OutlinePanel::showInHand() {
  if (!isVisible() || !query_->text().isEmpty() || tree_->hasFocus()) return;
  const Element* element = currentElement(hands_.state());
  if (!element) return;
  const QModelIndex index = model_.indexOf(*element);
  if (index.isValid() && index != tree_->currentIndex()) tree_->setCurrentIndex(index);
}

}  // namespace veneerer
