#include "ui/controls.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QToolTip>

#include "elements/printable.h"
#include "ui/plaintext.h"

namespace veneerer {

TextCombo::TextCombo(QWidget* parent) : QComboBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setInsertPolicy(NoInsert);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(6);
}

void TextCombo::present(const QStringList& rows, int row, const QString& text) {
  const QSignalBlocker quiet(this);
  if (rows != rows_) {
    clear();
    addItems(shownRows(rows));
    rows_ = rows;
  }
  setCurrentIndex(row);
  // Setting the text that stands there already would move the operator's cursor.
  if (isEditable() && lineEdit()->text() != text) lineEdit()->setText(text);
  text_ = shownText(text);
  update();
}

void TextCombo::showPopup() {
  view()->setMinimumWidth(view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width());
  QComboBox::showPopup();
}

int TextCombo::room() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width();
}

bool TextCombo::isCut() const {
  return fontMetrics().horizontalAdvance(text_) > room();
}

void TextCombo::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = fontMetrics().elidedText(text_, Qt::ElideRight, room());
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  if (!isEditable()) painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool TextCombo::event(QEvent* event) {
  const bool says = event->type() == QEvent::ToolTip && isCut();
  if (!says) return QComboBox::event(event);
  QStringList lines{plainToolTip(text_)};
  if (!toolTip().isEmpty()) lines.append(toolTip());
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), lines.join(u'\n'), this);
  return true;
}

void TextCombo::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

QSize TightButton::sizeHint() const {
  const QSize usual = QPushButton::sizeHint();
  const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
  return QSize(std::min(usual.width(), text + usual.height() * 2 / 3), usual.height());
}

RowListView::RowListView(QWidget* parent) : QListView(parent) {
  setModel(&model_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
}

void RowListView::present(const QStringList& rows, int row) {
  if (rows != rows_) model_.setStringList(shownRows(rows));
  rows_ = rows;
  setCurrentIndex(row < 0 ? QModelIndex() : model_.index(row));
  if (row < 0) clearSelection();
}

void RowListView::tell() {
  if (currentIndex().isValid()) Q_EMIT chosen(currentIndex().row());
}

void RowListView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton && indexAt(event->pos()).isValid();
  QListView::mousePressEvent(event);
}

void RowListView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (std::exchange(pressed_, false)) tell();
}

void RowListView::mouseDoubleClickEvent(QMouseEvent* event) {
  pressed_ = false;
  QListView::mouseDoubleClickEvent(event);
  const QModelIndex row = indexAt(event->pos());
  if (event->button() == Qt::LeftButton && row.isValid()) Q_EMIT choseTwice(row.row());
}

void RowListView::keyPressEvent(QKeyEvent* event) {
  const QModelIndex before = currentIndex();
  QListView::keyPressEvent(event);
  const int key = event->key();
  const bool confirms = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
  if (confirms || (arrowsChoose_ && currentIndex() != before)) tell();
}

}  // namespace veneerer
