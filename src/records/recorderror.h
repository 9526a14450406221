// The one error of a malformed or unwritable file. It is raised where the place is known and caught where the
// operator is told.
#pragma once

#include <QString>
#include <stdexcept>

namespace veneerer {

/// What helps whoever is to mend the file, beside what is wrong; each may be empty.
struct RecordTrace {
  QString folder = {};  ///< the Skin's, or that of the file
  QString value = {};   ///< what was found, as it stands in the file
  QString cause = {};   ///< the likeliest one, a sentence
};

class RecordError : public std::runtime_error {
public:
  /// line counts from 1; 0 when no line is to blame. element and field may be empty. The file's name and what
  /// was found may hold anything: in every text that is shown, "?" stands for what isn't printable.
  RecordError(const QString& file, int line, const QString& element, const QString& field,
              const QString& found, const RecordTrace& trace = {});

  const QString& file() const { return file_; }
  int line() const { return line_; }
  const QString& element() const { return element_; }
  const QString& field() const { return field_; }
  /// What is wrong, without the place; printable.
  const QString& found() const { return found_; }
  const RecordTrace& trace() const { return trace_; }
  /// "Form1.lvButtons_H1(0) Height: ", empty when neither element nor field is known.
  QString place() const;
  /// "menu.ini:12: Form1.lvButtons_H1(0) Height: a number is due here, but "abc" stands in its place";
  /// printable.
  QString message() const;
  /// The message, and below it all that is known, a line each: "Line: 12", "Likely cause: ...". Each line is
  /// printable and no longer than shownText() allows.
  QString report() const;

private:
  QString file_;
  int line_;
  QString element_;
  QString field_;
  QString found_;
  RecordTrace trace_;
};

}  // namespace veneerer
