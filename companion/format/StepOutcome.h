#pragma once

#include <QString>

// How a step ended: played, or a reason why it cannot be. A refusal by the user interface counts as played.
class [[nodiscard]] StepOutcome {
 public:
  static StepOutcome played() { return StepOutcome({}); }
  static StepOutcome failed(const QString& reason) { return StepOutcome(reason); }

  bool isPlayed() const { return m_reason.isEmpty(); }
  const QString& reason() const { return m_reason; }

 private:
  explicit StepOutcome(const QString& reason) : m_reason(reason) {}

  QString m_reason;
};
