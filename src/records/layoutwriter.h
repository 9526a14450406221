// Walks a layout over the elements and composes the file's bytes.
#pragma once

#include <QByteArray>
#include <vector>

#include "elements/dress.h"
#include "records/layout.h"

namespace veneerer {

/// The file's colours are those of the dress.
QByteArray composeRecords(const Layout& layout, const Dress& dress = {});

/// A row as it stands in a composed file.
struct WrittenRow {
  const Row* row;
  qsizetype start;  ///< the byte at which it begins
};

/// The same; rows gets those that are written, in file order. They belong to the layout.
QByteArray composeRecords(const Layout& layout, std::vector<WrittenRow>& rows, const Dress& dress = {});

}  // namespace veneerer
