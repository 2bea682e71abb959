#include "host/KZFoundation/KZConstantRegistry.h"

#include <QHash>

namespace {

// Constants register while the library's globals are initialised, so the table must exist on first use.
QHash<QString, QString>& constants() {
  static QHash<QString, QString> table;
  return table;
}

QHash<const QChar*, QString>& constantNames() {
  static QHash<const QChar*, QString> table;
  return table;
}

}  // namespace

QString registeredConstant(const char* name, const char* text) {
  const QString key = QString::fromLatin1(name);
  const QString constant = QString::fromLatin1(text ? text : name);
  constants().insert(key, constant);
  constantNames().insert(constant.constData(), key);
  return constant;
}

QString constantNamed(const QString& name) {
  return constants().value(name);
}

QString constantNameOf(const QString& text) {
  return constantNames().value(text.constData());
}
