#include "problems/pictureremedies.h"

#include <QDir>
#include <QFileInfo>

#include "elements/printable.h"
#include "problems/textdamage.h"
#include "problems/texts.h"

namespace veneerer {

namespace {

RemedyChange named(const ImageSlot& slot, const QString& reference) {
  return {slot.key(), Property::Name, StoredValue(reference)};
}

/// How a record file names a file that lies in the Skin's folder; empty where it can't.
QString relativeReference(const SkinFolder& folder, const QString& path) {
  const QString root = QFileInfo(folder.path()).canonicalFilePath();
  const QString reference = referenceTo(QDir(root).relativeFilePath(QFileInfo(path).canonicalFilePath()));
  return textDamage(QString(), reference).isEmpty() ? reference : QString();
}

Remedy use(const ImageSlot& slot, const QString& reference, const QString& text) {
  return {RemedyKind::UsePicture, text.arg(excerpt(reference, kLongestReference)), {named(slot, reference)}};
}

Remedy copy(const SkinPictures& pictures, const ImageSlot& slot, const QString& path) {
  const QString target = pictures.freeName(path);
  const QString reference = referenceTo(target);
  return {RemedyKind::CopyPicture,
          ProblemTexts::tr("Copy %1 into the Skin: writes %2")
              .arg(excerpt(path, kLongestReference), excerpt(reference, kLongestReference)),
          {named(slot, reference)},
          path,
          target};
}

/// The picture that the reference stands for now, although no load in another place would find it.
QString pictureMeant(const SkinFolder& folder, const QString& reference, const QString& shown) {
  const QString found = folder.resolve(reference);
  if (!found.isEmpty()) return found;
  if (reference.startsWith(u'/') && QFileInfo(reference).isFile()) return reference;
  return QFileInfo(shown).isFile() ? shown : QString();
}

}  // namespace

Remedies pictureRemedies(const SkinFolder& folder, SkinPictures& pictures, PictureTrials& trials,
                         const ImageSlot& slot, const QString& shown) {
  Remedies remedies;
  const auto add = [&](const QString& reference, const QString& text) {
    const bool isNew = !reference.isEmpty() && reference != slot.text();
    if (isNew && trials.of(folder.resolve(reference)) != PictureTrial::Broken)
      remedies.append(use(slot, reference, text));
  };
  const QString meant = pictureMeant(folder, slot.text(), shown);
  const bool isInside = !meant.isEmpty() && folder.contains(meant);
  if (isInside) add(relativeReference(folder, meant), ProblemTexts::tr("Use the name that a load finds: %1"));
  if (!meant.isEmpty() && !isInside) remedies.append(copy(pictures, slot, meant));
  if (!isInside && folder.resolve(slot.text()).isEmpty())
    add(pictures.likeliest(slot.text()), ProblemTexts::tr("Found as %1: use it"));
  return remedies;
}

}  // namespace veneerer
