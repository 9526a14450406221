#include "problems/referencedamage.h"

#include <QFileInfo>

#include "elements/printable.h"
#include "problems/textdamage.h"
#include "problems/texts.h"

namespace veneerer {

namespace {

/// As long as a path may be where the jukebox runs.
constexpr int kLongestPath = 260;

/// The file whose name a save turned into the reference, because the code page lacks a character of it;
/// empty when there is none.
QString unnameableFile(const SkinFolder& folder, const QString& reference) {
  if (!reference.contains(u'?')) return {};
  const QFileInfo sought(folder.path() + QString(reference).replace(u'\\', u'/'));
  if (!folder.contains(sought.path())) return {};
  const QString wanted = sought.fileName();
  for (const QString& name : folder.names(sought.path()))
    if (name.size() == wanted.size() && asSaved(name).compare(wanted, Qt::CaseInsensitive) == 0) return name;
  return {};
}

QString missing(const SkinFolder& folder, const QString& reference) {
  if (const QString damage = utf8Damage(ProblemTexts::tr("image reference"), reference); !damage.isEmpty())
    return damage;
  const QString shown = excerpt(reference, kLongestPath);
  const QString file = unnameableFile(folder, reference);
  if (file.isEmpty()) return ProblemTexts::tr("the image \"%1\" is missing").arg(shown);
  return ProblemTexts::tr("the image \"%1\" is missing: code page 1252 can't hold the name of \"%2\"")
      .arg(shown, excerpt(file));
}

}  // namespace

NamedPicture namedPicture(const SkinFolder& folder, const QString& reference) {
  if (reference.isEmpty()) return {};
  const QString found = folder.resolve(reference);
  // The grab of the player's picture leaves such a name.
  const bool isFullPath = found.isEmpty() && reference.startsWith(u'/') && QFileInfo(reference).isFile();
  const QString path = isFullPath ? reference : found;
  const QString shown = excerpt(reference, kLongestPath);
  if (path.isEmpty()) return {{}, missing(folder, reference)};
  if (!folder.contains(path))
    return {{}, ProblemTexts::tr("the image \"%1\" lies outside the Skin's folder").arg(shown)};
  if (!isFullPath) return {path, {}};
  return {path,
          ProblemTexts::tr("the image \"%1\" is named by its full path, which doesn't travel with the Skin")
              .arg(shown)};
}

QString referenceDamage(const NamedPicture& named, PictureTrials& pictures, const QString& reference) {
  if (named.path.isEmpty() || pictures.of(named.path) != PictureTrial::Broken) return named.damage;
  return ProblemTexts::tr("the image \"%1\" can't be decoded").arg(excerpt(reference, kLongestPath));
}

}  // namespace veneerer
