#pragma once

#include <QStringList>
#include <QVariant>

// What differs between two values that stood under the key, recursively, without secrets: per entry the line
// "- path: old" where it was and "+ path: new" where it is. Values are compact JSON. Any thread.
QStringList valueDifference(const QString& key, const QVariant& before, const QVariant& after);
