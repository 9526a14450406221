// Where the batch tool's words go.
#pragma once

#include <QByteArrayView>
#include <cstdio>

namespace veneerer {

/// Throws std::runtime_error when not all of it can be written, or what was put there before.
void print(std::FILE* out, QByteArrayView text);

/// The same for text that is one piece of several: it is written with the next print().
void put(std::FILE* out, QByteArrayView text);

/// Puts a piece of JSON. Characters that would steer a terminal stand in it as an escape (\u and digits),
/// which changes no value.
void putJson(std::FILE* out, QByteArrayView json);

}  // namespace veneerer
