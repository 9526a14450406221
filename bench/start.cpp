// The designer from its start as a process until it rests, on the Skin whose folder is given, and then
// through all of its screens. The question is answered at once. Prints what was reached: the processor time
// of all threads, the time by the clock since the parent's VENEERER_STARTED (nanoseconds of the monotonic
// clock), both in ms, and the peak of memory so far, MB.
#include <sys/resource.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QPaintEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <utility>

#include "designer/designer.h"
#include "platform/programplace.h"
#include "ui/application.h"
#include "ui/designerwindows.h"
#include "ui/qtbackground.h"
#include "ui/qtplatform.h"

using namespace veneerer;

namespace {

constexpr double kRest = 50;    // ms without an event, after which the program is at rest
constexpr int kWatched = 1500;  // ms
constexpr int kLook = 60;       // ms at each screen

struct Moment {
  double processor = 0;
  double clock = 0;
};

double milliseconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

Moment now() {
  const double started = qEnvironmentVariable("VENEERER_STARTED").toDouble() / 1e6;
  return {milliseconds(CLOCK_PROCESS_CPUTIME_ID), milliseconds(CLOCK_MONOTONIC) - started};
}

void print(const char* what, const Moment& moment) {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  std::printf("%s %.1f %.1f %.1f\n", what, moment.processor, moment.clock, double(used.ru_maxrss) / 1024);
}

class AnsweredDialogs : public QtDialogs {
  bool showQuestion(const QString&, const QString&) override {
    print("question", now());
    return true;
  }
};

class StoredSkin : public Settings {
public:
  explicit StoredSkin(const QString& name) : name_(name) {}
  QString value(const QString&, const QString&, const QString&) const override { return name_; }

private:
  QString name_;
};

/// Tells of the canvas's first paint, and of the first rest behind it.
class StartWatch : public QObject {
public:
  StartWatch() {
    qApp->installEventFilter(this);
    const auto* dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { blocked_ = now(); });
  }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    lookForRest();
    if (isPainted_ || event->type() != QEvent::Paint || watched->objectName() != QStringLiteral("canvas"))
      return false;
    isPainted_ = true;
    watched->event(event);
    print("paint", now());
    return true;
  }

private:
  void lookForRest() {
    const std::optional<Moment> blocked = std::exchange(blocked_, std::nullopt);
    if (!isPainted_ || isAtRest_ || !blocked || now().clock - blocked->clock < kRest) return;
    isAtRest_ = true;
    print("rest", *blocked);
  }

  std::optional<Moment> blocked_;
  bool isPainted_ = false;
  bool isAtRest_ = false;
};

// Each screen until its pictures are decoded and painted.
void leafAndEnd(ComboBox& screens) {
  for (int entry = 0; entry < screens.list().size(); ++entry) {
    screens.select(entry);
    QEventLoop look;
    QTimer::singleShot(kLook, &look, &QEventLoop::quit);
    look.exec();
  }
  print("all screens", now());
  std::fflush(stdout);
  std::_Exit(0);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  if (argc != 2) return 2;
  const QString skin = QString::fromLocal8Bit(argv[1]);
  AnsweredDialogs dialogs;
  StoredSkin settings(skinName(skin));
  Disk disk;
  QtProgress progress;
  QtBackground background;
  Platform platform{dialogs, settings, disk, primaryScreen(), programFolder(skin), &progress, &background};
  Designer designer(platform);
  DesignerWindows windows(designer);
  const StartWatch watch;
  QTimer::singleShot(0, [&] { designer.startUp({}); });
  QTimer::singleShot(kWatched, [&] { leafAndEnd(*designer.state().form6.Combo6); });
  return Application::exec();
}
