// Several command lines of the batch tool side by side, each in a process of its own: what one Skin takes or
// spoils takes no other one along.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <functional>

namespace veneerer {

struct CommandResult {
  int status = 0;
  QByteArray out;
  QByteArray err;
};

/// Runs the program once with each of the command lines (without its name) and that standard input, no more
/// of them at once than the machine has cores. The results are told on the calling thread in the order of
/// the command lines, each as soon as it and all ahead of it are there. A process that can't be started, or
/// that something ended, has status 1 and a sentence of it behind its standard error.
void runSideBySide(const QString& program, const QList<QStringList>& commands, const QByteArray& input,
                   const std::function<void(const CommandResult&)>& tell);

}  // namespace veneerer
