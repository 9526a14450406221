// The program that libFuzzer drives, once for each target: VENEERER_FUZZ_TARGET names it.
#include <QGuiApplication>
#include <cstdint>

#include "elements/require.h"
#include "fuzz/target.h"

namespace {

const veneerer::fuzz::Target* target;

// Decoders have something to say about each damaged picture.
void saysOnlyWhatIsFatal(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg) veneerer::stopProgram(message.toUtf8().constData());
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(saysOnlyWhatIsFatal);
  static const QGuiApplication application(*argc, *argv);
  target = veneerer::fuzz::findTarget(VENEERER_FUZZ_TARGET);
  veneerer::require(target != nullptr, "there is a target of that name");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  target->run(QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
  return 0;
}
