// The state of a designer as JSON.
#pragma once

#include <QList>
#include <cstdio>

#include "designer/designer.h"
#include "platform/scripteddialogs.h"

namespace veneerer {

/// Globals, every element with its properties, the tables of image names, and the message boxes shown.
/// Element by element, for a stranger's texts may be many times larger as JSON. Throws std::runtime_error
/// when it can't be written.
void printState(std::FILE* out, Designer& designer, const QList<ScriptedDialogs::Message>& messages);

}  // namespace veneerer
