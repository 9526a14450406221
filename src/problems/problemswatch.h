// The findings of a Skin that is being worked on, kept up to date.
#pragma once

#include <QSet>
#include <deque>
#include <optional>

#include "images/picturetrials.h"
#include "platform/skinfolder.h"
#include "problems/elementjudge.h"
#include "problems/finding.h"
#include "problems/shownreferences.h"
#include "problems/skinpictures.h"

namespace veneerer {

/// Judges the live elements of one loaded Skin. It attaches itself to nothing: who owns it tells of each
/// change, and lets it work when there is time. Make a new one for another Skin.
class ProblemsWatch {
public:
  /// How much is looked for: without the hints nothing is laid out or painted.
  enum class Depth { Warnings, Hints };

  /// coverFileName is the cover file whose lines are told, empty for none. touch is the least side of a
  /// button, pixels. The state must outlive the watch.
  ProblemsWatch(State& state, const SkinFolder& folder, const Screen& screen,
                const QString& coverFileName = {}, int touch = kTouchPixels, Depth depth = Depth::Hints);

  Depth depth() const { return depth_; }

  /// Judges everything anew: at once what takes no painting and decodes no picture; the rest waits for
  /// work().
  void judgeAll();

  /// Judges one element again after a change of it, as far as it can be done at once. Its ground, and all
  /// that stands on the same screen, waits for work(). A change of the canvas window or of the number of
  /// covers has everything wait. What was found stays until it is judged again.
  void judge(const Element& element);

  /// Those files of the Skin's folder, full paths, were written, or are gone: what depends on the disk waits
  /// to be judged again.
  void filesChanged(const QStringList& paths);

  /// Judges wholly up to that many of the elements that wait, in the order in which they were told. True
  /// while more wait.
  bool work(int elements);

  /// What is known now, the worst first.
  Findings findings() const;
  /// The same of one element.
  Findings of(const Element& element) const;

private:
  struct Known {
    Findings atOnce;
    Findings later;
  };

  void collect(Window& window);
  void judgeAtOnce(const Element& element);
  void judgeLater(const Element& element);
  void await(const Element& element);
  void awaitAll();
  void awaitScreenOf(const Element& element);
  void awaitSlots(const Element& element);
  Findings referenceFindings(const Element& element);
  QString pictureShown(const ImageSlot& slot) const;

  State& state_;
  SkinFolder folder_;
  Screen screen_;
  QString coverFileName_;
  int touch_;
  Depth depth_;
  ShownReferences references_;
  SkinPictures pictures_;
  PictureTrials trials_{kTrialAllowance};
  std::optional<ElementJudge> judge_;
  std::vector<const Element*> elements_;  ///< all that are judged
  QHash<const Element*, Known> known_;
  Findings ofFolder_;
  Findings ofSkin_;
  bool isSkinJudged_ = false;
  std::deque<const Element*> waiting_;
  QSet<const Element*> isWaiting_;
};

}  // namespace veneerer
