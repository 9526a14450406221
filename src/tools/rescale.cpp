#include "tools/rescale.h"

#include <QFileInfo>
#include <QScopedValueRollback>
#include <QSet>
#include <QThreadPool>
#include <QtConcurrentRun>
#include <algorithm>

#include "elements/numbers.h"
#include <cmath>
#include "platform/skinfolder.h"
#include "tools/rescaletables.h"

namespace veneerer {

void Rescale::run() {
  if (isRunning_) return;
  const QScopedValueRollback<bool> running(isRunning_, true);
  try {
    scaleElements();
  } catch (const ScaleFault& fault) {
    inform(QStringLiteral("Nothing is rescaled: %1.").arg(QString::fromLatin1(fault.what())));
    return;
  }
  if (state_.form6.Check2->isTicked()) resampleImages();
}

// An ordinary change of the canvas window's size moves nothing; only here does one scale the elements.
void Rescale::scaleElements() {
  resizer_.scaleToScreen(state_.form1, platform_.screen);
  resizeWindow(Property::Width, *state_.form6.Text7, 0);
  resizeWindow(Property::Height, *state_.form6.Text8, 1);
}

float Rescale::newSide(const TextBox& field, int direction) const {
  const double pixels = std::nearbyint(leadingNumber(field.text()));
  if (pixels <= 0) throw ScaleFault("width and height must be above 0 pixels");
  const auto twips = PixelsToTwips(platform_.screen, pixels, direction);
  if (!twips) throw ScaleFault("the new size is beyond 32 bits");
  if (state_.form1.set(edge, static_cast<float>(*twips))) resizer_.scaleOnResize(state_.form1);
}

void Rescale::resampleImages() {
  inform(QStringLiteral("Now Resizing images Do not Loose Focus on main screen"));
  const bool wasShown = state_.form1.Picture21->isVisible();
  const std::vector<ImageJob> jobs = collectJobs();
  const QStringList failures = runJobs(jobs);
  showAnew(jobs);
  // The work element has done its part; left up, it would cover the canvas.
  state_.form1.Picture21->setVisible(wasShown);
  inform(QStringLiteral("Images resized"));
  if (!failures.isEmpty())
    inform(QStringLiteral("These images could not be resized:\n") + failures.join(u'\n'));
}

/// One job a file, so that files can be worked on side by side while the sizes of one file keep their order.
std::vector<ImageJob> Rescale::collectJobs() {
  const float width = newSide(*state_.form6.Text7, 0);
  const float height = newSide(*state_.form6.Text8, 1);
  Resizer::requireScale(state_.form1, platform_.screen, width, height);
  // From here on nothing can fail.
  const SkinFolder skin(platform_.folder, state_.form4.Combo3->text());
  std::vector<ImageJob> jobs;
  QHash<QString, std::size_t> byFile;
  for (const RescaleTarget& target : kRescaleTargets) {
    measure(*target.family(state_).find(target.index));
    const QString reference = target.name(state_.names).text();
    const QString path = skin.resolve(reference);
    if (path.isEmpty()) continue;
    state_.form1.Picture21->setVisible(true);
    state_.form1.Picture21->setPicture(Picture());
    state_.form1.Image1->setPicture(state_.pictures.load(path));
    const QString file = QFileInfo(path).canonicalFilePath();
    if (!byFile.contains(file)) {
      byFile.insert(file, jobs.size());
      jobs.push_back({path, reference, {}});
    }
    jobs[byFile.value(file)].sizes.push_back(measuredPixels());
  }
  return jobs;
}

/// Picture21 lends its size to whatever is resampled.
void Rescale::measure(const Element& target) {
  state_.form1.Picture21->setWidth(target.width());
  state_.form1.Picture21->setHeight(target.height());
}

QSize Rescale::measuredPixels() const {
  const Element& surface = *state_.form1.Picture21;
  const Screen& screen = platform_.screen;
  return {toWhole(surface.width() / screen.twipsPerPixelX()).value_or(0),
          toWhole(surface.height() / screen.twipsPerPixelY()).value_or(0)};
}

/// Returns what failed, one line a file; a failure doesn't keep the others back.
QStringList Rescale::runJobs(const std::vector<ImageJob>& jobs) {
  const SkinFolder skin(platform_.folder, state_.form4.Combo3->text());
  QThreadPool pool;
  QList<QFuture<QString>> results;
  for (const ImageJob& job : jobs) {
    const bool isOurs = skin.contains(job.path);
    results.append(QtConcurrent::run(&pool, [job, isOurs] {
      return isOurs ? resampleFile(job) : QStringLiteral("the file lies outside the Skin's folder");
    }));
  }
  QStringList failures;
  const int total = static_cast<int>(jobs.size());
  for (int i = 0; i < total; ++i) {
    const QString& reference = jobs[static_cast<std::size_t>(i)].reference;
    report(i, total, reference);
    const QString error = results[i].result();
    if (!error.isEmpty()) failures.append(reference + QStringLiteral(": ") + error);
  }
  report(total, total, QString());
  return failures;
}

void Rescale::report(int done, int total, const QString& what) {
  if (progress_) progress_->step(done, total, what);
}

/// What the windows show is what now lies on the disk.
void Rescale::showAnew(const std::vector<ImageJob>& jobs) {
  QSet<QString> changed;
  for (const ImageJob& job : jobs) changed.insert(job.path);
  const auto refresh = [&](Element& element) {
    if (!element.has(Property::Picture)) return;
    const QString path = element.as<Picture>(Property::Picture).path();
    if (changed.contains(path)) element.set(Property::Picture, state_.pictures.load(path));
  };
  for (Window* window : state_.windows()) {
    refresh(*window);
    for (Family* family : window->families())
      std::ranges::for_each(family->members(), [&](Element* e) { refresh(*e); });
  }
}

void Rescale::inform(const QString& text) {
  platform_.dialogs.inform(QStringLiteral("Rescale SKIN"), text);
}

}  // namespace veneerer
