// Work beside the windows: they are painted, and whatever else would happen to them comes behind it.
#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

#include "support/pictures.h"
#include "ui/qtbackground.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class BackgroundWork : public test::UiFixture {
protected:
  QtBackground background;
};

TEST_F(BackgroundWork, LeavesTheWindowsAliveAndHoldsBackTheirClosing) {
  auto& window = widget<QWidget>("Form6");
  ASSERT_TRUE(window.isVisible());
  std::atomic<bool> isAnswered = false;
  bool isStillOpen = false;
  QTimer::singleShot(0, [&] {
    window.close();
    QTimer::singleShot(20, [&] {
      isStillOpen = window.isVisible();
      isAnswered = true;
    });
  });
  // Without windows that answer it goes on for ever.
  background.run([&] {
    while (!isAnswered) std::this_thread::yield();
  });
  EXPECT_TRUE(isStillOpen);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }, 60'000)) << "it closes afterwards";
}

TEST_F(BackgroundWork, ThrowsWhatTheWorkThrows) {
  EXPECT_THROW(background.run([] { throw std::logic_error("at once"); }), std::logic_error);
  const auto late = [] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    throw std::runtime_error("late");
  };
  EXPECT_THROW(background.run(late), std::runtime_error);
}

TEST_F(BackgroundWork, DecodesWhatTheOperatorChooses) {
  world.platform.background = &background;
  test::writePicture(path("images/a.bmp"), 30, 20, Qt::red);
  for (const char* name : {"images/a.bmp", "images/none.bmp"}) world.dialogs.files.enqueue(path(name));
  Button& button = form1().lvButtons_H6[0];
  designer->press(button, 0, 0, MouseButton::Right);
  EXPECT_EQ(button.picture().size(), QSize(30, 20));
  designer->press(button, 0, 0, MouseButton::Right);
  EXPECT_EQ(button.picture().size(), QSize(30, 20));
  EXPECT_EQ(world.dialogs.messages.last().title, u"Image");
}

}  // namespace
}  // namespace veneerer
