#pragma once

#include <QDateTime>
#include <QString>

// Local times as the user's locale writes them in short, always without seconds.
QString shortTime(const QDateTime& time);
QString shortDateTime(const QDateTime& time);
