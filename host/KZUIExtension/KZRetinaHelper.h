#pragma once

#include <QIcon>
#include <QString>

#include "host/KZFoundation/KZHostExport.h"

// Loads "NAME.png", "NAME@2x.png", "NAME_dark.png" and "NAME_dark@2x.png" from a folder as one icon that follows the
// palette that it is drawn with: the dark pictures on a dark window, the highlight colour when it is On, and the
// text colour in high contrast.
class KZ_HOST_EXPORT KZRetinaHelper {
 public:
  static KZRetinaHelper& shareInstance();

  // A null icon when there is no such image.
  QIcon newPNGImageInBundle(const QString& folder, const QString& name);

 private:
  KZRetinaHelper() = default;
};
