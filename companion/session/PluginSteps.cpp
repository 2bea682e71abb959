#include <QEventLoop>
#include <QThread>
#include <limits>
#include <memory>

#include "companion/session/Steps.h"
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

StepResult steps::command(Step& step, StepContext& context) {
  const qint64 number = step.integer("command", 0, std::numeric_limits<qint64>::max());
  const Content content = step.content("content");
  if (step.isGood()) context.host->trigger(static_cast<KZCommand>(number), content);
  return step.result();
}

StepResult steps::notify(Step& step, StepContext& context) {
  const qint64 index = step.integer("notify", 0, std::numeric_limits<quint32>::max());
  const Content content = step.content("content");
  if (step.isGood()) context.host->notify(static_cast<KZNotify>(index), content);
  return step.result();
}

StepResult steps::post(Step& step, StepContext& context) {
  const QString name = step.text("post");
  const Content userInfo = step.content("userInfo");
  const bool isFromWorker = step.choice("thread", {"main", "worker"}) == "worker";
  if (!step.isGood()) return step.result();
  const KZNotification notification = {name, &context, userInfo.value_or(Dictionary())};
  if (isFromWorker) {
    postFromWorker(notification);
  } else {
    KZNotificationCenter::defaultCenter().post(notification);
  }
  return {};
}

StepResult steps::personalRoom(Step& step, StepContext& context) {
  Step room(step.object("personalRoom"));
  const QString join = room.optionalText("join");
  const QString sip = room.optionalText("sip");
  if (!step.isGood() || !room.isGood()) return step.isGood() ? room.result() : step.result();
  context.host->setPersonalRoom(join, sip);
  return {};
}
