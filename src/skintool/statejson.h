// The state of a designer as JSON.
#pragma once

#include <QByteArray>
#include <QList>

#include "designer/designer.h"
#include "platform/scripteddialogs.h"

namespace veneerer {

/// Globals, every element with its properties, the tables of image names, and the message boxes shown.
QByteArray stateAsJson(Designer& designer, const QList<ScriptedDialogs::Message>& messages);

}  // namespace veneerer
