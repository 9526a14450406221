// The batch tool as a function, so that tests run it without a process of its own.
#pragma once

#include <QStringList>
#include <cstdio>

namespace veneerer {

/// Runs one command line (the program's name first). Returns the exit status: 0 done; 1 the Skin or the
/// script failed, a check found an error or a comparison a difference; 2 wrong use. Output goes to the two
/// files. The program is the batch tool's own file, by which several Skins are worked on side by side;
/// without one it is done here, one after the other, and the same comes of it but for a script by standard
/// input.
int runBatch(const QStringList& arguments, std::FILE* out, std::FILE* err, const QString& program = {});

}  // namespace veneerer
