#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <optional>
#include <utility>

// Names and values of a form or a query, in order.
using ADParameters = QList<std::pair<QString, QString>>;

QByteArray encodedParameters(const ADParameters& parameters);
ADParameters decodedParameters(QByteArrayView encoded);

// Nothing when the name is missing or stands there twice, which no honest answer does.
std::optional<QString> onlyValue(const ADParameters& parameters, const QString& name);
