#pragma once

#include <QJsonValue>

#include "companion/session/StepArguments.h"

// The host's own state as scripts read and write it.
namespace hoststate {

QJsonValue store();
QJsonValue keychain();
QJsonValue host();

StepOutcome setStore(StepArguments& step);
StepOutcome setKeychain(StepArguments& step);
StepOutcome setHost(StepArguments& step);
StepOutcome setLanguage(StepArguments& step);

}  // namespace hoststate
