// Scripts of the batch tool, played on a designer. "$ROOT" stands for the folder that holds "Skins".
#include "skintool/script.h"

#include "fuzz/target.h"
#include "fuzz/world.h"
#include "records/recorderror.h"
#include "support/files.h"
#include "tools/resizer.h"

namespace veneerer::fuzz {

namespace {

void run(const QByteArray& input) {
  World world(ScriptedDialogs::Unexpected::Fail);
  const QString text = QString::fromUtf8(input).replace(QStringLiteral("$ROOT"), World::root());
  try {
    ScriptPlayer(*world.designer, world.dialogs).play(QStringLiteral("script"), text);
  } catch (const ScriptError&) {
  } catch (const RecordError&) {
  } catch (const ScaleFault&) {
  }
}

QList<QByteArray> seeds() {
  QList<QByteArray> scripts =
      test::filesBelow(QStringLiteral(VENEERER_SOURCE_DIR "/tests/cases"), {QStringLiteral("script.txt")})
          .values();
  scripts
      << "file \"$ROOT/Skins/S/images/feed.jpg\"\npress Form1.lvButtons_H1(2) 0 0 right\nundo all\nredo all\n"
      << "reload T\nreload S\nundo\n"
      << "select Form1.Label16(0) Form1.Label16(1) Form1.Label16(2)\nalign left\ndistribute down\nsamesize "
         "both\n"
      << "set Form6.Text7 \"640\"\nset Form6.Text8 \"480\"\nanswer ok\nclick Form6.Command10\n"
      << "set Form4.Text2 \"mine\"\nanswer ok\nclick Form4.Command1\ndoubleclick Form4.File1 \"mine.cov\"\n"
      << "font \"DejaVu Sans\" 12.5 bold italic underline strikethrough\nclick Form1.Label16(1)\nclick "
         "Form6.Command14\n"
      << "colour 255\nclick Form1.Label16(1)\nclick Form6.Picture2\n"
      << "resize 9000.5 -1e9\nnudge Form1.Picture1(3) -5 2147483647\n";
  return scripts;
}

QList<QByteArray> words() {
  QList<QByteArray> found{"screen ",
                          "click ",
                          "press ",
                          "move ",
                          "nudge ",
                          "choose ",
                          "doubleclick ",
                          "set ",
                          "tick ",
                          "resize ",
                          "reload ",
                          "answer ok\n",
                          "answer cancel\n",
                          "file ",
                          "colour ",
                          "font ",
                          "undo\n",
                          "redo\n",
                          "undo all\n",
                          "redo all\n",
                          "select ",
                          "align left\n",
                          "distribute across\n",
                          "samesize both\n",
                          "\"$ROOT/Skins/S/images/feed.jpg\"",
                          " right",
                          " middle",
                          " none",
                          "1e30"};
  State state;
  for (Window* window : state.windows())
    for (Family* family : window->families()) found << family->members().front()->key().toUtf8();
  return found;
}

}  // namespace

const Target kScript = {"script", 2048, run, seeds, words};

}  // namespace veneerer::fuzz
