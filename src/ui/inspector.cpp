#include "ui/inspector.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "canvas/description.h"
#include "canvas/sections.h"
#include "ui/colourmenu.h"
#include "ui/fieldnote.h"
#include "ui/layouts.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

// Tells what would become of a caption while it is being typed.
class CaptionDelegate : public QStyledItemDelegate {
public:
  explicit CaptionDelegate(const InspectorModel& model, QObject* parent)
      : QStyledItemDelegate(parent), model_(model) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    auto* field = qobject_cast<QLineEdit*>(editor);
    if (field && model_.propertyAt(index.row()) == Property::Caption) new FieldNote(*field);
    return editor;
  }

private:
  const InspectorModel& model_;
};

}  // namespace

/// Asks for a menu of a row: at the pointer, or below the row that the keys have led to.
class PropertyTable : public QTableView {
public:
  std::function<void(const QModelIndex& row, const QPoint& at)> askedForMenu;

  QPoint below(const QModelIndex& index) const {
    return viewport()->mapToGlobal(visualRect(index).bottomLeft());
  }

protected:
  void contextMenuEvent(QContextMenuEvent* event) override {
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex row = isByKey ? currentIndex() : indexAt(event->pos());
    if (row.isValid()) askedForMenu(row, isByKey ? below(row) : event->globalPos());
  }
};

Inspector::Inspector(const Ui& ui)
    : hands_(ui.hands),
      watching_(ui.hands.state().board.watch([this](const Change& change) {
        if (std::ranges::count(model_.elements(), &change.element) > 0) refreshing_.start();
      })),
      model_(ui.hands),
      title_(new QLabel),
      table_(new PropertyTable),
      copy_(new QToolButton),
      paste_(new QToolButton) {
  setWindowTitle(UiTexts::tr("Inspector"));
  title_->setTextFormat(Qt::PlainText);
  title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  table_->setModel(&model_);
  table_->setItemDelegate(new CaptionDelegate(model_, this));
  table_->setAccessibleName(UiTexts::tr("Properties"));
  table_->setToolTip(UiTexts::tr("Type a value to set it; click a colour's name to choose a colour"));
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  // The tabulator leads out of the table; within a value it goes to the next one.
  table_->setTabKeyNavigation(false);
  table_->setEditTriggers(QAbstractItemView::AllEditTriggers);
  table_->setAlternatingRowColors(true);
  table_->setShowGrid(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
  table_->horizontalHeader()->setSectionResizeMode(InspectorModel::Text, QHeaderView::Stretch);
  copy_->setText(UiTexts::tr("Cop&y Style"));
  copy_->setToolTip(UiTexts::tr("Remember the colours, the font and the style of this element"));
  paste_->setText(UiTexts::tr("&Paste Style"));
  paste_->setToolTip(UiTexts::tr("Give what is selected the style that was copied"));
  auto* row = new QHBoxLayout;
  row->addWidget(title_, 1);
  row->addWidget(copy_);
  row->addWidget(paste_);
  auto* column = compact(new QVBoxLayout(this));
  column->addLayout(row);
  column->addWidget(table_);
  refreshing_.setSingleShot(true);
  refreshing_.setInterval(0);
  refreshing_.callOnTimeout(this, [this] { model_.refresh(); });
  connect(&hands_, &Operator::acted, this, &Inspector::inspect);
  connect(&hands_, &Operator::selected, this, &Inspector::inspect);
  connect(table_, &QTableView::clicked, this, [this](const QModelIndex& index) {
    if (index.column() == InspectorModel::Name) showColours(index, table_->below(index));
  });
  table_->askedForMenu = [this](const QModelIndex& index, const QPoint& at) { showColours(index, at); };
  connect(copy_, &QToolButton::clicked, this, &Inspector::copyStyle);
  connect(paste_, &QToolButton::clicked, this, &Inspector::pasteStyle);
  inspect();
}

std::vector<Element*> Inspector::inspected() const {
  const std::vector<Element*>& selected = hands_.overlay().elements();
  if (!selected.empty()) return selected;
  Element* inHand = currentElement(hands_.state());
  return inHand ? std::vector<Element*>{inHand} : std::vector<Element*>();
}

void Inspector::inspect() {
  const std::vector<Element*> elements = inspected();
  const bool isOther = elements != model_.elements();
  model_.inspect(elements);
  if (isOther)
    for (const int column : {InspectorModel::Name, InspectorModel::Pixels, InspectorModel::Place})
      table_->resizeColumnToContents(column);
  QString title = UiTexts::tr("Click an element to see its properties");
  if (!elements.empty()) title = elementTitle(hands_.state(), *elements.front());
  if (elements.size() > 1)
    title = UiTexts::tr("%1 and %2 more").arg(title, QString::number(elements.size() - 1));
  title_->setText(title);
  copy_->setEnabled(!elements.empty());
  paste_->setEnabled(!elements.empty() && !copied_.empty());
}

void Inspector::showColours(const QModelIndex& index, const QPoint& at) {
  const Property property = model_.propertyAt(index.row());
  if (propertyType(property) != ValueType::Colour) return;
  auto* menu = new ColourMenu(
      hands_, std::get<Colour>(model_.valueOf(property)),
      [this, property](Colour colour) { model_.set(property, colour); }, this);
  menu->popup(at);
}

void Inspector::copyStyle() {
  copied_ = lookOf(*model_.elements().front());
  inspect();
}

void Inspector::pasteStyle() {
  hands_.pasteLook(copied_, model_.elements());
}

}  // namespace veneerer
