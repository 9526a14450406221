#include "ui/designerwindows.h"

#include <QScreen>
#include <QStyle>

#include "elements/printable.h"
#include "ui/placement.h"

namespace veneerer {

namespace {

// What a window's frame adds to it, about; the real one is known only when it is too late. Pixels.
constexpr QSize kFrame(4, 30);

// A canvas that is narrower than this isn't worth having the tools beside it. Pixels.
constexpr int kNarrowestCanvas = 640;

// What the canvas may take of the screen: all that the tools leave, or all of it on a screen too small for
// both.
QSize roomForCanvas(QSize available, QSize tools) {
  const int beside = available.width() - tools.width();
  return QSize(beside < kNarrowestCanvas ? available.width() : beside, available.height()) - kFrame;
}

// A window that is higher than the screen scrolls, and its bar takes room as well.
QSize roomFor(const QWidget& window, QSize available) {
  QSize whole = window.sizeHint() + kFrame;
  if (whole.height() > available.height())
    whole.rwidth() += window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return whole.boundedTo(available);
}

QString mainTitle(const QString& skinName, const QString& caption) {
  if (skinName.isEmpty()) return caption;
  QString skin = shownText(skinName);
  // The toolkit's mark for changes, doubled, stands for itself.
  skin.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
  return skin + QStringLiteral(" — ") + caption;
}

}  // namespace

DesignerWindows::DesignerWindows(Designer& designer)
    : hands_(designer),
      pictures_(hands_),
      ui_{hands_, pictures_},
      splash_(ui_),
      chooser_(ui_),
      canvas_(ui_),
      tools_(ui_),
      settings_(ui_),
      textures_(ui_),
      buttons_(ui_) {
  State& state = designer.state();
  bind(state.frmSplash, splash_, OnClose::Hide);
  // The splash stays up until a Skin is loaded.
  bind(state.form3, chooser_, OnClose::EndProgram)->beforeFirstShow([this] {
    chooser_.move(splash_.geometry().topRight() + QPoint(8, 0));
  });
  bindCanvas(state);
  bindBeside(state.form2, buttons_, OnClose::Hide);
  bindBeside(state.form4, settings_, OnClose::Hide);
  bindBeside(state.form5, textures_, OnClose::Hide);
  bindBeside(state.form6, tools_, OnClose::Hide);
  // The keys belong to the canvas when the windows come up, whichever of them comes last.
  for (QWidget* window : std::initializer_list<QWidget*>{&buttons_, &settings_, &textures_, &tools_})
    window->setAttribute(Qt::WA_ShowWithoutActivating);
}

void DesignerWindows::bindCanvas(State& state) {
  WindowBinding* binding = bindBeside(state.form1, canvas_, OnClose::EndProgram);
  const ComboBox& skin = *state.form4.Combo3;
  binding->setTitle([&state, &skin] { return mainTitle(skin.text(), state.form1.caption()); });
  new Watch(skin, &canvas_, [binding] { binding->show(Property::Caption); });
}

WindowBinding* DesignerWindows::bind(Window& element, QWidget& widget, OnClose onClose) {
  return new WindowBinding(element, widget, onClose);
}

WindowBinding* DesignerWindows::bindBeside(Window& element, QWidget& widget, OnClose onClose) {
  WindowBinding* binding = bind(element, widget, onClose);
  binding->beforeFirstShow([this] { placeAll(); });
  QObject::connect(&canvas_, &CanvasWindow::asked, &widget, [&](const Window* asked) {
    if (asked != &element) return;
    element.setVisible(true);
    widget.raise();
    widget.activateWindow();
  });
  return binding;
}

void DesignerWindows::placeAll() {
  if (std::exchange(placed_, true)) return;
  const QRect available = canvas_.screen()->availableGeometry();
  canvas_.setRoom(roomForCanvas(available.size(), tools_.sizeHint() + kFrame));
  canvas_.move(available.topLeft());
  QWidget* const windows[] = {&tools_, &settings_, &textures_, &buttons_};
  QList<QSize> sizes;
  for (QWidget* window : windows) sizes.append(roomFor(*window, available.size()));
  const QList<QRect> places = placeBeside(available, canvas_.size() + kFrame, sizes);
  for (qsizetype i = 0; i < places.size(); ++i) {
    windows[i]->move(places[i].topLeft());
    windows[i]->resize(places[i].size() - kFrame);
  }
  // Where windows lie over each other the tools are wanted first, whichever is shown last.
  QTimer::singleShot(0, &tools_, &QWidget::raise);
}

}  // namespace veneerer
