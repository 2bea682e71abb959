#pragma once

#include <QString>

// The text for an English key in the language of the default locale; the key itself where there is no
// translation. A change of QLocale::setDefault counts from the next look-up on. Main thread only.
QString localizedString(const char* key);
