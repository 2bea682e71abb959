#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QUrl>
#include <optional>
#include <utility>

// Whether secrets may be sent there: https, or plain http to the loopback address.
bool isAllowedAddress(const QUrl& address);

bool isSameOrigin(const QUrl& left, const QUrl& right);

// Whether the loopback listener can receive the redirect: plain http to the loopback address.
bool isLoopbackRedirect(const QUrl& address);

// Names and values of a form or a query, in order.
using ADParameters = QList<std::pair<QString, QString>>;

QByteArray encodedParameters(const ADParameters& parameters);
ADParameters decodedParameters(QByteArrayView encoded);

// Nothing when the name is missing or occurs twice, as it does only in a forged response.
std::optional<QString> onlyValue(const ADParameters& parameters, const QString& name);
