// The record files of a Skin in the three orders in which a full load, a reload and a save walk them. Each
// order is a list of its own, since where they differ is required: a reload leaves locked_button.ini,
// confirm.ini and free_credit.ini alone, the twins (_v2) are only ever written, and progress.ini is read at
// another place in a full load than in a reload.
#pragma once

#include <span>

#include "records/recordfiles.h"

namespace veneerer {

using MakeLayout = Layout (*)(State&);

struct LoadEntry {
  MakeLayout layout;
  /// The splash's text from this file on, null to keep the one before.
  const char* splash = nullptr;
};

struct SaveEntry {
  MakeLayout layout;
  /// The name to write under, null for the layout's own.
  const char* name = nullptr;
};

/// The files that a full load reads.
std::span<const LoadEntry> loadOrder();

/// The files that a reload reads. back.ini is among them and has no effect.
std::span<const MakeLayout> reloadOrder();

/// The files that Save Skin writes, which is every file there is. back.ini is among them and has no effect.
std::span<const SaveEntry> saveOrder();

/// Whether a full load reads the file.
bool isLoaded(const SaveEntry& entry);

/// The name under which the entry's file is written.
QString savedName(const SaveEntry& entry, const Layout& layout);

}  // namespace veneerer
