#pragma once

#include "adal/ADAuthenticationResult.h"

class QObject;

// A completion for any thread that hands its first result over to the home's thread and traces and drops any
// other. All copies share one guard. Results for a home that is gone are dropped.
ADAuthenticationCallback oneShotCompletion(QObject* home, const char* method,
                                           ADAuthenticationCallback deliver);
