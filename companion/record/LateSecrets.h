#pragma once

#include <QByteArray>

class SecretVault;

// A line of a record without the secrets that became known only after it was written: a password that was
// typed into the wrong field first. What names a step or a control stays, so that the line still plays.
QByteArray withoutLateSecrets(const QByteArray& line, SecretVault* vault);
