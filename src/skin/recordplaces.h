// Where the record files hold the properties of elements: which file, which line.
#pragma once

#include <QHash>
#include <QList>
#include <optional>

#include "records/layout.h"

namespace veneerer {

struct RecordPlace {
  QString file;       ///< its name in the Skin's folder
  int line;           ///< counted from 1
  Property property;  ///< of a picture that a reference names: Picture, of the reference itself: Name

  bool operator==(const RecordPlace&) const = default;
};

/// Elements go by their keys, so places of one State serve another one as well.
class RecordPlaces {
public:
  /// Whose values stand on a line where reader and writer differ: the element that a load fills, or the one
  /// that a save takes.
  enum class Side { Read, Written };

  /// Adds what a file holds; for each row of its layout the line that it stands on, 0 for none, as Loading
  /// tells it. Of several places of one property the one added last decides.
  void add(const Layout& layout, const QString& file, const std::vector<int>& lines, Side side);
  void add(const RecordPlaces& others);

  /// The element's places, in the order of their lines and files; none for an element that no file holds.
  QList<RecordPlace> of(const Element& element) const { return byElement_.value(element.key()); }
  /// The place that decides.
  std::optional<RecordPlace> of(const Element& element, Property property) const;

private:
  void addRow(const Row& row, RecordPlace place, Side side);

  QHash<QString, QList<RecordPlace>> byElement_;
};

/// For each row of the layout the line on which a save of the elements as they are writes it, 0 for none.
std::vector<int> writtenLines(const Layout& layout);

/// The places of all that a save writes: files that no load reads first, the others in the order in which a
/// load reads them; ahead of these the cover file of that name, unless it is empty. They hold until the
/// number of covers changes.
RecordPlaces writtenPlaces(State& state, const QString& coverFileName = {});

}  // namespace veneerer
