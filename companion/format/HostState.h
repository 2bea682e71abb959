#pragma once

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include "companion/format/ValueCodec.h"

// The host's own state as scripts and records show it. Main thread only.
namespace hoststate {

// The keys of the settings store by the names that scripts have for them.
const QHash<QString, QString>& storeKeys();

QJsonObject store(valuecodec::Form form = valuecodec::Form::Printed);  // every value that is set
QJsonObject keychain();
QJsonObject host();
// The default token cache's items. In the exact form they expire in a number of whole seconds, as in the step
// that sets them.
QJsonArray tokens(valuecodec::Form form = valuecodec::Form::Printed);

}  // namespace hoststate
