#include "skintool/sidebyside.h"

#include <QProcess>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <future>
#include <thread>
#include <vector>

namespace veneerer {

namespace {

CommandResult failed(const QStringList& command, const QString& why) {
  const QString text = QStringLiteral("%1: %2\n").arg(command.last(), why);
  return {1, {}, text.toUtf8()};
}

CommandResult run(const QString& program, const QStringList& command, const QByteArray& input) {
  QProcess process;
  process.start(program, command);
  if (!process.waitForStarted(-1))
    return failed(command, QStringLiteral("skintool can't be started for this Skin"));
  process.write(input);
  process.closeWriteChannel();
  process.waitForFinished(-1);
  CommandResult result{process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  if (process.exitStatus() == QProcess::NormalExit) return result;
  return {1, {}, result.err + failed(command, QStringLiteral("the run on this Skin was ended")).err};
}

}  // namespace

void runSideBySide(const QString& program, const QList<QStringList>& commands, const QByteArray& input,
                   const std::function<void(const CommandResult&)>& tell) {
  std::vector<std::promise<CommandResult>> results(static_cast<std::size_t>(commands.size()));
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    for (std::size_t at = next++; at < results.size(); at = next++)
      results[at].set_value(run(program, commands[static_cast<qsizetype>(at)], input));
  };
  const auto cores = static_cast<std::size_t>(std::max(1, QThread::idealThreadCount()));
  std::vector<std::jthread> threads;
  while (threads.size() < std::min(cores, results.size())) threads.emplace_back(work);
  for (std::promise<CommandResult>& result : results) tell(result.get_future().get());
}

}  // namespace veneerer
