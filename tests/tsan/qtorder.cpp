// Tells ThreadSanitizer the order that Qt makes. Qt isn't built with it, so what its locks order looks
// unordered: every task that a pool takes over and every result that comes back would be told as a race. The
// functions here take the place of Qt's own in the test programs, tell what is handed over, and call Qt's.
//
// All that is handed over has one order, so a race of two tasks may be missed where a hand-over of a third
// lies between them in time. Inside of a task every access counts.
//
// This source alone is compiled without the sanitizer: what it touches itself is ordered by Qt.
#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFutureInterface>
#include <QRunnable>
#include <QSemaphore>
#include <QThreadPool>
#include <functional>
#include <utility>

namespace {

char order;

void handOver() {
  __tsan_release(&order);
}

void takeOver() {
  __tsan_acquire(&order);
}

/// Qt's function of that mangled name, which one of here hides.
template <class Function>
Function* qts(const char* name) {
  void* const found = dlsym(RTLD_NEXT, name);
  if (!found) qFatal("Qt has no %s", name);
  return reinterpret_cast<Function*>(found);
}

/// A task that is handed over to a thread of the pool. The pool doesn't know the task itself any more, so
/// whoever waits for it never runs it on the spot.
class OrderedTask : public QRunnable {
public:
  explicit OrderedTask(QRunnable* task) : task_(task), isOwner_(task->autoDelete()) {}
  ~OrderedTask() override {
    if (isOwner_) delete task_;
    handOver();
  }
  void run() override {
    takeOver();
    task_->run();
  }

private:
  QRunnable* task_;
  bool isOwner_;
};

/// Takes over what an event brings from another thread, ahead of everybody who handles it.
class EventOrder : public QObject {
public:
  using QObject::QObject;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::MetaCall || event->type() == QEvent::FutureCallOut) takeOver();
    return false;
  }
};

void orderEvents() {
  QCoreApplication::instance()->installEventFilter(new EventOrder(QCoreApplication::instance()));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(orderEvents)

void QThreadPool::start(QRunnable* task, int priority) {
  static const auto real = qts<void(QThreadPool*, QRunnable*, int)>("_ZN11QThreadPool5startEP9QRunnablei");
  auto* const ordered = new OrderedTask(task);
  handOver();
  real(this, ordered, priority);
}

void QThreadPool::start(std::function<void()> task, int priority) {
  start(QRunnable::create(std::move(task)), priority);
}

bool QThreadPool::waitForDone(int milliseconds) {
  static const auto real = qts<bool(QThreadPool*, int)>("_ZN11QThreadPool11waitForDoneEi");
  const bool isDone = real(this, milliseconds);
  if (isDone) takeOver();
  return isDone;
}

void QSemaphore::release(int count) {
  static const auto real = qts<void(QSemaphore*, int)>("_ZN10QSemaphore7releaseEi");
  handOver();
  real(this, count);
}

bool QSemaphore::tryAcquire(int count, int milliseconds) {
  static const auto real = qts<bool(QSemaphore*, int, int)>("_ZN10QSemaphore10tryAcquireEii");
  const bool isAcquired = real(this, count, milliseconds);
  if (isAcquired) takeOver();
  return isAcquired;
}

void QFutureInterfaceBase::reportResultsReady(int begin, int end) {
  static const auto real =
      qts<void(QFutureInterfaceBase*, int, int)>("_ZN20QFutureInterfaceBase18reportResultsReadyEii");
  handOver();
  real(this, begin, end);
}

void QFutureInterfaceBase::reportFinished() {
  static const auto real = qts<void(QFutureInterfaceBase*)>("_ZN20QFutureInterfaceBase14reportFinishedEv");
  handOver();
  real(this);
}

void QFutureInterfaceBase::waitForResult(int index) {
  static const auto real =
      qts<void(QFutureInterfaceBase*, int)>("_ZN20QFutureInterfaceBase13waitForResultEi");
  real(this, index);
  takeOver();
}

// The last one of those who share a future destroys it.
bool QFutureInterfaceBase::derefT() const noexcept {
  static const auto real = qts<bool(const QFutureInterfaceBase*)>("_ZNK20QFutureInterfaceBase6derefTEv");
  handOver();
  const bool isShared = real(this);
  takeOver();
  return isShared;
}

// Whoever is done with the call last destroys it, by a count of Qt's. Here nobody does.
bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot, Qt::ConnectionType type,
                                   void* result) {
  static const auto real = qts<bool(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)>(
      "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
  slot->ref();
  handOver();
  return real(object, slot, type, result);
}
