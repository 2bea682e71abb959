#include "KZPreference/layout/PaneImages.h"

#include "host/KZUIExtension/KZRetinaHelper.h"

const QString kImageBundle = QStringLiteral(":/KZPreference/images");

QIcon paneImage(const QString& name) {
  return KZRetinaHelper::shareInstance().newPNGImageInBundle(kImageBundle, name);
}
