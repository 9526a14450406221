// The files of a Skin's folder that no load looks for.
#pragma once

#include <QSet>

#include "platform/skinfolder.h"
#include "problems/finding.h"

namespace veneerer {

/// Record files under a wrong name, and cover files whose name doesn't end in .cov. names are those under
/// which record files are read or written.
Findings strayFiles(const SkinFolder& folder, const QSet<QString>& names);

/// Whether a file begins as every cover file does: with two numbers and the heading of the covers.
bool readsLikeCover(const QString& path);

}  // namespace veneerer
