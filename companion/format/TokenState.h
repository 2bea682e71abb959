#pragma once

#include <QJsonArray>
#include <QJsonValue>

#include "companion/format/StepArguments.h"

// The default token cache as scripts read and write it.
namespace tokenstate {

QJsonValue tokens();
// As `setTokens` takes them; a lifetime is what is left of it, in whole seconds.
QJsonArray settableTokens();
StepOutcome setTokens(StepArguments& step);

}  // namespace tokenstate
