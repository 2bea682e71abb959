#pragma once

#include <QByteArray>
#include <QString>

namespace sandbox {

// An update that installs nothing: a file of the right name and length, and what its manifest says of it.
struct UpdatePackage {
  QString version;
  QString path;  // on its server
  QByteArray bytes;
  QByteArray sha256 = {};  // of the bytes, in hexadecimal
};

// The same bytes each time.
UpdatePackage makeUpdatePackage(const QString& version);

}  // namespace sandbox
