#pragma once

#include <QStringList>

// The program's own arguments, the program first. Qt would take some of them (--plugin) for itself, so an
// application object is made with the program's name alone.
QStringList argumentsOf(int argc, char** argv);
