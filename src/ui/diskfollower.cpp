#include "ui/diskfollower.h"

#include <QGuiApplication>

#include "problems/missingreferences.h"
#include "skin/catalogue.h"

namespace veneerer {

namespace {

// What was done is followed when it is over, milliseconds.
constexpr int kAfter = 150;

// A picture of any size is decoded wholly for it and takes the least memory.
constexpr QSize kTrial(16, 16);

QStringList loadedNames(State& state) {
  QStringList names;
  for (const LoadEntry& entry : loadOrder())
    if (const Layout layout = entry.layout(state); !layout.isEmpty()) names << layout.fileName();
  return names;
}

}  // namespace

DiskFollower::DiskFollower(Operator& hands, PictureFetcher& pictures, std::chrono::milliseconds rest)
    : hands_(hands),
      pictures_(pictures),
      references_(hands.state()),
      recordNames_(loadedNames(hands.state())),
      files_(hands.platform().disk, rest),
      watching_(hands.state().board.watch([this](const Change& change) { changed(change); })) {
  refreshing_.setSingleShot(true);
  refreshing_.setInterval(kAfter);
  refreshing_.callOnTimeout(this, &DiskFollower::refresh);
  files_.holdWhile([this] { return hands_.isActing(); });
  connect(&files_, &FileWatch::changed, this, &DiskFollower::told);
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive) look();
  });
}

void DiskFollower::look() {
  files_.look();
}

void DiskFollower::changed(const Change& change) {
  const bool isOther = change.property == Property::Picture || change.property == Property::Name ||
                       &change.element == &*hands_.state().form4.Combo3;
  if (isOther && !refreshing_.isActive()) refreshing_.start();
}

void DiskFollower::refresh() {
  if (hands_.isActing()) return refreshing_.start();
  if (hands_.state().form4.Combo3->text().isEmpty()) return;
  files_.watch(picturePaths() | recordPaths());
  refreshMissing();
}

// Of a file that isn't there the folder is watched.
QSet<QString> DiskFollower::picturePaths() const {
  const SkinFolder folder = hands_.skinFolder();
  QSet<QString> paths;
  const auto add = [&](const Element& element) {
    if (element.has(Property::Picture)) paths.insert(element.as<Picture>(Property::Picture).path());
  };
  for (const Window* window : hands_.state().windows()) {
    add(*window);
    for (const Family* family : window->families())
      for (const Element* element : family->members()) add(*element);
  }
  for (const Element* slot : missingReferences(hands_.state(), folder))
    paths.insert(folder.path() + slot->as<StoredValue>(Property::Name).text().replace(u'\\', u'/'));
  paths.remove(QString());
  return paths;
}

QSet<QString> DiskFollower::recordPaths() const {
  QSet<QString> paths;
  for (const QString& name : recordNames_) paths.insert(hands_.skinFolder().file(name));
  return paths;
}

void DiskFollower::refreshMissing() {
  QSet<const Element*> missing;
  for (const Element* slot : missingReferences(hands_.state(), hands_.skinFolder()))
    for (const Element* element : references_.elementsOf(*slot)) missing.insert(element);
  if (missing == missing_) return;
  missing_ = missing;
  Q_EMIT missingChanged();
}

void DiskFollower::told(const QSet<QString>& paths) {
  QStringList records;
  for (const QString& name : recordNames_)
    if (paths.contains(hands_.skinFolder().file(name))) records << name;
  for (const QString& path : paths)
    if (!recordPaths().contains(path)) readAnew(path);
  refreshMissing();
  Q_EMIT filesChanged(paths);
  if (!records.isEmpty()) Q_EMIT recordsChanged(records);
}

// It is shown only when it is known that it can be.
void DiskFollower::readAnew(const QString& path) {
  const Picture picture = hands_.state().pictures.load(path);
  if (picture.isNull()) return;
  auto* trial = new QFutureWatcher<QImage>(this);
  connect(trial, &QFutureWatcherBase::finished, this, [this, trial, picture] {
    trial->deleteLater();
    if (!trial->result().isNull()) hands_.readAnew({picture.path()});
  });
  trial->setFuture(pictures_.thumbnail(picture, kTrial));
}

}  // namespace veneerer
