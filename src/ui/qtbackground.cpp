#include "ui/qtbackground.h"

#include <QCloseEvent>
#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPointer>
#include <QTimer>
#include <chrono>
#include <future>
#include <thread>

namespace veneerer {

namespace {

using namespace std::chrono_literals;

constexpr auto kFrame = 12ms;
// From here on the pointer tells that the program is busy.
constexpr auto kMoment = 300ms;

/// Holds back what would end the program under the work's hands.
class Waiting : public QObject {
public:
  Waiting() {
    qGuiApp->installEventFilter(this);
    busy_.setSingleShot(true);
    busy_.callOnTimeout([this] {
      hasPointer_ = true;
      QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    });
    busy_.start(kMoment);
  }
  ~Waiting() override {
    if (hasPointer_) QGuiApplication::restoreOverrideCursor();
    for (const QPointer<QObject>& receiver : closing_)
      if (receiver) QCoreApplication::postEvent(receiver, new QCloseEvent);
  }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() != QEvent::Close) return false;
    event->ignore();
    if (!closing_.contains(receiver)) closing_.append(receiver);
    return true;
  }

private:
  QTimer busy_;
  bool hasPointer_ = false;
  QList<QPointer<QObject>> closing_;
};

}  // namespace

void QtBackground::run(const std::function<void()>& work) {
  QEventLoop loop;
  std::packaged_task<void()> task(work);
  std::future<void> done = task.get_future();
  std::jthread thread([&] {
    task();
    QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
  });
  if (done.wait_for(kFrame) != std::future_status::ready) {
    const Waiting waiting;
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    // The loop ends early when the program does; the work doesn't.
    thread.join();
  }
  done.get();
}

}  // namespace veneerer
