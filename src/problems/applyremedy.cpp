#include "problems/applyremedy.h"

#include <QFileInfo>

#include "files/plainfile.h"
#include "problems/shownreferences.h"
#include "problems/texts.h"
#include "records/layoutreader.h"
#include "records/writefiles.h"

namespace veneerer {

namespace {

// No picture of a screen comes near it.
constexpr qint64 kMostPictureBytes = 256LL * 1024 * 1024;

void copyPicture(Disk& disk, const SkinFolder& folder, const Remedy& remedy) {
  if (!folder.exists()) throw WriteRefused({remedy.target, ProblemTexts::tr("the Skin's folder is gone")});
  if (QFileInfo::exists(folder.file(remedy.target)))
    throw WriteRefused({remedy.target, ProblemTexts::tr("a file of this name is there by now")});
  const FileContent picture = readPlainFile(remedy.source, kMostPictureBytes);
  if (!picture.isRead())
    throw WriteRefused({remedy.target, ProblemTexts::tr("the picture to be copied can't be read")});
  const QString images = QFileInfo(folder.file(remedy.target)).path();
  if (const QString reason = disk.makeFolder(images); !reason.isEmpty())
    throw WriteRefused({remedy.target, reason});
  writeFiles(disk, folder.path(), {{remedy.target, picture.bytes}});
}

void write(Disk& disk, const SkinFolder& folder, const Remedy& remedy) {
  if (remedy.kind == RemedyKind::CopyPicture) return copyPicture(disk, folder, remedy);
  writeRecordFiles(disk, folder.path(), {{remedy.target, recordFileBytes(remedy.source)}});
}

/// Also one of the image names, which no key of a window leads to.
Element* elementOf(State& state, const QString& key) {
  if (Element* element = state.find(key)) return element;
  for (const Family* family : state.names.families())
    for (Element* slot : family->members())
      if (slot->key() == key) return slot;
  return nullptr;
}

// As a load shows it.
void showPicture(State& state, const SkinFolder& folder, const Element& slot, const QString& reference) {
  const Picture picture = state.pictures.load(folder.resolve(reference));
  if (picture.isNull()) return;
  for (Element* element : ShownReferences(state).elementsOf(slot)) {
    element->set(Property::Picture, picture);
    if (element->kind() != Kind::Button) continue;
    auto& button = cast<Button>(*element);
    if (!button.isCustomShaped()) button.setPictureSize(PictureSize::Stretched);
  }
}

}  // namespace

void applyRemedy(State& state, Disk& disk, const SkinFolder& folder, const Remedy& remedy) {
  if (remedy.writes()) write(disk, folder, remedy);
  for (const RemedyChange& change : remedy.changes) {
    Element* element = elementOf(state, change.element);
    if (!element) continue;
    element->set(change.property, change.value);
    if (change.property == Property::Name)
      showPicture(state, folder, *element, std::get<StoredValue>(change.value).text());
  }
}

}  // namespace veneerer
