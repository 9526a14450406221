#include "gallery/skinglance.h"

#include <QDir>
#include <algorithm>

#include "designer/designer.h"
#include "files/filestamp.h"
#include "platform/scripteddialogs.h"
#include "preview/screenpicture.h"
#include "problems/check.h"

namespace veneerer {

namespace {

QDateTime newestFile(const QString& folder) {
  const QDir dir(folder);
  qint64 newest = 0;
  for (const QString& name : dir.entryList({QStringLiteral("*.ini"), QStringLiteral("*.cov")}, QDir::Files))
    newest = std::max(newest, stampOf(dir.filePath(name)).modified);
  return newest == 0 ? QDateTime() : QDateTime::fromMSecsSinceEpoch(newest);
}

QString resolutionOf(State& state) {
  const QString width = state.form4.Text1[0].text().trimmed();
  const QString height = state.form4.Text1[1].text().trimmed();
  return width.isEmpty() || height.isEmpty() ? QString() : width + QStringLiteral(" x ") + height;
}

}  // namespace

SkinGlance glanceAt(const Platform& platform, const QString& skinName, int mostSide) {
  SkinGlance glance;
  glance.name = skinName;
  glance.lastSaved = newestFile(SkinFolder(platform.folder, skinName).path());
  ScriptedDialogs dialogs;
  Platform own{dialogs, platform.settings, platform.disk, platform.screen, platform.folder};
  try {
    Designer designer(own);
    designer.startUp(skinName);
    glance.resolution = resolutionOf(designer.state());
    CanvasPainter painter;
    glance.picture = screenSketch(designer.state(), platform.screen, painter, 0, mostSide);
  } catch (const std::exception& error) {
    glance.fault = QString::fromUtf8(error.what());
  }
  return glance;
}

int countFindings(const Platform& platform, const QString& skinName) {
  return static_cast<int>(checkSkin(SkinFolder(platform.folder, skinName), platform.screen).findings.size());
}

}  // namespace veneerer
