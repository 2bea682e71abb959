#pragma once

#include <QByteArray>
#include <QString>

// Replaces the file completely or not at all, with mode 0600. Its contents are on the disk when this returns;
// a power cut may still bring the replaced file back. Returns 0, or the system's error number; a failure
// leaves no temporary file.
[[nodiscard]] int replaceFile(const QString& folder, const QString& name, const QByteArray& bytes);

// Removes temporary files older than a minute, which processes left that were killed in `replaceFile`.
void removeAbandonedFiles(const QString& folder, const QString& name);
