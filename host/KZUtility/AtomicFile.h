#pragma once

#include <QByteArray>
#include <QString>

// Replaces the file as a whole or not at all, readable by its owner alone; on the disk when this returns. The
// reason when it failed, else null; a failure leaves no temporary file.
[[nodiscard]] QString replaceFile(const QString& folder, const QString& name, const QByteArray& bytes);

// Removes what a process that died in the middle of `replaceFile` left behind.
void removeAbandonedFiles(const QString& folder, const QString& name);
