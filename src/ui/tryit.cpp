#include "ui/tryit.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <chrono>

#include "canvas/screens.h"
#include "ui/keys.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kScreens = static_cast<int>(kScreenEntries.size());
constexpr std::chrono::seconds kReading(5);
constexpr int kHintGap = 24;  // below the upper edge, pixels

QLabel* makeHint(QWidget* parent) {
  auto* hint = new QLabel(UiTexts::tr("Escape returns, the arrow keys leaf"), parent);
  hint->setObjectName(QStringLiteral("hint"));
  hint->setAttribute(Qt::WA_TransparentForMouseEvents);
  hint->setStyleSheet(
      QStringLiteral("background: rgba(0, 0, 0, 200); color: white; padding: 8px 16px; border-radius: 6px;"));
  hint->adjustSize();
  QTimer::singleShot(kReading, hint, &QWidget::hide);
  return hint;
}

}  // namespace

TryIt::TryIt(const Ui& ui, int entry, QWidget* owner)
    : QWidget(owner, Qt::Window), screen_(new JukeboxScreen(ui, entry)), hint_(makeHint(this)) {
  setObjectName(QStringLiteral("tryit"));
  setWindowTitle(tr("Try It"));
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setWindowModality(Qt::ApplicationModal);
  setFocusPolicy(Qt::StrongFocus);
  screen_->setParent(this);
  hint_->raise();
}

void TryIt::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
    case kTryItKey:
      close();
      return;
    case Qt::Key_Right:
    case Qt::Key_PageDown:
      return leaf(1);
    case Qt::Key_Left:
    case Qt::Key_PageUp:
      return leaf(-1);
    case Qt::Key_Home:
      return screen_->goTo(0);
    default:
      QWidget::keyPressEvent(event);
  }
}

void TryIt::leaf(int step) {
  screen_->goTo((screen_->entry() + step + kScreens) % kScreens);
}

void TryIt::resizeEvent(QResizeEvent*) {
  screen_->fitInto(size());
  const QSize rest = size() - screen_->size();
  screen_->move(rest.width() / 2, rest.height() / 2);
  // At the lower edge there are menus.
  hint_->move((width() - hint_->width()) / 2, kHintGap);
}

void TryIt::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), Qt::black);
}

void TryIt::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  parentWidget()->activateWindow();
}

void tryOut(const Ui& ui, QWidget* owner) {
  const int chosen = ui.hands.state().form6.Combo6->listIndex();
  auto* window = new TryIt(ui, std::clamp(chosen, 0, kScreens - 1), owner);
  // A desktop without a manager of windows knows no full screen.
  window->setGeometry(owner->screen()->geometry());
  window->showFullScreen();
  window->setFocus();
}

}  // namespace veneerer
