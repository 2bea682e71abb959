#pragma once

#include <QString>
#include <QVariant>

// One argument of a trace as it is printed: secrets masked, long texts shortened. Any thread.
QString kzTraceText(const QVariant& value);
