// The ways into the program for what a stranger chose, each as a function of bytes. libFuzzer calls it with
// millions of inputs, a test with those that are kept.
#pragma once

#include <QByteArray>
#include <QList>
#include <span>

namespace veneerer::fuzz {

struct Target {
  const char* name;
  int mostBytes;  ///< of an input
  /// Ends the process where a law of the program doesn't hold; whatever else comes back is fine.
  void (*run)(const QByteArray& input);
  /// Inputs to begin with.
  QList<QByteArray> (*seeds)();
  /// Words that inputs are made of.
  QList<QByteArray> (*words)();
};

std::span<const Target> targets();

/// Null when there is none of that name.
const Target* findTarget(const QByteArray& name);

extern const Target kRecords;
extern const Target kCovers;
extern const Target kScript;
extern const Target kNumbers;
extern const Target kPictures;
extern const Target kArchives;
extern const Target kRecolouring;
extern const Target kDesigner;

}  // namespace veneerer::fuzz
