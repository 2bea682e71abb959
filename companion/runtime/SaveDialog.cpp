#include "companion/runtime/SaveDialog.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

QFileDialog* createSaveDialog(QWidget* parent, const QString& title, const QString& name) {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString folder = QDir(documents).exists() ? documents : QDir::homePath();
  const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
  auto* dialog = new QFileDialog(parent, title);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(QStringLiteral("jsonl"));
  dialog->setDirectory(folder);
  dialog->selectFile(QStringLiteral("%1-%2.jsonl").arg(name, time));
  return dialog;
}
