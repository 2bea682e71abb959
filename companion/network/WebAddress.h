#pragma once

#include <QString>
#include <QUrl>

// What is checked of names and addresses from outside before they are used.

// Encrypted, or on this machine; with a host and without a user name.
bool isSafeAddress(const QUrl& address);

// Whether what came from one address may lead to the other: safe, and from outside never to this machine.
bool isSafeStep(const QUrl& from, const QUrl& to);

// Whether a page may be opened for the host that named it: safe, and at that host, below it or on this
// machine.
bool isOwnPage(const QUrl& page, const QString& host);

// The address of a meeting site: a host name, with a port where it is not the usual one. Empty for any other
// text.
QUrl siteAddress(const QString& site);

// Whether the host is the domain or lies below it.
bool isWithinDomain(const QString& host, const QString& domain);

// The domain of an email as it stands in a host name, in lower case; empty where it has none that can.
QString emailDomain(const QString& email);
