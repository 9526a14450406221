// The command check: the findings of each Skin as lines.
#pragma once

#include <QStringList>
#include <cstdio>

namespace veneerer {

/// Prints one line a finding, the worst of all Skins first. The exit status: 1 when there is an error, else
/// 0.
int runCheck(const QStringList& skins, std::FILE* out);

}  // namespace veneerer
