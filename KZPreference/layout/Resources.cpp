#include "KZPreference/layout/Resources.h"

#include <QLocale>
#include <QTranslator>
#include <optional>

#include "host/KZUIExtension/KZRetinaHelper.h"

const QString kImageBundle = QStringLiteral(":/KZPreference/images");

namespace {

class StringTable {
 public:
  QString lookUp(const char* key) {
    const QLocale locale;
    if (locale != m_locale) {
      m_locale = locale;
      m_hasTable = m_translator.load(locale, QStringLiteral("KZPreference"), QStringLiteral("_"),
                                     QStringLiteral(":/KZPreference/translations"));
    }
    const QString text = m_hasTable ? m_translator.translate("KZPreference", key) : QString();
    return text.isEmpty() ? QString::fromUtf8(key) : text;
  }

 private:
  std::optional<QLocale> m_locale;
  QTranslator m_translator;
  bool m_hasTable = false;
};

}  // namespace

QString localizedString(const char* key) {
  static StringTable table;
  return table.lookUp(key);
}

QIcon paneImage(const QString& name) {
  return KZRetinaHelper::shareInstance().newPNGImageInBundle(kImageBundle, name);
}
