#pragma once

#include <QByteArray>

#include "companion/format/ValueCodec.h"

class SecretVault;

// The JSON of a record's line without the secrets that became known only after it was written: a password
// that was typed into the wrong field first. What names a step or a control stays, so that the line still
// plays.
QByteArray withoutLateSecrets(const QByteArray& json, valuecodec::Form form, SecretVault* vault);
