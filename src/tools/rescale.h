// "Rescale SKIN": fits the loaded Skin to another resolution, its placements and fonts in memory and, on
// request, its backdrops on disk. The record files follow only with Save Skin.
#pragma once

#include <QStringList>
#include <vector>

#include "forms/state.h"
#include "platform/platform.h"
#include "tools/imagestep.h"
#include "tools/resizer.h"

namespace veneerer {

class Rescale {
public:
  /// All must outlive the tool; the progress may be null.
  Rescale(State& state, Platform& platform, Progress* progress)
      : state_(state), platform_(platform), progress_(progress) {}

  /// Text7 and Text8 of Form6 give the new size in pixels. When one of them isn't above 0 or the scale can't
  /// be computed, the command tells so and changes nothing. How many images were resized, and why others
  /// weren't, is a note; another one tells what a rescale leaves alone. A call that comes in while the images
  /// are being resampled does nothing.
  void run();

private:
  void scaleElements();
  void resizeWindow(Property edge, float twips);
  void resampleImages();
  std::vector<ImageJob> collectJobs();
  void showSource(const QString& path);
  void measure(const Element& target);
  QSize measuredPixels() const;
  QStringList runJobs(const std::vector<ImageJob>& jobs);
  void report(int done, int total, const QString& what);
  void showAnew(const std::vector<ImageJob>& jobs);
  void inform(const QString& text);

  State& state_;
  Platform& platform_;
  Progress* progress_;
  Resizer resizer_;
  bool isRunning_ = false;
};

}  // namespace veneerer
