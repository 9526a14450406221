#include "ui/splashwindow.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace veneerer {

namespace {

class ProgressBinding : public Binding {
public:
  ProgressBinding(Label& label, QLabel& widget) : Binding(label, widget), label_(label), widget_(widget) {
    widget.setTextFormat(Qt::PlainText);
    widget.setText(label.caption());
  }
  void show(Property) override {
    // A window that has just come up paints nothing before the screen has answered.
    if (!isOnScreen()) QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    widget_.setText(label_.caption());
    widget_.repaint();
  }

private:
  bool isOnScreen() const {
    const QWindow* window = widget_.window()->windowHandle();
    return !widget_.isVisible() || (window && window->isExposed());
  }
  Label& label_;
  QLabel& widget_;
};

QLabel* makeLine(const Ui& ui, Label& element, double size, bool bold = false) {
  QLabel* label = makeCaption(ui, element);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * size);
  font.setBold(bold);
  label->setFont(font);
  return label;
}

}  // namespace

SplashWindow::SplashWindow(const Ui& ui) : QWidget(nullptr, Qt::SplashScreen) {
  Splash& splash = ui.hands.state().frmSplash;
  setFixedSize(460, 260);
  // In the upper half: the middle of the screen belongs to the questions.
  const QRect area = screen()->availableGeometry();
  move(area.center().x() - width() / 2, std::max(area.top(), area.center().y() - height() - 80));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(28, 24, 28, 20);
  column->addWidget(makeLine(ui, *splash.Label1, 1));
  column->addStretch();
  column->addWidget(makeLine(ui, *splash.lblProductName, 3, true));
  column->addWidget(makeLine(ui, *splash.lblPlatform, 1.4));
  column->addWidget(makeLine(ui, *splash.lblVersion, 1));
  column->addStretch();
  auto* progress = new QLabel;
  new ProgressBinding(*splash.Label3, *progress);
  column->addWidget(progress);
  column->addWidget(makeLine(ui, *splash.Label2, 0.9));
}

void SplashWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace veneerer
