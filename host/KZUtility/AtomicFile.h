#pragma once

#include <QByteArray>
#include <QString>

// Replaces the file as a whole or not at all, readable by its owner alone; on the disk when this returns. The
// system's error number when it failed, else 0; a failure leaves no temporary file.
[[nodiscard]] int replaceFile(const QString& folder, const QString& name, const QByteArray& bytes);

// Removes what a process that died in the middle of `replaceFile` left behind.
void removeAbandonedFiles(const QString& folder, const QString& name);
