#include <QApplication>
#include <QDebug>
#include <QPluginLoader>
#include <QWidget>

#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZPluginCoreMgr.h"
#include "host/KZUtility/KZPlistFileHandle.h"

class SmallHost final : public KZPluginDelegate {
  quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) override {
    qInfo() << "asked:" << kzCommandName(event.m_componentEventIndex) << content.value_or(Dictionary());
    return 0;
  }
};

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (!KZPlistFileHandle::sharedInstance().open("small-host-settings")) qFatal("it is running already");
  QPluginLoader loader(PLUGIN_FILE);
  auto* factory = qobject_cast<KZPluginFactory*>(loader.instance());
  if (!factory) qFatal("no plug-in: %s", qPrintable(loader.errorString()));
  SmallHost host;
  factory->core()->setDelegate(&host);
  const auto show = static_cast<quint64>(KZCommand::KZCmdShowPreference);
  factory->core()->onHandleOtherPluginsTriggerCommand(show, {});
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) qInfo() << "open:" << window->windowTitle();
  }
  const int status = QApplication::arguments().contains("--once") ? 0 : QApplication::exec();
  factory->core()->setDelegate(nullptr);
  factory->shutDown();
  return status;
}
