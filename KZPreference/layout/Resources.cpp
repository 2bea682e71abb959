#include "KZPreference/layout/Resources.h"

#include "host/KZUIExtension/KZRetinaHelper.h"
#include "host/KZUtility/KZStringTable.h"

const QString kImageBundle = QStringLiteral(":/KZPreference/images");

QString localizedString(const char* key) {
  static KZStringTable table(QStringLiteral(":/KZPreference/translations"), QStringLiteral("KZPreference"));
  return table.text(key);
}

QIcon newPNGImageInThisBundle(const QString& name) {
  return KZRetinaHelper::shareInstance().newPNGImageInBundle(kImageBundle, name);
}
