#include "companion/session/ScriptSteps.h"

#include <QPixmap>

#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "platform/Text.h"
#include "platform/WindowController.h"

namespace {

constexpr qint64 kLongestWaitMs = 24LL * 3600 * 1000;
constexpr double kLargestFont = 1000;

FontRole fontRoleNamed(const QString& name) {
  if (name == "label") return FontRole::Label;
  return name == "bold" ? FontRole::BoldSystem : FontRole::System;
}

}  // namespace

void ScriptSteps::addTo(StepTable* table) {
  table->insert("wait", [this](StepArguments& step) { return wait(step); });
  table->insert("echo", [this](StepArguments& step) { return echo(step); });
  table->insert("measure", [this](StepArguments& step) { return measure(step); });
  table->insert("screenshot", [this](StepArguments& step) { return screenshot(step); });
}

StepOutcome ScriptSteps::wait(StepArguments& step) {
  const std::chrono::milliseconds time(step.integer("wait", 0, kLongestWaitMs));
  if (!step.isGood()) return step.outcome();
  m_waitedMs += time.count();
  eventpump::run(time);
  return StepOutcome::played();
}

StepOutcome ScriptSteps::echo(StepArguments& step) {
  m_writer->print({{"echo", step.raw("echo")}});
  return StepOutcome::played();
}

StepOutcome ScriptSteps::measure(StepArguments& step) {
  const QString measured = step.text("measure");
  const QString text = measured == "text" ? step.textOr("text", measured) : measured;
  const QString font =
      step.has("font") ? step.choice("font", {"label", "system", "bold", "default"}) : "default";
  const bool hasSize = font != "default" && step.has("size");
  const double size = hasSize ? step.number("size") : systemFontSize;
  if (step.isGood() && (size < 1 || size > kLargestFont))
    step.fail(QStringLiteral("\"size\" is out of range"));
  if (!step.isGood()) return step.outcome();
  const Size result = sizeOfText(text, fontRoleNamed(font), size);
  m_writer->print({{"result", QJsonObject{{"width", result.width}, {"height", result.height}}}});
  return StepOutcome::played();
}

StepOutcome ScriptSteps::screenshot(StepArguments& step) {
  const QString path = step.text("screenshot");
  Window* window = findPreferencesWindow();
  if (!step.isGood()) return step.outcome();
  if (!window) {
    m_writer->print({{"refused", "no window is open"}});
    return StepOutcome::played();
  }
  if (!window->grab().save(path, "PNG"))
    return StepOutcome::failed(QStringLiteral("cannot write %1").arg(path));
  return StepOutcome::played();
}
