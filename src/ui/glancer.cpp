#include "ui/glancer.h"

#include <QThread>
#include <algorithm>

namespace veneerer {

namespace {

enum Priority { Findings = 0, Pictures = 1 };

constexpr int kMostThreads = 2;

}  // namespace

Glancer::Glancer(const Platform& platform, int mostSide) : platform_(platform), mostSide_(mostSide) {
  // Each takes a decoder's memory.
  pool_.setMaxThreadCount(std::min(kMostThreads, QThread::idealThreadCount()));
  pool_.setThreadPriority(QThread::LowPriority);
}

Glancer::~Glancer() {
  rest();
  pool_.waitForDone();
}

template <class Look, class Keep>
void Glancer::queue(const QString& skin, int priority, Look look, Keep keep) {
  pool_.start(
      [this, skin, look, keep] {
        const auto result = look(platform_, skin);
        QMetaObject::invokeMethod(
            this,
            [this, skin, keep, result] {
              keep(skin, result);
              Q_EMIT seen(skin);
            },
            Qt::QueuedConnection);
      },
      priority);
}

void Glancer::lookAt(const QStringList& skins) {
  rest();
  const auto look = [side = mostSide_](const Platform& platform, const QString& skin) {
    return glanceAt(platform, skin, side);
  };
  for (const QString& skin : skins) {
    queue(skin, Pictures, look,
          [this](const QString& name, const SkinGlance& glance) { glances_.insert(name, glance); });
    queue(skin, Findings, countFindings,
          [this](const QString& name, int count) { findings_.insert(name, count); });
  }
}

void Glancer::rest() {
  pool_.clear();
}

const SkinGlance* Glancer::glance(const QString& skin) const {
  const auto found = glances_.constFind(skin);
  return found == glances_.constEnd() ? nullptr : &*found;
}

}  // namespace veneerer
