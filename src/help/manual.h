// The manual for the person who makes Skins: its pages as Markdown, their contents, and a search over them.
#pragma once

#include <QList>
#include <QMap>
#include <QString>

namespace veneerer {

/// One line of the contents.
struct ManualEntry {
  QString page;  ///< its file's name without ".md"
  QString title;
  QString group;  ///< the heading that it stands below
};

/// A page that was found.
struct ManualHit {
  QString page;
  QString title;
  QString excerpt;  ///< plain text of one line around the first find
};

/// The manual as it is part of the program.
inline const QString kManualFolder = QStringLiteral(":/manual");

/// The path of a page or a picture of the manual: of the one in the language of the texts, which lies in a
/// folder of its name, where there is one, else of the English one.
QString manualFile(const QString& name, const QString& folder = kManualFolder);

/// The page that lists all others.
inline const QString kManualIndex = QStringLiteral("index");

class Manual {
public:
  /// The pages in that folder, by default those that are part of the program. Of them the index alone is read
  /// at once.
  explicit Manual(QString folder = kManualFolder);

  /// In the order of the index.
  const QList<ManualEntry>& contents() const { return contents_; }
  /// As the index gives it; that of the index itself for any other page.
  QString title(const QString& page) const;
  /// The page as Markdown; empty where there is none of that name.
  QString text(const QString& page) const;

  /// The pages that all these words are found in, whatever their case. Those come first whose titles have
  /// most of the words, among them those that have them most often. Without a word nothing is found.
  QList<ManualHit> search(const QString& words);

private:
  void readTexts();

  QString folder_;
  QList<ManualEntry> contents_;
  QMap<QString, QString> plainTexts_;  ///< by page, from the first search on
};

}  // namespace veneerer
