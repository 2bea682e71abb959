#pragma once

#include <QString>

#include "host/KZFoundation/KZHostExport.h"

// The application's registration with the sign-in authority: what a host sends as "clientId" and
// "redirectUri" in the parameters of a sign-in. Compare them as texts, not by identity. Any thread.
KZ_EXPORTED_CONSTANT const QString appRegistration_clientId =
    QStringLiteral("3f9c1e42-7a5b-4d8e-9c21-6b0a4e7d5f13");
KZ_EXPORTED_CONSTANT const QString appRegistration_redirectUri = QStringLiteral("urn:ietf:wg:oauth:2.0:oob");
