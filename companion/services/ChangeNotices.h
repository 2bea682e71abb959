#pragma once

#include <QObject>
#include <optional>

#include "host/KZFoundation/Dictionary.h"

class PluginHost;

// Shows the user the effect of a change in Preferences. Main thread only.
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
