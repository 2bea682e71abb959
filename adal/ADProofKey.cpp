#include "adal/ADProofKey.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <array>

namespace {

constexpr QByteArray::Base64Options urlSafe = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;

}  // namespace

QByteArray unguessableText() {
  std::array<quint32, 8> random{};
  QRandomGenerator::system()->fillRange(random.data(), static_cast<qsizetype>(random.size()));
  const QByteArray bytes(reinterpret_cast<const char*>(random.data()), sizeof random);
  return bytes.toBase64(urlSafe);
}

QByteArray proofKeyChallenge(const QByteArray& verifier) {
  return QCryptographicHash::hash(verifier, QCryptographicHash::Sha256).toBase64(urlSafe);
}
