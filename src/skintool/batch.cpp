#include "skintool/batch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "components/buttonsheet.h"
#include "components/resizer.h"
#include "designer/designer.h"
#include "records/recorderror.h"
#include "skintool/arguments.h"
#include "skintool/batchdialogs.h"
#include "skintool/check.h"
#include "skintool/render.h"
#include "skintool/script.h"
#include "skintool/statejson.h"

namespace veneerer {

namespace {

/// The settings of a run: the current Skin is the one on the command line.
class BatchSettings : public Settings {
public:
  explicit BatchSettings(QString skin) : skin_(std::move(skin)) {}
  QString value(const QString&, const QString&, const QString&) const override { return skin_; }

private:
  QString skin_;
};

QString skinName(const QString& path) {
  return QFileInfo(QDir::cleanPath(QFileInfo(path).absoluteFilePath())).fileName();
}

// The Skin's parent is the root of Skins, and the root's parent holds the images beside the program.
ProgramFolder programFolder(const QString& skin) {
  const QString path = QDir::cleanPath(QFileInfo(skin).absoluteFilePath());
  const QString root = QFileInfo(path).path();
  return {QFileInfo(root).path(), root};
}

QString readScript(const QString& name) {
  QFile file(name);
  const bool isOpen = name == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
  if (!isOpen) throw UsageError(QStringLiteral("the script %1 can't be read").arg(name));
  return QString::fromUtf8(file.readAll());
}

void print(std::FILE* out, const QByteArray& text) {
  if (std::fwrite(text.constData(), 1, std::size_t(text.size()), out) != std::size_t(text.size()) ||
      std::fflush(out) != 0)
    throw std::runtime_error("the output can't be written");
}

/// One run of dump, save or render on one Skin.
class BatchRun {
public:
  explicit BatchRun(const Arguments& arguments)
      : arguments_(arguments),
        settings_(skinName(arguments.skins.first())),
        platform_{dialogs_, settings_, arguments.screen, programFolder(arguments.skins.first())},
        designer_(platform_) {}

  void run(std::FILE* out) {
    const QString script = arguments_.script.isEmpty() ? QString() : readScript(arguments_.script);
    dialogs_.answers.enqueue(true);
    designer_.startUp();
    if (arguments_.reload) designer_.reload(designer_.state().form4.Combo3->text());
    ScriptPlayer(designer_, dialogs_).play(arguments_.script, script);
    if (arguments_.command == Command::Dump)
      print(out, stateAsJson(designer_, dialogs_.messages()));
    else if (arguments_.command == Command::Render)
      renderScreens(designer_, arguments_.to, arguments_.only);
    else
      save();
  }

private:
  void save() {
    const bool savesCover = !arguments_.cover.isEmpty();
    dialogs_.answers.clear();
    dialogs_.answers << savesCover << true;
    if (savesCover) designer_.state().form4.Text2->setText(arguments_.cover);
    if (!QDir().mkpath(arguments_.to))
      throw RecordError(arguments_.to, 0, {}, {}, QStringLiteral("the folder can't be made"));
    designer_.saveTo(SkinFolder(QFileInfo(arguments_.to).absoluteFilePath()));
  }

  const Arguments& arguments_;
  BatchDialogs dialogs_;
  BatchSettings settings_;
  Platform platform_;
  Designer designer_;
};

int check(const Arguments& arguments, std::FILE* out) {
  QList<Finding> findings;
  for (const QString& skin : arguments.skins) {
    BatchDialogs dialogs;
    BatchSettings settings(skinName(skin));
    Platform platform{dialogs, settings, arguments.screen, programFolder(skin)};
    for (Finding finding : checkSkin(platform, skinName(skin))) {
      // With several Skins a finding must say whose file it names.
      if (arguments.skins.size() > 1) finding.file.prepend(skinName(skin) + u'/');
      findings.append(finding);
    }
  }
  const auto isError = [](const Finding& finding) { return finding.isError; };
  std::stable_partition(findings.begin(), findings.end(), isError);
  for (const Finding& finding : findings) print(out, finding.message().toLocal8Bit() + '\n');
  return std::ranges::any_of(findings, isError) ? 1 : 0;
}

int writeSheet(const QString& path) {
  if (buttonSheet().save(path, "PNG")) return 0;
  throw RecordError(path, 0, {}, {}, QStringLiteral("the picture can't be written"));
}

int run(const Arguments& arguments, std::FILE* out) {
  if (arguments.command == Command::Check) return check(arguments, out);
  if (arguments.command == Command::Sheet) return writeSheet(arguments.to);
  BatchRun(arguments).run(out);
  return 0;
}

}  // namespace

int runBatch(const QStringList& words, std::FILE* out, std::FILE* err) {
  try {
    return run(parseArguments(words), out);
  } catch (const UsageError& error) {
    std::fprintf(err, "skintool: %s\n%s", error.what(), qPrintable(usageText()));
    return 2;
  } catch (const std::exception& error) {
    // RecordError, ScriptError, ScaleFault: what ends the designer ends the run.
    std::fprintf(err, "%s\n", error.what());
    return 1;
  }
}

}  // namespace veneerer
