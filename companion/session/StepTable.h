#pragma once

#include <QHash>
#include <QString>
#include <functional>

#include "companion/session/StepArguments.h"
#include "companion/session/StepOutcome.h"

// What a step's word does.
using StepHandler = std::function<StepOutcome(StepArguments& step)>;
using StepTable = QHash<QString, StepHandler>;
