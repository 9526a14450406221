#include "preview/eachscreen.h"

#include "canvas/screens.h"
#include "preview/screenpicture.h"

namespace veneerer {

namespace {

constexpr int kScreens = static_cast<int>(kScreenEntries.size());

/// Whoever shows the progress hears of its end in any case.
class ToldProgress {
public:
  explicit ToldProgress(Progress* progress) : progress_(progress) {}
  ~ToldProgress() { tell(kScreens, {}); }
  ToldProgress(const ToldProgress&) = delete;
  ToldProgress& operator=(const ToldProgress&) = delete;

  void tell(int done, const QString& what) {
    if (progress_) progress_->step(done, kScreens, what);
  }

private:
  Progress* progress_;
};

}  // namespace

void forEachScreen(State& state, const Screen& screen, Progress* progress,
                   const std::function<void(int, const QImage&)>& use) {
  CanvasPainter painter;
  ToldProgress told(progress);
  for (int entry = 0; entry < kScreens; ++entry) {
    told.tell(entry, screenTitle(entry));
    use(entry, screenPicture(state, screen, painter, entry));
  }
}

}  // namespace veneerer
