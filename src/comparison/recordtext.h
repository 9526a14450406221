// A record file's bytes, with what each line is about.
#pragma once

#include <QByteArray>
#include <map>
#include <optional>

#include "records/layout.h"

namespace veneerer {

/// What a line holds the value of.
struct LineSubject {
  QString element;                   ///< its key
  std::optional<Property> property;  ///< nothing for the version of a file's form
};

struct RecordText {
  QByteArray bytes;
  std::map<int, LineSubject> subjects;  ///< by the line, counted from 1; none for lines for a human reader
};

/// A file as a save writes it.
RecordText writtenText(const Layout& layout);

/// A file's bytes as a load takes them; without any subject where it fails. Reads them into the elements of
/// the layout.
RecordText readText(const Layout& layout, const QByteArray& bytes, Loading& loading);

}  // namespace veneerer
