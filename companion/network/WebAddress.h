#pragma once

#include <QString>
#include <QUrl>

// Checks of names and addresses from outside.

// Encrypted, or on this machine; with a host and without a user name.
bool isSafeAddress(const QUrl& address);

// Whether one address may lead to the other, which must be safe, and may be on this machine only if the first
// one is.
bool isSafeStep(const QUrl& from, const QUrl& to);

// Whether a page may be opened for the host that named it: safe, and at that host, below it or on this
// machine.
bool isOwnPage(const QUrl& page, const QString& host);

// The address of a meeting site: a host name, with a port where it is not the usual one. Empty for any other
// text.
QUrl siteAddress(const QString& site);

// Whether the host is the domain or a subdomain.
bool isWithinDomain(const QString& host, const QString& domain);

// The domain of an email address in the form of a host name, in lower case; empty when it has no valid one.
QString emailDomain(const QString& email);
