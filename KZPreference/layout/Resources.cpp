#include "KZPreference/layout/Resources.h"

#include "host/KZUIExtension/KZRetinaHelper.h"
#include "host/KZUtility/KZStringTable.h"

namespace {

KZStringTable& preferencesTexts() {
  static KZStringTable table(QStringLiteral(":/KZPreference/translations"), QStringLiteral("KZPreference"));
  return table;
}

}  // namespace

const QString kImageBundle = QStringLiteral(":/KZPreference/images");

QString localizedString(const char* key) {
  return preferencesTexts().text(key);
}

QString localizedLanguage() {
  return preferencesTexts().language();
}

QIcon newPNGImageInThisBundle(const QString& name) {
  return KZRetinaHelper::shareInstance().newPNGImageInBundle(kImageBundle, name);
}
