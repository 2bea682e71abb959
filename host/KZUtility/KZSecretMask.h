#pragma once

#include <QVariant>
#include <functional>

// The value with each secret replaced by "***". Any thread.
QVariant kzMaskedValue(const QVariant& value);

// The value with each secret replaced by what `replacement` returns for it. Any thread.
QVariant kzReplacedValue(const QVariant& value,
                         const std::function<QVariant(const QVariant& secret)>& replacement);
