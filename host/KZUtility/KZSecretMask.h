#pragma once

#include <QVariant>

// The value without its secrets: what stands under a key that holds one is "***". Any thread.
QVariant kzMaskedValue(const QVariant& value);
