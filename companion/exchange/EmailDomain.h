#pragma once

#include <QString>

// The domain of an email as it stands in a host name, in small letters; empty where it has none that can.
QString emailDomain(const QString& email);
