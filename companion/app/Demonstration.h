#pragma once

#include <QString>
#include <QStringList>

class CompanionWindow;
class PluginHost;

// Plays the session script of the demonstration, which takes a picture of every pane, and takes one of the
// companion. The paths of the pictures in the folder, in the order in which they were taken; empty when they
// could not be written. The two objects are not owned; the plug-in is loaded.
[[nodiscard]] QStringList playDemonstration(PluginHost* host, CompanionWindow* window, const QString& folder);
