#include "tools/rescale.h"

#include <QFileInfo>
#include <QMap>
#include <QScopedValueRollback>
#include <QSemaphore>
#include <QSet>
#include <QThreadPool>
#include <QtConcurrentRun>
#include <algorithm>
#include <cmath>

#include "elements/numbers.h"
#include "forms/currentskin.h"
#include "platform/skinfolder.h"
#include "tools/rescalefactors.h"
#include "tools/rescaletables.h"
#include "tools/texts.h"

namespace veneerer {

namespace {

// How long the progress may stand still, milliseconds.
constexpr int kPatience = 40;

constexpr const char* kLeftAlone = QT_TRANSLATE_NOOP(
    "Tools",
    "Not rescaled are: the resolution, the cover files but the layout in hand, the pictures of the screens "
    "from \"No Search Results Found\" on, the fonts of buttons.");

/// One sentence: how many images were resized, and for each reason those that weren't.
QString outcome(const std::vector<ImageJob>& jobs, const QStringList& failures) {
  QMap<QString, QStringList> others;
  for (qsizetype i = 0; i < failures.size(); ++i)
    if (!failures[i].isEmpty()) others[failures[i]].append(jobs[static_cast<std::size_t>(i)].reference);
  QString note =
      ToolTexts::tr("%1 of %2 images were resized").arg(failures.count(QString())).arg(failures.size());
  for (auto it = others.cbegin(); it != others.cend(); ++it)
    note += QStringLiteral("; ") + it.key() + QStringLiteral(": ") + it->join(QStringLiteral(", "));
  return note + u'.';
}

QString work(const ImageJob& job, bool isOurs, Disk& disk) {
  if (job.path.isEmpty()) return ToolTexts::tr("missing");
  return isOurs ? resampleFile(job, disk) : ToolTexts::tr("outside the Skin's folder");
}

}  // namespace

void Rescale::run() {
  if (isRunning_) return;
  const QScopedValueRollback<bool> running(isRunning_, true);
  try {
    scaleElements();
  } catch (const ScaleFault& fault) {
    inform(ToolTexts::tr("Nothing is rescaled: %1.").arg(ToolTexts::tr(fault.what())));
    return;
  }
  if (state_.form6.Check2->isTicked()) resampleImages();
  state_.notes.say(ToolTexts::tr(kLeftAlone));
}

// An ordinary change of the canvas window's size moves nothing; only here does one scale the elements.
void Rescale::scaleElements() {
  const float width = wantedSide(*state_.form6.Text7, platform_.screen, Axis::X);
  const float height = wantedSide(*state_.form6.Text8, platform_.screen, Axis::Y);
  Resizer::requireScale(state_.form1, platform_.screen, width, height);
  // From here on nothing can fail.
  resizer_.scaleToScreen(state_.form1, platform_.screen);
  resizeWindow(Property::Width, width);
  resizeWindow(Property::Height, height);
}

void Rescale::resizeWindow(Property edge, float twips) {
  if (state_.form1.set(edge, twips)) resizer_.scaleOnResize(state_.form1);
}

void Rescale::resampleImages() {
  inform(QStringLiteral("Now Resizing images Do not Loose Focus on main screen"));
  const std::vector<ImageJob> jobs = collectJobs();
  const QStringList failures = runJobs(jobs);
  showAnew(jobs);
  // The work element has done its part; left up, it would cover the canvas.
  state_.form1.Picture21->setVisible(false);
  state_.notes.say(outcome(jobs, failures));
  inform(QStringLiteral("Images resized"));
}

/// One job a file, so that files can be worked on side by side while the sizes of one file keep their order.
/// A file that is missing has one too, for the count.
std::vector<ImageJob> Rescale::collectJobs() {
  const SkinFolder skin = currentSkinFolder(state_, platform_.folder);
  std::vector<ImageJob> jobs;
  QHash<QString, std::size_t> byFile;
  for (const RescaleTarget& target : kRescaleTargets) {
    measure(*target.family(state_).find(target.index));
    const QString reference = target.name(state_.names).text();
    if (reference.isEmpty()) continue;
    const QString path = skin.resolve(reference);
    if (!path.isEmpty()) showSource(path);
    const QString file = path.isEmpty() ? u'?' + reference : QFileInfo(path).canonicalFilePath();
    if (!byFile.contains(file)) {
      byFile.insert(file, jobs.size());
      jobs.push_back({skin.path(), path, reference, {}});
    }
    jobs[byFile.value(file)].sizes.push_back(measuredPixels());
  }
  return jobs;
}

void Rescale::showSource(const QString& path) {
  state_.form1.Picture21->setVisible(true);
  state_.form1.Picture21->setPicture(Picture());
  state_.form1.Image1->setPicture(state_.pictures.load(path));
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

/// Returns for each job why it failed, empty where it is done; a failure doesn't keep the others back.
QStringList Rescale::runJobs(const std::vector<ImageJob>& jobs) {
  const SkinFolder skin = currentSkinFolder(state_, platform_.folder);
  QSemaphore done;
  QThreadPool pool;
  QList<QFuture<QString>> results;
  for (const ImageJob& job : jobs)
    results.append(QtConcurrent::run(&pool, [this, job, isOurs = skin.contains(job.path), &done] {
      const QSemaphoreReleaser release(done);
      return work(job, isOurs, platform_.disk);
    }));
  QStringList failures;
  const int total = static_cast<int>(jobs.size());
  for (int i = 0; i < total; ++i) {
    report(i, total, jobs[static_cast<std::size_t>(i)].reference);
    // A window that shows the progress is painted, and answers, only while it is told something.
    while (!results[i].isFinished()) {
      done.tryAcquire(1, kPatience);
      report(i, total, jobs[static_cast<std::size_t>(i)].reference);
    }
    failures.append(results[i].result());
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
