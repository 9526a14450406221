#include "ui/progresswindow.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QVBoxLayout>

#include "elements/printable.h"

namespace veneerer {

namespace {

constexpr int kWidth = 420;  // pixels

// Without an owner a window can come up behind the others. Just after a message box no window is active.
QWidget* owner() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->isVisible() && qobject_cast<QMainWindow*>(widget)) return widget;
  return nullptr;
}

}  // namespace

ProgressWindow::ProgressWindow() : QDialog(owner()), what_(new QLabel), bar_(new QProgressBar) {
  setWindowModality(Qt::ApplicationModal);
  // A file's name is part of the text, and may be long.
  what_->setTextFormat(Qt::PlainText);
  what_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* column = new QVBoxLayout(this);
  column->addWidget(what_);
  column->addWidget(bar_);
  setFixedSize(kWidth, column->sizeHint().height());
}

void ProgressWindow::tell(int done, int total, const QString& what) {
  bar_->setMaximum(total);
  bar_->setValue(done);
  what_->setText(shownText(what));
  show();
  QCoreApplication::processEvents();
}

}  // namespace veneerer
