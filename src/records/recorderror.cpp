#include "records/recorderror.h"

#include <QStringList>

#include "elements/printable.h"
#include "records/texts.h"

namespace veneerer {

namespace {

QString composePlace(const QString& element, const QString& field) {
  QStringList words;
  for (const QString& word : {element, field})
    if (!word.isEmpty()) words.append(word);
  return words.isEmpty() ? QString() : words.join(u' ') + QStringLiteral(": ");
}

QString compose(const QString& file, int line, const QString& element, const QString& field,
                const QString& found) {
  const QString number = line > 0 ? u':' + QString::number(line) : QString();
  return printable(file + number + QStringLiteral(": ") + composePlace(element, field) + found);
}

}  // namespace

RecordError::RecordError(const QString& file, int line, const QString& element, const QString& field,
                         const QString& found, const RecordTrace& trace)
    : std::runtime_error(compose(file, line, element, field, found).toStdString()),
      file_(file),
      line_(line),
      element_(element),
      field_(field),
      found_(printable(found)),
      trace_(trace) {}

QString RecordError::message() const {
  return compose(file_, line_, element_, field_, found_);
}

QString RecordError::report() const {
  const struct {
    const char* name;
    QString value;
  } facts[] = {
      {QT_TRANSLATE_NOOP("Records", "File"), file_},
      {QT_TRANSLATE_NOOP("Records", "Line"), line_ > 0 ? QString::number(line_) : QString()},
      {QT_TRANSLATE_NOOP("Records", "Element"), element_},
      {QT_TRANSLATE_NOOP("Records", "Field"), field_},
      {QT_TRANSLATE_NOOP("Records", "Found"), trace_.value},
      {QT_TRANSLATE_NOOP("Records", "Skin"), trace_.folder},
      {QT_TRANSLATE_NOOP("Records", "Likely cause"), trace_.cause},
  };
  QStringList lines{shownText(message()), QString()};
  for (const auto& fact : facts)
    if (!fact.value.isEmpty())
      lines.append(RecordTexts::tr(fact.name) + QStringLiteral(": ") + shownText(fact.value));
  return lines.join(u'\n');
}

QString RecordError::place() const {
  return composePlace(element_, field_);
}

}  // namespace veneerer
