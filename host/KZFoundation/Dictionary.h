#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <initializer_list>
#include <optional>
#include <utility>

#include "host/KZFoundation/KZHostExport.h"

// The payload of every command and notification. A missing value is an invalid QVariant (or a null QString)
// and is never stored under a key.
using Dictionary = QVariantMap;

// The content of a command or notification: a dictionary, or none.
using Content = std::optional<Dictionary>;

KZ_HOST_EXPORT bool isMissing(const QVariant& value);

// The pairs before the first missing value.
KZ_HOST_EXPORT Dictionary dictionaryWithPairs(std::initializer_list<std::pair<QString, QVariant>> pairs);

// A number is a flag too: 0 is no, every other number is yes. Absent for values of other types.
KZ_HOST_EXPORT std::optional<bool> asFlag(const QVariant& value);

// Readers of contents from outside: a value of another type counts as absent.
KZ_HOST_EXPORT QString textValue(const Dictionary& dictionary, const QString& key);  // null when absent
KZ_HOST_EXPORT Dictionary dictionaryValue(const Dictionary& dictionary, const QString& key);
KZ_HOST_EXPORT std::optional<bool> flagValue(const Dictionary& dictionary, const QString& key);
KZ_HOST_EXPORT bool isSet(const Dictionary& dictionary, const QString& key);  // the flag is present and true
// Days or minutes, which are stored as texts; a number is taken as its text. Null when absent.
KZ_HOST_EXPORT QString countValue(const Dictionary& dictionary, const QString& key);

// False when either text is missing.
KZ_HOST_EXPORT bool isEqualText(const QString& left, const QString& right);
