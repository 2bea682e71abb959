#pragma once

#include <QHash>
#include <QString>
#include <functional>

#include "companion/format/StepArguments.h"
#include "companion/format/StepOutcome.h"

// What a step's word does.
using StepHandler = std::function<StepOutcome(StepArguments& step)>;
using StepTable = QHash<QString, StepHandler>;
