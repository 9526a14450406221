// Plays the animated pictures of a window. Only what is shown costs anything: frames on a hidden screen stand
// still. Elements that show the same picture share one movie and move in step.
#pragma once

#include <QHash>
#include <QImage>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "elements/controls.h"
#include "elements/stage.h"
#include "elements/window.h"

class QMovie;

namespace veneerer {

/// The most that an animation may have and still be played; of a larger one the first frame stands still.
/// Every frame is decoded while the operator waits.
inline constexpr qint64 kMostPlayedPixels = 2LL * 1024 * 1024;    ///< of a frame
inline constexpr qint64 kMostPlayedBytes = 4LL * 1024 * 1024;     ///< of the file
inline constexpr qint64 kMostPlayedTogether = 4LL * 1024 * 1024;  ///< pixels of all that play at one time

class ucAniGIF {
public:
  /// Told which element shows another frame than before.
  using Repaint = std::function<void(const Element&)>;

  /// The window must outlive the player. It needs the thread's event loop.
  ucAniGIF(Window& window, Repaint repaint);
  ~ucAniGIF();
  ucAniGIF(const ucAniGIF&) = delete;
  ucAniGIF& operator=(const ucAniGIF&) = delete;

  /// What is shown on the window from now on in the place of its visible children; nothing for those.
  void setStage(std::optional<Stage> stage);

  /// While nobody can see the window nothing plays, and no timer runs. Takes effect once the program comes to
  /// rest, so that a repaint may say it.
  void setWatched(bool isWatched);

  /// The frame to show now; a null image for an element that isn't playing, whose picture shows its first.
  QImage frame(const Element& element) const;

  /// Starts what is shown and stops what isn't. It runs by itself, once the program comes to rest, after
  /// anything was shown, hidden or given another picture.
  void update();

private:
  struct Playing;

  bool isSeen(const Element& element) const;
  std::shared_ptr<Playing> play(const Picture& picture);
  qint64 playedPixels() const;
  void tell(const Playing& playing) const;

  Window& window_;
  Repaint repaint_;
  std::optional<Stage> stage_;
  Attachment watching_;
  QTimer pending_;
  bool isWatched_ = true;
  std::vector<const AnimatedFrame*> elements_;
  QHash<quintptr, std::shared_ptr<Playing>> playing_;  // by the picture's id
};

}  // namespace veneerer
