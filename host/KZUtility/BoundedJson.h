#pragma once

#include <QString>
#include <QVariant>
#include <optional>

// The value of a JSON text of at most 4 MiB and 64 levels, a scalar too; nothing when it is malformed or
// larger. A null is an invalid value, and no key stands for one. Whole numbers are qlonglong, texts never
// null. Any thread.
std::optional<QVariant> boundedJsonValue(const QString& text);
