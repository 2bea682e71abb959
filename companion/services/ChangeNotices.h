#pragma once

#include <QObject>
#include <optional>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZCommands.h"

class PluginHost;

// Says to the user what a change in Preferences means here. Main thread only.
class ChangeNotices final : public QObject {
  Q_OBJECT

 public:
  explicit ChangeNotices(PluginHost* host);  // not owned

 Q_SIGNALS:
  void noticed(const QString& text);

 private:
  void answer(KZCommand command, const Content& content);
  QString recordNotice(const Content& content);

  std::optional<QString> m_room;  // the last one heard of
};
