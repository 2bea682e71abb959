#pragma once

#include <QString>

class QFileDialog;
class QWidget;

// Asks where to save a file of JSON Lines: at first in the user's documents, under the name with the present
// time after it. The parent owns the dialog; it goes when it is closed. Show it with open().
QFileDialog* createSaveDialog(QWidget* parent, const QString& title, const QString& name);
