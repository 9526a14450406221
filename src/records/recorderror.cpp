#include "records/recorderror.h"

namespace veneerer {

namespace {

QString compose(const QString& file, int line, const QString& element, const QString& field,
                const QString& found) {
  QString text = file;
  if (line > 0) text += u':' + QString::number(line);
  text += QStringLiteral(": ");
  if (!element.isEmpty()) text += element + u' ';
  if (!field.isEmpty()) text += field + QStringLiteral(": ");
  return text + found;
}

}  // namespace

RecordError::RecordError(const QString& file, int line, const QString& element, const QString& field,
                         const QString& found)
    : std::runtime_error(compose(file, line, element, field, found).toStdString()),
      file_(file),
      line_(line),
      element_(element),
      field_(field),
      found_(found) {}

QString RecordError::message() const {
  return compose(file_, line_, element_, field_, found_);
}

}  // namespace veneerer
