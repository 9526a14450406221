// Code page 1252, in which record files are written. Every byte survives a load and a save: the five bytes
// that the code page leaves undefined stand for the code points of the same number.
#pragma once

#include <QByteArray>
#include <QString>
#include <string_view>

namespace veneerer {

QString fromCodePage(std::string_view bytes);

/// A character outside the code page becomes "?".
QByteArray toCodePage(const QString& text);

}  // namespace veneerer
