// Which captions can't be read any more in other colours.
#pragma once

#include <QSet>

#include "platform/platform.h"
#include "problems/captioncontrast.h"

namespace veneerer {

/// A caption that could be read and falls below that.
struct FaintCaption {
  Element* element;
  double before;
  double after;
};

/// Judges one dress after the other, some captions at a time, so that it keeps up with a slider. Nothing of
/// the state changes by it.
class FaintCaptions {
public:
  /// The state must outlive it.
  FaintCaptions(const State& state, const Screen& screen);
  FaintCaptions(const FaintCaptions&) = delete;
  FaintCaptions& operator=(const FaintCaptions&) = delete;

  /// The elements are other ones, or stand elsewhere: all is looked at anew.
  void forget();

  /// Begins with that dress; the captions of the screen of that entry come first.
  void judge(const Dress& dress, int entry);

  /// Judges up to so many captions. True while more wait.
  bool work(int captions);

  /// What is known of the dress by now: those of that screen first, then in the order of the families.
  const std::vector<FaintCaption>& found() const { return found_; }

private:
  struct Caption {
    Element* element;
    int entry;
    SeenCaption seen;
    std::optional<double> own = {};  ///< its contrast without a dress, once it was asked for
  };

  void gather();
  void judgeOne(Caption& caption);
  std::optional<double> ownContrast(Caption& caption);

  const State& state_;
  PictureSamples pictures_;
  Captions captionLayouts_;
  CaptionContrasts contrasts_;
  bool isGathered_ = false;
  std::vector<Caption> captions_;
  Dress dress_;
  std::vector<std::size_t> waiting_;  ///< the next one last
  std::vector<FaintCaption> found_;
};

}  // namespace veneerer
