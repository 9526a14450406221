// The record files of a Skin and the three orders in which a full load, a reload and a save walk them. Where
// the orders differ is required: a reload leaves locked_button.ini, confirm.ini and free_credit.ini alone,
// the twins (_v2) are only ever written, and progress.ini is read at another place in a full load than in a
// reload.
#pragma once

#include <vector>

#include "records/recordfiles.h"

namespace veneerer {

struct CatalogueEntry {
  Layout (*layout)(State&);
  int load;    ///< place in a full load, 0 for none
  int reload;  ///< place in a reload, 0 for none
  int save;    ///< place in Save Skin, 0 for none
  /// The splash's text ahead of the file in a full load, null to keep the one before.
  const char* progress = nullptr;
  /// The name to write under, null for the layout's own.
  const char* saveName = nullptr;
};

/// Every entry, in the order of saving. back.ini, which a reload and a save name to no effect, is not made,
/// read or removed, so it has none.
const std::vector<CatalogueEntry>& catalogue();

std::vector<const CatalogueEntry*> loadOrder();
std::vector<const CatalogueEntry*> reloadOrder();
std::vector<const CatalogueEntry*> saveOrder();

/// The name under which the entry's file is written.
QString savedName(const CatalogueEntry& entry, const Layout& layout);

}  // namespace veneerer
