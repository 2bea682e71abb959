#pragma once

#include <QUrl>

// Whether the host is this machine, by its name or number.
bool isLoopback(const QUrl& address);

// Encrypted, or on this machine; with a host and nobody's name in it.
bool isSafeAddress(const QUrl& address);

// Whether what came from one address may lead to the other: safe, and from outside never to this machine.
bool isSafeStep(const QUrl& from, const QUrl& to);
