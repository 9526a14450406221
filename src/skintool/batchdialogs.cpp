#include "skintool/batchdialogs.h"

namespace veneerer {

namespace {

template <class T>
T taken(QQueue<T>& queue, const QString& what) {
  if (queue.isEmpty()) throw ScriptError(what);
  return queue.dequeue();
}

}  // namespace

void BatchDialogs::inform(const QString& title, const QString& text) {
  messages_.append({title, text, QStringLiteral("ok")});
}

bool BatchDialogs::ask(const QString& title, const QString& text) {
  const bool isOk = taken(answers, QStringLiteral("the question \"%1\" finds no answer").arg(text));
  messages_.append({title, text, isOk ? QStringLiteral("ok") : QStringLiteral("cancel")});
  return isOk;
}

QString BatchDialogs::chooseFile(const QString&) {
  return taken(files, QStringLiteral("the file dialog finds no answer"));
}

std::optional<Colour> BatchDialogs::chooseColour(Colour) {
  return taken(colours, QStringLiteral("the colour dialog finds no answer"));
}

std::optional<FontChoice> BatchDialogs::chooseFont(const FontChoice&) {
  return taken(fonts, QStringLiteral("the font dialog finds no answer"));
}

}  // namespace veneerer
