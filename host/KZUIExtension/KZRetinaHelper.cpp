#include "host/KZUIExtension/KZRetinaHelper.h"

#include "host/KZUIExtension/KZImageEngine.h"

KZRetinaHelper& KZRetinaHelper::shareInstance() {
  // Never destroyed: icons may be asked for until the last window is gone.
  static KZRetinaHelper* const instance = new KZRetinaHelper;
  return *instance;
}

QIcon KZRetinaHelper::newPNGImageInBundle(const QString& folder, const QString& name) {
  if (name.isEmpty()) return {};
  const QString path = folder + QLatin1Char('/') + name;
  const auto known = m_icons.constFind(path);
  if (known != m_icons.cend()) return *known;

  const auto load = [&path](const char* ending) {
    QImage picture(path + QLatin1String(ending));
    picture.setDevicePixelRatio(1);
    return picture;
  };
  const KZImagePictures pictures{.light = load(".png"),
                                 .light2x = load("@2x.png"),
                                 .dark = load("_dark.png"),
                                 .dark2x = load("_dark@2x.png")};
  if (pictures.light.isNull()) return {};
  QIcon icon(new KZImageEngine(std::make_shared<const KZImagePictures>(pictures)));
  m_icons.insert(path, icon);
  return icon;
}
