#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

#include "host/KZFoundation/KZHostExport.h"

// Loads "NAME.png", "NAME@2x.png", "NAME_dark.png" and "NAME_dark@2x.png" from a folder as one icon that
// follows the palette of the widget that it is drawn on (the application's when it becomes a pixmap): the
// dark pictures on a dark window, the highlight colour when it is On, and text on window colour in high
// contrast. Main thread only.
class KZ_HOST_EXPORT KZRetinaHelper {
 public:
  static KZRetinaHelper& shareInstance();

  // A null icon when there is no such image. Images are cached.
  QIcon newPNGImageInBundle(const QString& folder, const QString& name);

 private:
  KZRetinaHelper() = default;

  QHash<QString, QIcon> m_icons;
};
