#include "sandbox/HttpMessage.h"

namespace sandbox {

QString HttpRequest::host() const {
  return QString::fromLatin1(headers.value("host")).section(QLatin1Char(':'), 0, 0);
}

QUrlQuery HttpRequest::form() const {
  QByteArray encoded = body;
  return QUrlQuery(QString::fromLatin1(encoded.replace('+', "%20")));
}

}  // namespace sandbox
