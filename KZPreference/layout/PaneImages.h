#pragma once

#include <QIcon>
#include <QString>

// The plug-in's own folder of images, and an image of it by name; null when there is none.
extern const QString kImageBundle;
QIcon paneImage(const QString& name);
