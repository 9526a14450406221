// What a touch screen suffers from, of one element of the canvas.
#pragma once

#include <QList>
#include <QString>

#include "forms/state.h"
#include "painting/pixels.h"
#include "platform/platform.h"
#include "problems/captioncontrast.h"
#include "problems/captions.h"
#include "problems/fontsathand.h"
#include "problems/picturesamples.h"

namespace veneerer {

/// The least side of a button for a finger, pixels.
inline constexpr int kTouchPixels = 32;

struct Hint {
  Property property;  ///< the one to change
  QString text;
};

/// Judges elements of the canvas as they are seen when their screen is shown. One that is hidden even then,
/// or has no area, gets no hint.
class Hints {
public:
  /// touch is the least side of a button, pixels. The state must outlive the hints.
  Hints(const State& state, const Screen& screen, int touch = kTouchPixels);
  Hints(const Hints&) = delete;
  Hints& operator=(const Hints&) = delete;

  /// What can be told without painting: a place outside of its container or beneath another element, a button
  /// too small for a finger, a text that doesn't fit, a font that isn't there, a picture of another size.
  QList<Hint> atOnce(const Element& element);

  /// What needs what is drawn beneath: a caption that hardly stands out. It waits for pictures that must be
  /// decoded first.
  QList<Hint> byGround(const Element& element);

private:
  QList<Hint> outside(const Element& element) const;
  QString hidden(const Element& element) const;
  QString small(const Element& element, double side, const QString& text) const;
  QString unfit(const Element& element);
  QString fontMissing(const Element& element);
  QString pictureFar(const Element& element);
  QString faint(const Element& element);
  bool isSmallPicture(const Element& element) const;

  const State& state_;
  PixelScale scale_;
  int touch_;
  PictureSamples pictures_;
  Captions captions_{pictures_, scale_};
  CaptionContrasts contrasts_{state_, pictures_, captions_, scale_};
  FontsAtHand fonts_;
};

}  // namespace veneerer
