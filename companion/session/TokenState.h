#pragma once

#include <QJsonValue>

#include "companion/session/StepArguments.h"

// The default token cache as scripts read and write it.
namespace tokenstate {

QJsonValue tokens();
StepOutcome setTokens(StepArguments& step);

}  // namespace tokenstate
