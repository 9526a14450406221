// What could be done about a finding, as data: a window offers it, and nothing happens before the operator
// says so.
#pragma once

#include <QList>
#include <QString>

#include "elements/value.h"

namespace veneerer {

enum class RemedyKind : std::uint8_t {
  UsePicture,     ///< another file of the Skin takes the place of a missing picture
  CopyPicture,    ///< a picture from elsewhere is copied into the Skin
  MendCaption,    ///< a caption that comes back as it stands
  DropShape,      ///< no outline from a picture that isn't there
  SetResolution,  ///< the Skin's resolution becomes that of the canvas
  CopyTwin,       ///< the file that a save wrote takes the place of the one that a load reads
};

/// A property that gets a value.
struct RemedyChange {
  QString element;  ///< its key
  Property property;
  Value value;  ///< of Name the new reference; its picture is shown as well

  bool operator==(const RemedyChange&) const = default;
};

struct Remedy {
  RemedyKind kind;
  QString text;  ///< exactly what it does, the file that it writes included; values in it are excerpts
  QList<RemedyChange> changes = {};
  QString source = {};  ///< the full path of the file that is copied, empty for none
  QString target = {};  ///< the file that is written, a name in the Skin's folder; empty for none

  bool writes() const { return !target.isEmpty(); }
  bool operator==(const Remedy&) const = default;
};

using Remedies = QList<Remedy>;

}  // namespace veneerer
