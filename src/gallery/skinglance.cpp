#include "gallery/skinglance.h"

#include <QDir>
#include <QFileInfo>

#include "designer/designer.h"
#include "platform/scripteddialogs.h"
#include "preview/screenpicture.h"
#include "problems/check.h"

namespace veneerer {

namespace {

QDateTime newestFile(const QString& folder) {
  const auto files =
      QDir(folder).entryInfoList({QStringLiteral("*.ini"), QStringLiteral("*.cov")}, QDir::Files, QDir::Time);
  return files.isEmpty() ? QDateTime() : files.first().lastModified();
}

QString resolutionOf(State& state) {
  const QString width = state.form4.Text1[0].text().trimmed();
  const QString height = state.form4.Text1[1].text().trimmed();
  return width.isEmpty() || height.isEmpty() ? QString() : width + QStringLiteral(" x ") + height;
}

QImage mainScreen(State& state, const Screen& screen, int mostSide) {
  CanvasPainter painter;
  const QImage whole = screenPicture(state, screen, painter, 0);
  return whole.scaled(reducedTo(whole.size(), mostSide), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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
    glance.picture = mainScreen(designer.state(), platform.screen, mostSide);
  } catch (const std::exception& error) {
    glance.fault = QString::fromUtf8(error.what());
  }
  return glance;
}

int countFindings(const Platform& platform, const QString& skinName) {
  return static_cast<int>(checkSkin(SkinFolder(platform.folder, skinName), platform.screen).findings.size());
}

}  // namespace veneerer
