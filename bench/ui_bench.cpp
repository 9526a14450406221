// The waits of the operator in the windows, each with its repaint: a switch of the screen, one step of a
// drag, one key in a field, the colours of the whole Skin. On the default Skin.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSlider>
#include <QThread>
#include <QWidget>
#include <memory>

#include "designer/designer.h"
#include "painting/hittest.h"
#include "recolouring/storedcolours.h"
#include "support/scriptedplatform.h"
#include "ui/designerwindows.h"

namespace veneerer {
namespace {

// A started program.
struct Started {
  Started() {
    world.platform.folder = ProgramFolder{QStringLiteral(VENEERER_SOURCE_DIR)};
    designer.startUp();
  }

  test::ScriptedPlatform world{ScriptedDialogs::Unexpected::Agree};
  Designer designer{world.platform};
  DesignerWindows windows{designer};
};

// With its windows on the screen.
struct Program : Started {
  Program() {
    settle();
    canvas = find(QStringLiteral("canvas"));
  }
  static void settle() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }
  static QWidget* find(const QString& name) {
    for (QWidget* widget : QApplication::allWidgets())
      if (widget->objectName() == name) return widget;
    qFatal("a widget is missing");
  }
  void mouse(QEvent::Type type, QPointF at, Qt::MouseButton button) const {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, canvas->mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(canvas, &event);
  }

