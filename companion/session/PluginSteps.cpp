#include "companion/session/PluginSteps.h"

#include <QEventLoop>
#include <QThread>
#include <limits>
#include <memory>

#include "host/KZFoundation/KZNotificationCenter.h"

namespace {

// The main thread keeps its loop running: observers hand their work over to it while the poster waits.
void postFromWorker(const KZNotification& notification) {
  QEventLoop loop;
  const std::unique_ptr<QThread> worker(
      QThread::create([&notification] { KZNotificationCenter::defaultCenter().post(notification); }));
  QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
  worker->start();
  loop.exec();
  worker->wait();
}

}  // namespace

void PluginSteps::addTo(StepTable* table) {
  table->insert("command", [this](StepArguments& step) { return command(step); });
  table->insert("notify", [this](StepArguments& step) { return notify(step); });
  table->insert("post", [this](StepArguments& step) { return post(step); });
  table->insert("personalRoom", [this](StepArguments& step) { return personalRoom(step); });
}

StepOutcome PluginSteps::command(StepArguments& step) {
  const qint64 number = step.integer("command", 0, std::numeric_limits<qint64>::max());
  const Content content = step.content("content");
  if (step.isGood()) m_host->trigger(static_cast<KZCommand>(number), content);
  return step.outcome();
}

StepOutcome PluginSteps::notify(StepArguments& step) {
  const qint64 index = step.integer("notify", 0, std::numeric_limits<quint32>::max());
  const Content content = step.content("content");
  if (step.isGood()) m_host->notify(static_cast<KZNotify>(index), content);
  return step.outcome();
}

StepOutcome PluginSteps::post(StepArguments& step) {
  const QString name = step.text("post");
  const Content userInfo = step.content("userInfo");
  const bool isFromWorker = step.has("thread") && step.choice("thread", {"main", "worker"}) == "worker";
  if (!step.isGood()) return step.outcome();
  const KZNotification notification = {name, poster(), userInfo.value_or(Dictionary())};
  if (isFromWorker) {
    postFromWorker(notification);
  } else {
    KZNotificationCenter::defaultCenter().post(notification);
  }
  return StepOutcome::played();
}

StepOutcome PluginSteps::personalRoom(StepArguments& step) {
  StepArguments room(step.object("personalRoom"));
  const QString join = room.optionalText("join");
  const QString sip = room.optionalText("sip");
  if (!step.isGood()) return step.outcome();
  if (room.isGood()) m_host->setPersonalRoom(join, sip);
  return room.outcome();
}
