// The names of an archive's entries: which of them can be the files of one Skin.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace veneerer {

/// Where an entry belongs.
struct EntryPlace {
  QString name;  ///< in the Skin's folder, with forward slashes; empty for that folder itself
  bool isFolder;
};

/// Takes the names of one archive's entries, one after the other. Both kinds of slash separate.
class EntryNames {
public:
  /// Why the entry can't be one of a Skin's beside those before it, in words that may follow its name and a
  /// colon; empty when it can, and place tells where.
  QString add(const QString& entry, EntryPlace& place);

  /// The one folder at the top, which is the Skin; empty ahead of the first entry.
  const QString& skin() const { return skin_; }
  /// How many folders there are below it, those that only names of files tell of included.
  qsizetype folders() const { return folders_.size(); }

private:
  QString addTop(const QStringList& parts, bool isFolder);
  QString addFolders(const QStringList& parts);
  QString addFile(const QString& name);

  QString skin_;
  QSet<QString> files_;              ///< by their folded names
  QHash<QString, QString> folders_;  ///< by their folded names
};

}  // namespace veneerer
