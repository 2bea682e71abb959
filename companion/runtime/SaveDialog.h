#pragma once

#include <QString>

class QFileDialog;
class QWidget;

// Asks for the file of JSON Lines to save, by default in the user's documents, with the current time in its
// name. The parent owns the dialog, which is destroyed when it is closed. Show it with open().
QFileDialog* createSaveDialog(QWidget* parent, const QString& title, const QString& name);
