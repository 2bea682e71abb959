#pragma once

#include <QIcon>
#include <QString>

// The plug-in's own texts and images. Main thread only.

// The translation of an English text into the default locale's language; the English text where there is
// none. Follows QLocale::setDefault.
QString localizedString(const char* key);
// That language, as KZStringTable names it.
QString localizedLanguage();

// The folder of the images, and the image of that name in it; a null icon when there is none.
extern const QString kImageBundle;
QIcon newPNGImageInThisBundle(const QString& name);
