#include "skintool/batch.h"

#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <thread>

#include "designer/designer.h"
#include "elements/printable.h"
#include "painting/buttonsheet.h"
#include "platform/scripteddialogs.h"
#include "records/coverfile.h"
#include "records/recorderror.h"
#include "records/writefiles.h"
#include "skintool/arguments.h"
#include "skintool/batchskin.h"
#include "skintool/checkcommand.h"
#include "skintool/diffcommand.h"
#include "skintool/exchangecommands.h"
#include "skintool/newcommand.h"
#include "skintool/output.h"
#include "skintool/pages.h"
#include "skintool/pieces.h"
#include "skintool/render.h"
#include "skintool/script.h"
#include "skintool/statejson.h"
#include "tools/resizer.h"

namespace veneerer {

namespace {

QString readScript(const QString& name) {
  QFile file(name);
  const bool isOpen = name == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
  if (!isOpen) throw UsageError(QStringLiteral("the script \"%1\" can't be read").arg(name));
  return QString::fromUtf8(file.readAll());
}

bool needsFonts(Command command) {
  return command == Command::Dump || command == Command::Render || command == Command::Sheet ||
         command == Command::Preview;
}

/// One run on one Skin that is loaded.
class BatchRun {
public:
  explicit BatchRun(const Arguments& arguments)
      : arguments_(arguments),
        fonts_(needsFonts(arguments.command) ? std::jthread([] { QFontDatabase::families(); })
                                             : std::jthread()),
        settings_(arguments.skins.first()),
        platform_{dialogs_, settings_, disk_, arguments.screen, programFolder(arguments.skins.first())},
        designer_(platform_) {}

  /// The exit status.
  int run(std::FILE* out, std::FILE* err) {
    const QString script = arguments_.script.isEmpty() ? QString() : readScript(arguments_.script);
    dialogs_.answers.enqueue(true);
    designer_.startUp();
    if (arguments_.reload) designer_.reload(designer_.state().form4.Combo3->text());
    ScriptPlayer(designer_, dialogs_).play(arguments_.script, script);
    return finish(out, err);
  }

private:
  int finish(std::FILE* out, std::FILE* err) {
    switch (arguments_.command) {
      case Command::Diff:
        return printUnsaved(designer_, out);
      case Command::Dump:
        printState(out, designer_, dialogs_.messages);
        break;
      case Command::Render:
        renderScreens(designer_, arguments_.to, arguments_.only);
        break;
      case Command::Sheet:
        writeScreenSheet(designer_, arguments_.to);
        break;
      case Command::Preview:
        writeWebPage(designer_, arguments_.to);
        break;
      case Command::Copy:
        copyTo(designer_, arguments_.to, err);
        break;
      case Command::Recolour:
        recolourTo(designer_, arguments_.to, arguments_.recolouring, err);
        break;
      default:
        save();
    }
    return 0;
  }

  void save() {
    const bool savesCover = !arguments_.cover.isEmpty();
    dialogs_.answers.clear();
    dialogs_.answers << savesCover << true;
    if (savesCover) designer_.state().form4.Text2->setText(arguments_.cover);
    makeTarget(arguments_.to, disk_);
    if (savesCover) lookAhead(coverFileName(arguments_.cover));
    designer_.saveTo(SkinFolder(QFileInfo(arguments_.to).absoluteFilePath()));
  }

  // The cover file comes behind the record files, but none of them is to be written where it can't be.
  void lookAhead(const QString& name) {
    const FileReplacement replacement(disk_, arguments_.to, {{name, {}}});
    if (replacement.refusal()) throw WriteRefused(*replacement.refusal());
  }

  const Arguments& arguments_;
  /// The toolkit learns of the fonts in about the time in which a Skin is loaded, so it does that meanwhile.
  std::jthread fonts_;
  ScriptedDialogs dialogs_{ScriptedDialogs::Unexpected::Fail};
  BatchSettings settings_;
  Disk disk_;
  Platform platform_;
  Designer designer_;
};

int writeButtons(const QString& path) {
  Disk disk;
  const QFileInfo file(path);
  writePng(disk, file.path(), file.fileName(), buttonSheet());
  return 0;
}

void tell(std::FILE* err, const QString& text) {
  std::fprintf(err, "%s\n", printable(text).toUtf8().constData());
}

bool isOfTwo(const Arguments& arguments) {
  return arguments.command == Command::Diff && arguments.skins.size() > 1;
}

QByteArray drained(std::FILE* file) {
  QFile content;
  std::rewind(file);
  const QByteArray bytes = content.open(file, QIODevice::ReadOnly) ? content.readAll() : QByteArray();
  std::fclose(file);
  return bytes;
}

void runHere(const QList<QStringList>& commands,
             const std::function<void(const CommandResult&)>& tellResult) {
  for (const QStringList& command : commands) {
    std::FILE* out = std::tmpfile();
    std::FILE* err = std::tmpfile();
    const int status = runBatch(QStringList{QStringLiteral("skintool")} + command, out, err);
    tellResult({status, drained(out), drained(err)});
  }
}

int runEach(const Arguments& arguments, const QString& program, std::FILE* out, std::FILE* err) {
  const auto runCommands = [&](const QList<QStringList>& commands, const QByteArray& input,
                               const auto& tellResult) {
    if (program.isEmpty()) return runHere(commands, tellResult);
    runSideBySide(program, commands, input, tellResult);
  };
  return runPieces(arguments, runCommands, out, err);
}

int run(const Arguments& arguments, std::FILE* out, std::FILE* err, const QString& program) {
  if (!arguments.answer.isEmpty()) {
    print(out, arguments.answer.toUtf8());
    return 0;
  }
  if (arguments.skins.size() > 1 && arguments.command != Command::Diff)
    return runEach(arguments, program, out, err);
  if (arguments.command == Command::Check) return runCheck(arguments, out);
  if (arguments.command == Command::Buttons) return writeButtons(arguments.to);
  if (isOfTwo(arguments)) return runDiff(arguments, out);
  if (arguments.command == Command::Pack) return runPack(arguments, err);
  if (arguments.command == Command::Unpack) return runUnpack(arguments);
  if (arguments.command == Command::New) return runNew(arguments, out, err);
  return BatchRun(arguments).run(out, err);
}

// RecordError, ScriptError, ScaleFault, ExchangeError: what ends the designer ends the run. To diff 1 says
// something else.
int runOrTell(const Arguments& arguments, std::FILE* out, std::FILE* err, const QString& program) {
  try {
    return run(arguments, out, err, program);
  } catch (const UsageError&) {
    throw;
  } catch (const std::exception& error) {
    tell(err, QString::fromUtf8(error.what()));
    return arguments.command == Command::Diff ? 2 : 1;
  }
}

}  // namespace

int runBatch(const QStringList& words, std::FILE* out, std::FILE* err, const QString& program) {
  try {
    return runOrTell(parseArguments(words), out, err, program);
  } catch (const UsageError& error) {
    tell(err, QStringLiteral("skintool: ") + QString::fromUtf8(error.what()));
    std::fprintf(err, "%s", usageText().toUtf8().constData());
    return 2;
  }
}

}  // namespace veneerer
