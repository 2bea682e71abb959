#pragma once

#include <QVariant>
#include <functional>

// The value without its secrets: what stands under a key that holds one is "***". Any thread.
QVariant kzMaskedValue(const QVariant& value);

// The value with what `replacement` answers for each secret. Any thread.
QVariant kzReplacedValue(const QVariant& value,
                         const std::function<QVariant(const QVariant& secret)>& replacement);
