#pragma once

#include <QJsonValue>

#include "companion/format/StepArguments.h"
#include "companion/format/ValueCodec.h"

// The host's own state as scripts read and write it.
namespace hoststate {

// Every value that is set; by default as it is printed.
QJsonValue store(valuecodec::Form form = valuecodec::Form::Printed);
QJsonValue keychain();
QJsonValue host();

StepOutcome setStore(StepArguments& step);
StepOutcome setKeychain(StepArguments& step);
StepOutcome setHost(StepArguments& step);
StepOutcome setLanguage(StepArguments& step);

}  // namespace hoststate
