// Answers to the real dialogs, which hold up whoever opens them.
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

namespace veneerer::test {

/// Hands the next modal window of that kind to the test, which must end it.
template <class W>
class OnModal {
public:
  explicit OnModal(std::function<void(W&)> act) {
    timer_.callOnTimeout([this, act = std::move(act)] {
      auto* window = qobject_cast<W*>(QApplication::activeModalWidget());
      if (!window || std::exchange(came_, true)) return;
      timer_.stop();
      act(*window);
    });
    timer_.start(20);
  }
  bool came() const { return came_; }

private:
  QTimer timer_;
  bool came_ = false;
};

}  // namespace veneerer::test
