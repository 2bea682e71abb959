#pragma once

#include <QUrl>

// Whether secrets may be sent there: https, or plain http to the loopback address.
bool isAllowedAddress(const QUrl& address);

// A redirect address that a listener of ours can answer: plain http to the loopback address.
bool isLoopbackRedirect(const QUrl& address);
