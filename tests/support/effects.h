// What an act changes, of which elements, told in few words.
#pragma once

#include <gtest/gtest.h>

#include <QMap>
#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "forms/state.h"
#include "support/files.h"

namespace veneerer::test {

/// Takes every act back, so that each begins with what was there before.
class Effects {
public:
  using Changed = std::set<std::pair<const Element*, Property>>;
  using Act = std::function<void()>;

  explicit Effects(State& state) {
    state.board.recordWith([this](const Change& change) {
      changes_.push_back({&change.element, change.property, change.oldValue});
    });
  }

  /// What the act changes of those elements.
  Changed of(const Act& act, const std::function<bool(const Element&)>& counts) {
    changes_.clear();
    act();
    const std::vector<Stored> changes = std::exchange(changes_, {});
    Changed changed;
    for (const Stored& stored : changes)
      if (counts(*stored.element)) changed.emplace(stored.element, stored.property);
    for (auto stored = changes.rbegin(); stored != changes.rend(); ++stored)
      stored->element->restore(stored->property, stored->value);
    return changed;
  }

  /// Such as "Label1(0-12) Left; Label3(2) Left Top".
  QString told(const Changed& changed) {
    QString& known = known_[changed];
    if (known.isEmpty() && !changed.empty()) known = words(changed);
    return known;
  }

  /// The properties of one element, from there on, which is led behind them.
  static QString properties(Changed::const_iterator& at, Changed::const_iterator end) {
    QStringList names;
    for (const Element* element = at->first; at != end && at->first == element; ++at)
      names << QString(propertyName(at->second));
    return names.join(' ');
  }

private:
  struct Stored {
    Element* element;
    Property property;
    Value value;
  };

  static QString words(const Changed& changed) {
    QMap<QString, QMap<QString, QList<int>>> members;  // by the family and by what changes of them
    for (auto at = changed.begin(); at != changed.end();) {
      const Element& element = *at->first;
      members[nameOf(element)][properties(at, changed.end())] << element.index();
    }
    QStringList told;
    for (auto family = members.begin(); family != members.end(); ++family)
      for (auto each = family->begin(); each != family->end(); ++each)
        told << family.key() + runs(*each) + QChar(' ') + each.key();
    return told.join("; ");
  }

  /// Those of the canvas stand without their window.
  static QString nameOf(const Element& element) {
    const QString name = element.key().section('(', 0, 0);
    return name.startsWith("Form1.") ? name.mid(6) : name;
  }

  /// As "(3)", "(0-5)" or "(0-5, 7)"; nothing for what stands alone.
  static QString runs(QList<int> numbers) {
    if (numbers == QList<int>{-1}) return {};
    QStringList told;
    std::ranges::sort(numbers);
    for (qsizetype i = 0; i < numbers.size();) {
      qsizetype last = i;
      while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
      told << (i == last ? QString::number(numbers[i])
                         : QStringLiteral("%1-%2").arg(numbers[i]).arg(numbers[last]));
      i = last + 1;
    }
    return '(' + told.join(", ") + ')';
  }

  std::vector<Stored> changes_;
  std::map<Changed, QString> known_;  ///< the words for what was told before
};

/// Compares paragraphs, one by one, with those of a file.
inline void expectParagraphs(const QString& told, const char* file) {
  const QStringList are = told.trimmed().split("\n\n");
  const QStringList expected = QString(bytesOf(file)).trimmed().split("\n\n");
  ASSERT_EQ(are.size(), expected.size());
  for (qsizetype i = 0; i < are.size(); ++i) EXPECT_EQ(are[i].toStdString(), expected[i].toStdString());
}

}  // namespace veneerer::test
