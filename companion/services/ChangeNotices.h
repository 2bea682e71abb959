#pragma once

#include <QObject>
#include <optional>

#include "host/KZFoundation/Dictionary.h"

class PluginHost;

// Explains to the user what a change in Preferences means here. Main thread only.
class ChangeNotices final : public QObject {
  Q_OBJECT

 public:
  explicit ChangeNotices(PluginHost* host);  // not owned

 Q_SIGNALS:
  void message(const QString& text);

 private:
  QString recordNotice(const Content& content);

  std::optional<QString> m_room;  // of the last record
};
