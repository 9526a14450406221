#include "ui/viewcommands.h"

#include <QActionGroup>

#include "ui/texts.h"

namespace veneerer {

namespace {

constexpr int kOffered[] = {25, 50, 75, 100, 150, 200, 400, 800};
constexpr int kGridSteps[] = {5, 8, 10, 16, 20, 32, 50, 100};  // canvas pixels
constexpr int kFirstGridStep = 10;

QString percentText(const Zoom& zoom) {
  return QStringLiteral("%1 %").arg(zoom.percent());
}

template <class F>
QAction* add(QMenu& menu, const QString& text, const QList<QKeySequence>& keys, const QString& tip, F act) {
  QAction* action = menu.addAction(text);
  action->setShortcuts(keys);
  action->setShortcutContext(Qt::ApplicationShortcut);
  action->setStatusTip(tip);
  QObject::connect(action, &QAction::triggered, action, act);
  return action;
}

void addZooms(QMenu& menu, CanvasView& view) {
  add(menu, UiTexts::tr("Zoom &In"), {QKeySequence(u"Ctrl++"_qs), QKeySequence(u"Ctrl+="_qs)},
      UiTexts::tr("Show the canvas larger"), [&view] { view.zoomIn(); });
  add(menu, UiTexts::tr("Zoom &Out"), {QKeySequence(u"Ctrl+-"_qs)}, UiTexts::tr("Show the canvas smaller"),
      [&view] { view.zoomOut(); });
  add(menu, QStringLiteral("&1:1"), {QKeySequence(u"Ctrl+0"_qs)},
      UiTexts::tr("Show the canvas in its own size"), [&view] { view.zoomTo(Zoom(100)); });
  add(menu, UiTexts::tr("&Fit"), {QKeySequence(u"Ctrl+9"_qs)},
      UiTexts::tr("Show the whole canvas, at 100 % at most"), [&view] { view.fit(); });
}

/// The grid's step, and whether it is shown.
struct GridCommands {
  QAction* isShown;
  QActionGroup* steps;

  void apply(CanvasView& view) const {
    const int step = steps->checkedAction()->data().toInt();
    view.canvas().setGrid(isShown->isChecked() ? QSizeF(step, step) : QSizeF());
  }
};

void addGrid(QMenu& menu, CanvasView& view) {
  const GridCommands grid{menu.addAction(UiTexts::tr("&Grid")), new QActionGroup(&menu)};
  grid.isShown->setCheckable(true);
  grid.isShown->setShortcut(QKeySequence(u"Ctrl+'"_qs));
  grid.isShown->setShortcutContext(Qt::ApplicationShortcut);
  grid.isShown->setStatusTip(UiTexts::tr("Show a grid over the canvas"));
  const auto apply = [grid, &view] { grid.apply(view); };
  QObject::connect(grid.isShown, &QAction::toggled, &view, apply);
  QMenu* steps = menu.addMenu(UiTexts::tr("Grid S&tep"));
  for (const int step : kGridSteps) {
    QAction* action = grid.steps->addAction(steps->addAction(UiTexts::tr("%1 pixels").arg(step)));
    action->setCheckable(true);
    action->setData(step);
    action->setChecked(step == kFirstGridStep);
    QObject::connect(action, &QAction::triggered, &view, apply);
  }
}

}  // namespace

void addViewCommands(QMenu& menu, CanvasView& view) {
  addZooms(menu, view);
  menu.addSeparator();
  QAction* rulers = menu.addAction(UiTexts::tr("&Rulers"));
  rulers->setCheckable(true);
  rulers->setChecked(view.areRulersShown());
  rulers->setStatusTip(UiTexts::tr("Show rulers in canvas pixels; guides are dragged from them"));
  QObject::connect(rulers, &QAction::toggled, &view, &CanvasView::showRulers);
  addGrid(menu, view);
  add(menu, UiTexts::tr("Clear G&uides"), {}, UiTexts::tr("Take all guides away"),
      [&view] { view.setGuides({}); });
}

QToolButton* makeZoomButton(CanvasView& view) {
  auto* button = new QToolButton;
  button->setObjectName(QStringLiteral("zoom"));
  button->setAutoRaise(true);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setToolTip(UiTexts::tr("Zoom of the canvas; Ctrl and the wheel change it at the pointer"));
  auto* menu = new QMenu(button);
  for (const int percent : kOffered)
    add(*menu, percentText(Zoom(percent)), {}, {}, [&view, percent] { view.zoomTo(Zoom(percent)); });
  menu->addSeparator();
  add(*menu, UiTexts::tr("Fit"), {}, {}, [&view] { view.fit(); });
  button->setMenu(menu);
  const auto show = [button, &view] {
    button->setText(percentText(view.zoom()));
    button->setAccessibleName(UiTexts::tr("Zoom: %1").arg(percentText(view.zoom())));
  };
  QObject::connect(&view, &CanvasView::zoomed, button, show);
  show();
  return button;
}

}  // namespace veneerer