  QWidget* canvas = nullptr;
};

void switchScreen(benchmark::State& run) {
  Program program;
  ComboBox& screens = *program.designer.state().form6.Combo6;
  int row = 0;
  for (int i = 0; i < 32; ++i) {
    screens.select(i);
    Program::settle();
  }
  for (auto _ : run) {
    screens.select(row = (row + 1) % 32);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(switchScreen)->Unit(benchmark::kMillisecond);

void dragStep(benchmark::State& run) {
  Program program;
  Button& button = program.designer.state().form1.lvButtons_H1[2];
  const QPointF from = windowRect(button).center() / 15;
  program.mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
  bool away = false;
  for (auto _ : run) {
    away = !away;
    program.mouse(QEvent::MouseMove, from + QPointF(away ? 8 : 0, away ? 5 : 0), Qt::NoButton);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
  program.mouse(QEvent::MouseButtonRelease, from, Qt::LeftButton);
}
BENCHMARK(dragStep)->Unit(benchmark::kMillisecond);

void keyInField(benchmark::State& run) {
  Program program;
  program.designer.click(program.designer.state().form1.lvButtons_H1[2]);
  QWidget* caption = Program::find(QStringLiteral("Form6.Text1"));
  Program::settle();
  bool typing = false;
  for (auto _ : run) {
    typing = !typing;
    QKeyEvent key(QEvent::KeyPress, typing ? Qt::Key_A : Qt::Key_Backspace, Qt::NoModifier,
                  typing ? QStringLiteral("a") : QString());
    QApplication::sendEvent(caption, &key);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(keyInField)->Unit(benchmark::kMillisecond);

void copyColoursOverAll(benchmark::State& run) {
  Program program;
  Form6& form = program.designer.state().form6;
  int colour = 0;
  for (auto _ : run) {
    form.Text2->setText(QString::number(++colour % 1000));
    program.designer.click(form.Command2[1]);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(copyColoursOverAll)->Unit(benchmark::kMillisecond);

// The colours of the whole Skin turned, taken back and brought again by turns, each with its repaint of the
// screen that has the most to paint.
void undoOrRedoARecolouring(benchmark::State& run) {
  Program program;
  State& state = program.designer.state();
  state.form6.Combo6->select(static_cast<int>(run.range(0)));
  program.designer.recolour(recoloured(storedColours(state), ColourMap{{}, {.hue = 90}}));
  for (int i = 0; i < 100; ++i) Program::settle();
  bool isUndone = false;
  for (auto _ : run) {
    if (isUndone)
      program.designer.history().redo();
    else
      program.designer.history().undo();
    isUndone = !isUndone;
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(undoOrRedoARecolouring)->Arg(0)->Arg(3)->Arg(13)->Unit(benchmark::kMillisecond);

// Tells that the canvas has been painted.
class FirstPaint : public QObject {
public:
  FirstPaint() { qApp->installEventFilter(this); }
  bool isOver() const { return isOver_; }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool isOfCanvas =
        event->type() == QEvent::Paint && watched->objectName() == QStringLiteral("canvas");
    isOver_ = isOver_ || isOfCanvas;
    return false;
  }

private:
  bool isOver_ = false;
};

// The state, the Skin and the windows are made in a process that runs already.
void startToFirstPaint(benchmark::State& run) {
  for (auto _ : run) {
    const FirstPaint first;
    auto program = std::make_unique<Started>();
    while (!first.isOver()) QCoreApplication::processEvents();
    run.PauseTiming();
    program.reset();
    run.ResumeTiming();
  }
}
BENCHMARK(startToFirstPaint)->Unit(benchmark::kMillisecond);

class PaintWatch : public QObject {
public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
  bool isPainted = false;

protected:
  bool eventFilter(QObject*, QEvent* event) override {
    isPainted |= event->type() == QEvent::Paint;
    return false;
  }
};

// From a slider of the dialog Recolour to the canvas painted anew, on the screen that has the most to paint.
// What is judged of the captions until then counts, what is judged until the slider moves on does not.
void recolourStep(benchmark::State& run) {
  Program program;
  program.designer.state().form6.Combo6->select(static_cast<int>(run.range(0)));
  for (QAction* action : program.canvas->window()->findChildren<QAction*>())
    if (action->text() == QStringLiteral("Rec&olour...")) action->trigger();
  auto* hue = qobject_cast<QSlider*>(Program::find(QStringLiteral("hue")));
  for (int i = 0; i < 100; ++i) Program::settle();
  PaintWatch watch(*program.canvas);
  QElapsedTimer time;
  int turn = 0;
  for (auto _ : run) {
    watch.isPainted = false;
    time.start();
    hue->setValue(++turn % 180);
    while (!watch.isPainted) QCoreApplication::processEvents();
    run.SetIterationTime(static_cast<double>(time.nsecsElapsed()) / 1e9);
    QCoreApplication::processEvents();
  }
}
BENCHMARK(recolourStep)->Arg(0)->Arg(3)->Arg(13)->UseManualTime()->Unit(benchmark::kMillisecond);

// The canvas alone, at about 1920 by 1080 pixels.
struct LargeView {
  LargeView() {
    auto* window = qobject_cast<QMainWindow*>(program.canvas->window());
    for (QDockWidget* dock : window->findChildren<QDockWidget*>()) dock->hide();
    window->resize(1960, 1160);
    view = window->findChild<CanvasView*>();
    Program::settle();
  }
  Program program;
  CanvasView* view;
};

void zoomStep(benchmark::State& run) {
  LargeView large;
  int percent = 0;
  for (auto _ : run) {
    percent = (percent + 7) % 130;
    large.view->zoomTo(Zoom(240 + percent));
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(zoomStep)->Unit(benchmark::kMillisecond);

void panStep(benchmark::State& run) {
  LargeView large;
  large.view->zoomTo(Zoom(static_cast<int>(run.range(0))));
  Program::settle();
  // Until the pictures have been scaled.
  for (int i = 0; i < 20; ++i) {
    QThread::msleep(25);
    Program::settle();
  }
  QScrollBar& bar = *large.view->verticalScrollBar();
  bool back = false;
  for (auto _ : run) {
    if (bar.value() == bar.maximum() || bar.value() == 0) back = !back;
    bar.setValue(bar.value() + (back ? -40 : 40));
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(panStep)->Arg(250)->Arg(400)->Arg(800)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veneerer
