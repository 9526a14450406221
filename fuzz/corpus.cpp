#include "fuzz/corpus.h"

#include "support/files.h"

namespace veneerer::fuzz {

QMap<QString, QByteArray> keptInputs(const Target& target) {
  const QString folder =
      QStringLiteral(VENEERER_SOURCE_DIR "/fuzz/corpus/") + QString::fromLatin1(target.name);
  QMap<QString, QByteArray> inputs = test::filesBelow(folder);
  for (auto input = inputs.begin(); input != inputs.end(); ++input)
    if (input.key().endsWith(u".hex")) *input = QByteArray::fromHex(*input);
  return inputs;
}

}  // namespace veneerer::fuzz
