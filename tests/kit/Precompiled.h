#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
