// Cover layouts: files with the extension .cov, held apart from the record files so that one Skin can offer
// several. A file's length follows from the number of covers in use.
#pragma once

#include <vector>

#include "files/replacefiles.h"
#include "forms/state.h"
#include "panels/skinproperties.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// Loads and saves the layout of the album covers, and runs the frame "Covers File".
class CoverLayouts {
public:
  CoverLayouts(State& state, const Platform& platform, SkinProperties& properties);
  CoverLayouts(const CoverLayouts&) = delete;
  CoverLayouts& operator=(const CoverLayouts&) = delete;

  /// Loads a cover file; one that isn't there changes nothing. Ends by showing the number of covers in
  /// Combo4. Throws RecordError.
  void load(const QString& path);

  /// Points the list of cover files at the Skin named by Combo3.
  void listFiles();
  /// The first file of that list, empty when there is none.
  QString firstFile() const;

  /// The cover question of Save Skin: on OK the layout is saved under the name in Text2, with a question
  /// ahead of overwriting. Throws WriteRefused and RecordError.
  void offerSave(const SkinFolder& target);

private:
  void askToLoad();
  /// The second event of the list: loads the chosen file with no question and puts its name into Text2.
  void loadChosen();
  /// "Save Cover File": asks before it overwrites; writes the file and frames.ini in one step and lists the
  /// files anew. What stands against it is told in a box. Throws RecordError.
  void saveNamed();
  SkinFolder folder() const;
  /// The cover file that Text2 names. Empty when it names none or the operator keeps the one that is there.
  QString nameToWrite(const SkinFolder& target) const;
  NewFile compose(const QString& name);
  /// Replaces the files together and tells it in a note.
  void write(const SkinFolder& target, std::vector<NewFile> files);
  void showCount();
  void applyBoxes();

  State& state_;
  const Platform& platform_;
  SkinProperties& properties_;
  std::vector<Attachment> attachments_;
};

}  // namespace veneerer
