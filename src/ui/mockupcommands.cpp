#include "ui/mockupcommands.h"

#include <QActionGroup>
#include <QFileInfo>

#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kStrengths[] = {10, 20, 30, 40, 50, 60, 70, 80, 90, 100};

template <class F>
void change(CanvasWidget& canvas, F set) {
  MockUp mockUp = canvas.mockUp();
  set(mockUp);
  canvas.setMockUp(mockUp);
}

void choosePicture(CanvasWidget& canvas, Operator& hands) {
  const QString path =
      hands.dialogs().chooseFile(QStringLiteral("Image Files|*.png;*.bmp;*.jpg;*.jpeg;*.gif"));
  if (path.isEmpty()) return;
  const QImage picture = hands.decoded(path);
  if (picture.isNull())
    return hands.dialogs().inform(
        UiTexts::tr("Mock-up"),
        UiTexts::tr("\"%1\" is no picture that can be shown.").arg(QFileInfo(path).fileName()));
  // The form in which blending is quickest.
  change(canvas, [&](MockUp& mockUp) {
    mockUp.picture = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  });
}

template <class F>
QAction* addChoice(QMenu& menu, QActionGroup& group, const QString& text, const QString& tip, bool isChosen,
                   F choose) {
  QAction* action = group.addAction(menu.addAction(text));
  action->setCheckable(true);
  action->setChecked(isChosen);
  action->setStatusTip(tip);
  QObject::connect(action, &QAction::triggered, action, choose);
  return action;
}

void addStrengths(QMenu& menu, CanvasWidget& canvas) {
  auto* group = new QActionGroup(&menu);
  for (const int strength : kStrengths)
    addChoice(menu, *group, QStringLiteral("%1 %").arg(strength),
              UiTexts::tr("How much of what lies on top is seen"), strength == canvas.mockUp().strength,
              [&canvas, strength] { change(canvas, [&](MockUp& mockUp) { mockUp.strength = strength; }); });
}

void addSides(QMenu& menu, CanvasWidget& canvas) {
  auto* group = new QActionGroup(&menu);
  const auto lay = [&canvas](bool isUnder) {
    change(canvas, [&](MockUp& mockUp) { mockUp.isUnder = isUnder; });
  };
  addChoice(menu, *group, UiTexts::tr("&Over the Screen"),
            UiTexts::tr("Show the mock-up see-through over the screen"), !canvas.mockUp().isUnder,
            [lay] { lay(false); });
  addChoice(menu, *group, UiTexts::tr("&Under the Screen"),
            UiTexts::tr("Show the screen see-through over the mock-up"), canvas.mockUp().isUnder,
            [lay] { lay(true); });
}

}  // namespace

void addMockUpCommands(QMenu& menu, CanvasWidget& canvas, Operator& hands) {
  QAction* choose = menu.addAction(UiTexts::tr("&Choose Picture..."));
  choose->setStatusTip(UiTexts::tr("Lay a picture over the canvas to compare with; it is never saved"));
  addStrengths(*menu.addMenu(UiTexts::tr("&Strength")), canvas);
  addSides(menu, canvas);
  QAction* remove = menu.addAction(UiTexts::tr("&Remove"));
  remove->setStatusTip(UiTexts::tr("Take the mock-up away"));
  const auto enable = [remove, &canvas] { remove->setEnabled(!canvas.mockUp().picture.isNull()); };
  enable();
  QObject::connect(choose, &QAction::triggered, choose, [enable, &canvas, &hands] {
    choosePicture(canvas, hands);
    enable();
  });
  QObject::connect(remove, &QAction::triggered, remove, [enable, &canvas] {
    change(canvas, [](MockUp& mockUp) { mockUp.picture = QImage(); });
    enable();
  });
}

}  // namespace veneerer
