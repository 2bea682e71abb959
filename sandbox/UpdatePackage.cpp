#include "sandbox/UpdatePackage.h"

#include <QCryptographicHash>

namespace sandbox {

namespace {

constexpr qsizetype packageSize = 3 * 1024 * 1024;

}  // namespace

UpdatePackage makeUpdatePackage(const QString& version) {
  UpdatePackage package{.version = version,
                        .path = QStringLiteral("/companion/brenn-mivra-meetings-%1.deb").arg(version),
                        .bytes = "Version " + version.toLatin1() +
                                 " of nothing: the sandbox made this file up. It installs nothing.\n"};
  package.bytes = package.bytes.repeated(packageSize / package.bytes.size() + 1).first(packageSize);
  package.sha256 = QCryptographicHash::hash(package.bytes, QCryptographicHash::Sha256).toHex();
  return package;
}

}  // namespace sandbox
