#include "skintool/sidebyside.h"

#include <QProcess>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <future>
#include <thread>
#include <vector>

#include "elements/printable.h"

namespace veneerer {

namespace {

CommandResult failed(const QStringList& command, const QString& why) {
  return {1, {}, (printable(command.last()) + QStringLiteral(": ") + why + u'\n').toUtf8()};
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
  std::vector<std::packaged_task<CommandResult()>> runs;
  std::vector<std::future<CommandResult>> results;
  for (const QStringList& command : commands) {
    runs.emplace_back([&program, &command, &input] { return run(program, command, input); });
    results.push_back(runs.back().get_future());
  }
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    for (std::size_t at = next++; at < runs.size(); at = next++) runs[at]();
  };
  const auto cores = static_cast<std::size_t>(std::max(1, QThread::idealThreadCount()));
  std::vector<std::jthread> threads;
  while (threads.size() < std::min(cores, runs.size())) threads.emplace_back(work);
  try {
    for (std::future<CommandResult>& result : results) tell(result.get());
  } catch (...) {
    next = runs.size();  // nobody is told of the others any more
    throw;
  }
}

}  // namespace veneerer
